#pragma once

#include <functional>
#include <string>

#include "base/wall_clock.h"
#include "base/window.h"
#include "host/error_report.h"
#include "host/server.h"
#include "music/interval.h"
#include "results/chart.h"
#include "results/sheet_picture.h"
#include "results/sheet_printer.h"
#include "settings/settings.h"
#include "statistics/records.h"

namespace tonarix {

/// Whom and what the result sheet works with; all of it outlives the window.
struct ResultContext {
  WindowContext common;
  Server& server;
  ErrorReport& errors;
  const WallClock& clock;
  const Settings& settings;
  const Auswertung& statistics;
  const IntervalNames& interval_names;
  SheetPrinter& printer;
  std::string computer_user;
  std::function<void()> show_help;
};

/// The result sheet of an exercise. It fills itself once and reads only.
class ResultWindow final : public Window {
 public:
  static constexpr int kSettingRows = 17;
  static constexpr int kResultRows = 42;

  /// `closed` runs after the sheet has been unloaded.
  ResultWindow(const ResultContext& context, std::function<void()> closed);

  void title_bar_close() override { leave(); }
  void cmdOk_click();
  void cmdPrint_click();
  void cmdHilfe_click();

  bool filled() const { return filled_; }
  const SheetContent& content() const { return content_; }
  const Chart& chart() const { return chart_; }
  std::string chart_title() const { return word(1208_text); }

  Control gr_einst{*this, "gr_einst"};
  Control grd_einst_head{*this, "grd_einst_head"};
  ControlArray<Control, 0, 5> g_einst_lab{*this, "g_einst_lab"};
  ControlArray<Control, 0, 5> g_einst_inh{*this, "g_einst_inh"};
  Control einst_cont{*this, "einst_cont"};
  Control einst_head{*this, "einst_head"};
  ControlArray<Control, 1, kSettingRows> einst_lab{*this, "einst_lab"};
  ControlArray<Control, 1, kSettingRows> einst_Inh{*this, "einst_Inh"};
  Control erg_cont{*this, "erg_cont"};
  Control erg_head{*this, "erg_head"};
  ControlArray<Control, 0, 1> Lab_richtung{*this, "Lab_richtung"};
  ControlArray<Control, 0, kResultRows> Lab_ergeb{*this, "Lab_ergeb"};
  ControlArray<Control, 0, kResultRows> ergebnis{*this, "ergebnis"};
  Control PicSchalt{*this, "PicSchalt"};
  Control cmdHilfe{*this, "cmdHilfe"};
  Control cmdPrint{*this, "cmdPrint"};
  Control cmdOk{*this, "cmdOk"};

 private:
  void failed(std::string_view tag, std::exception_ptr error) override;
  void start_timer();
  void LbGrdEinst();
  void LbEinst();
  void show_row(const ResultRow& row);
  void printed(const PrintResult& result);
  void leave();

  ResultContext context_;
  std::function<void()> closed_;
  Timer start_;
  Timer testtimer_;
  SheetContent content_;
  Chart chart_;
  bool filled_ = false;
  bool left_ = false;
};

}  // namespace tonarix
