#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/chance.h"
#include "base/dialogs.h"
#include "base/rich_text.h"
#include "base/wall_clock.h"
#include "base/window.h"
#include "config/selection_window.h"
#include "config/settings_context.h"
#include "engine/interrupted_exercises.h"
#include "host/error_report.h"
#include "host/language.h"
#include "host/server.h"
#include "host/text_tables.h"
#include "music/interval.h"
#include "music/key.h"
#include "music/tones.h"
#include "protocol/protokoll.h"
#include "results/sheet_printer.h"
#include "settings/exercises.h"
#include "settings/saved_training.h"
#include "settings/settings.h"
#include "sound/midi.h"
#include "statistics/records.h"

namespace tonarix {

/// What the module takes from outside: clock, chance, host, devices, and the ways to the user.
struct Outside {
  Scheduler& scheduler;
  WindowList& windows;
  Language& language;
  const WallClock& clock;
  Chance& chance;
  Dialogs& dialogs;
  MidiDevices& devices;
  DocumentWriter& documents;
  KeptExercises& kept;
  SheetPrinter& printer;
  Server::HostFactory create_host;
  ProtocolFolders folders;
  std::filesystem::path program_data;  ///< where the help texts lie
  Server::Application application;
  std::string computer_user;
  int screen_width = 1024;  ///< pixels
  /// Why the chosen device is silent, told once before the first exercise.
  std::function<std::optional<TextKey>()> sound_problem;
  PutListing put_listing;
  std::function<void()> quit;
};

/// The whole exercise module but for the toolkit: the state that exists once, and the windows' way
/// from one to the next.
class Module {
 public:
  explicit Module(Outside outside);
  ~Module();

  /// Opens the first window and connects to the host.
  void open();
  /// The program ends here and now: silence, protocol and kept training first, then the host is
  /// given back control. Asks for nothing and shows nothing.
  void end_session();

  const Settings& settings() const { return settings_; }
  const TaskRow& row() const { return row_; }

 private:
  void open_settings(SettingsKind kind);
  void open_exercise(SettingsWindow& caller);
  void open_result(const WorkDone& work, std::function<void()> closed);
  WindowContext window_context() const;
  void load_names();
  void tell_sound_problem();
  void take_up_interrupted();
  std::optional<RichText> help_page(std::string_view stem);
  void show_help(const std::function<void()>& closed = [] {});

  Outside outside_;
  WindowRef<SelectionWindow> selection_;
  Server server_;
  TextTables tables_;
  ErrorReport errors_;
  Settings settings_;
  std::optional<SavedTraining> saved_training_;
  TaskRow row_;
  Key key_;
  Auswertung statistics_;
  Ergebnis best_;
  Midi midi_;
  MidiEvent midi_event_;
  Protokoll protocol_;
  InterruptedExercises interrupted_;
  std::optional<ToneNames> tone_names_;
  std::optional<IntervalNames> interval_names_;
  bool sound_problem_told_ = false;
  bool session_ended_ = false;
};

}  // namespace tonarix
