#pragma once

#include <filesystem>
#include <memory>

#include "app/module.h"
#include "app/options.h"
#include "base/chance.h"
#include "base/windows/key_repeats.h"
#include "base/windows/presenter.h"
#include "base/windows/qt_dialogs.h"
#include "base/windows/qt_scheduler.h"
#include "base/windows/toolkit_texts.h"
#include "host/local/local_host.h"
#include "protocol/kept_files.h"
#include "results/windows/qt_sheet_printer.h"
#include "sound/devices/system_devices.h"

namespace tonarix {

/// The civil time of this computer.
class SystemClock final : public WallClock {
 public:
  CivilTime now() const override;
};

/// The running program: the real clock, devices, host and windows around the module.
class Program {
 public:
  /// Needs the QApplication, and among the options a folder for its data and the language.
  explicit Program(const Options& options);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Opens the first window; the application's event loop does the rest.
  void open();

  /// A warning in a box.
  void tell(const std::string& text) {
    dialogs_.show(warning(text), [](Reply) {});
  }

  Module& module() { return module_; }
  Presenter& presenter() { return presenter_; }
  WindowList& windows() { return windows_; }

 private:
  Outside outside();
  std::optional<TextKey> sound_problem() const;
  void tell_problems();

  std::filesystem::path data_;
  QtScheduler scheduler_;
  SystemClock clock_;
  SeededChance chance_;
  WindowList windows_;
  Language language_;
  ToolkitTexts toolkit_texts_;
  KeyRepeats key_repeats_;
  Presenter presenter_;
  QtDialogs dialogs_;
  QtSheetPrinter printer_;
  FileDocumentWriter documents_;
  KeptFiles kept_;
  SystemDevices devices_;
  LocalHostHome host_;
  Module module_;
};

/// Name and version of the program, as logs and windows show them.
Server::Application application_facts();
/// Folder of the compiled catalogues: beside the program, in its build tree, or installed.
std::filesystem::path catalogue_place();

}  // namespace tonarix
