#pragma once

#include <functional>
#include <string>

#include "base/window.h"
#include "host/error_report.h"
#include "host/language.h"
#include "host/server.h"
#include "host/text_tables.h"
#include "settings/exercises.h"
#include "settings/settings.h"

namespace tonarix {

/// What the first window works with. All of it outlives the window.
struct SelectionContext {
  WindowContext common;
  Server& server;
  Language& language;
  TextTables& tables;
  ErrorReport& errors;
  Settings& settings;
  int screen_width = 1024;  ///< pixels

  /// Opens the settings window, or throws when it can't.
  std::function<void(SettingsKind)> open_settings;
  std::function<void()> show_help;
  /// Ends the process.
  std::function<void()> quit;
  /// Whether the exercise can be practised.
  std::function<bool(const ExerciseRow&)> available;
  /// Hands the host to its companion object, where the host has one.
  std::function<void(Host&)> join_companion;
  /// The language and the user are known.
  std::function<void()> started = {};
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
  /// The same way out as `cmdEnde`, so that the host gets control back.
  void close_requested() override;
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
  Settings& settings() { return context_.settings; }

  SelectionContext context_;
  Timer start_;
};

}  // namespace tonarix
