#pragma once

#include <functional>
#include <string>

#include "base/module_texts.h"
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
#include "statistics/work_done.h"

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
  WorkDone work;
  SheetPrinter& printer;
  std::string computer_user;
  std::function<void()> show_help;
};

/// The result sheet of an exercise. It fills itself once and reads only. What it says is one
/// picture made of its `content`, so its controls are the buttons alone.
class ResultWindow final : public Window {
 public:
  static constexpr std::size_t kSettingRows = 17;

  /// `closed` runs after the sheet has been unloaded.
  ResultWindow(const ResultContext& context, std::function<void()> closed);

  void cmdOk_click();
  void cmdPrint_click();
  void cmdHilfe_click();

  bool filled() const { return filled_; }
  const SheetContent& content() const { return content_; }
  const Chart& chart() const { return chart_; }
  std::string chart_title() const { return word(text::chart_caption); }

  Control PicSchalt{*this, "PicSchalt"};
  Control cmdHilfe{*this, "cmdHilfe"};
  Control cmdPrint{*this, "cmdPrint"};
  Control cmdOk{*this, "cmdOk"};

 private:
  void close_requested() override { leave(); }
  void failed(std::string_view tag, std::exception_ptr error) override;
  void start_timer();
  void LbGrdEinst();
  void LbEinst();
  void printed(const PrintResult& result);
  void leave();

  ResultContext context_;
  std::function<void()> closed_;
  Timer start_;
  Timer testtimer_;
  SheetContent content_;
  Chart chart_;
  bool filled_ = false;
};

}  // namespace tonarix
