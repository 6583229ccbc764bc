#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "base/dialogs.h"
#include "base/window.h"
#include "host/error_report.h"
#include "host/language.h"
#include "host/server.h"
#include "host/text_tables.h"

namespace tonarix {

enum class SettingsWindowKind { einstellung1, einstellung2, einstellung1b };

/// The fields of the settings record that the first window writes.
struct SelectionFields {
  std::int16_t& Theoriewahl;
  std::int16_t& ueb_typ;
  std::array<std::int16_t, 10>& tempo_ms;
  bool& supervisor;
  bool& klein_bildschirm;
};

/// What the first window works with. All of it outlives the window.
struct SelectionContext {
  Scheduler& scheduler;
  WindowList& windows;
  Server& server;
  Language& language;
  TextTables& tables;
  ErrorReport& errors;
  Dialogs& dialogs;
  SelectionFields fields;
  std::array<std::int16_t, 10> tempo_beats;  ///< milliseconds, by `tempo`
  int screen_width = 1024;                   ///< pixels

  /// Opens the settings window, or throws when it can't.
  std::function<void(SettingsWindowKind)> open_settings;
  std::function<void()> show_help;
  /// Ends the process.
  std::function<void()> quit;
  /// Whether the exercise of this study (0, 1) and kind (1 to 4) can be practised.
  std::function<bool(int Theoriewahl, int ueb_typ)> available;
  /// Hands the host to its companion object, where the host has one.
  std::function<void(Host&)> join_companion;
};

/// The window the module opens with: what is to be practised. Its options lie open where there is
/// an exercise behind them.
class SelectionWindow final : public Window {
 public:
  explicit SelectionWindow(SelectionContext context);

  /// Connects to the host, then starts `start`. When the host does not want the module, the window
  /// hides, says "Status " with the number, and ends the process.
  void load();

  void Theoriewahl_click(int index);
  void ueb_typ_click(int index);
  void cmdOk_click();
  void cmdEnde_click();
  void cmdHilfe_click();
  /// The same way out as `cmdEnde`, so that the host gets control back.
  void title_bar_close() override;

  /// Caption of the chosen option, for the head of the result sheet.
  const std::string& chosen_theory() const;
  const std::string& chosen_exercise() const;

  // In the order of reading, which is the order of the Tab key.
  ControlArray<OptionControl, 0, 1> Theoriewahl{*this, "Theoriewahl"};
  Control grdeinst_lb{*this, "grdeinst_lb"};
  ControlArray<OptionControl, 1, 4> ueb_typ{*this, "ueb_typ"};
  Control version{*this, "version"};
  Control PicAktion{*this, "PicAktion"};  ///< holds the buttons
  Control cmdHilfe{*this, "cmdHilfe"};
  Control cmdEnde{*this, "cmdEnde"};
  Control cmdOk{*this, "cmdOk"};

 protected:
  void failed(std::string_view tag, std::exception_ptr error) override;

 private:
  Sequence refuse(int status);
  Sequence start_up();
  Sequence begin();
  Sequence leave();
  void set_captions();
  void choose_theory(int index);
  void choose_exercise(int index);
  void offer_exercises();
  SettingsWindowKind wanted_settings() const;

  SelectionContext context_;
  Timer start_;
  bool leaving_ = false;
};

}  // namespace tonarix
