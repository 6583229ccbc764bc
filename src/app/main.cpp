#include <QApplication>
#include <QtGlobal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "app/language_choice.h"
#include "app/options.h"
#include "app/program.h"
#include "app/session_end.h"
#include "base/windows/theme.h"
#include "host/local/catalogue_folder.h"

namespace {

using tonarix::Options;

/// True when there is a folder for the data. Records must not lie wherever the program was started.
bool find_data_folder(Options& options) {
  if (options.data.empty()) options.data = tonarix::usual_data_folder().value_or("");
  if (!options.data.empty()) return true;
  std::cerr << "vemo06: no folder for your records: HOME names none. "
               "Set HOME, or name a folder with --data.\n";
  return false;
}

/// Without a display Qt would end the process with a page of text; one line says it better.
bool display_missing() {
  const auto given = [](const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0';
  };
  return !given("DISPLAY") && !given("WAYLAND_DISPLAY") && !given("QT_QPA_PLATFORM");
}

int list_midi(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  tonarix::QtScheduler scheduler;
  tonarix::SystemDevices devices(scheduler, [](tonarix::Scheduler::Task) {});
  int number = 0;
  for (const auto& device : devices.list()) {
    std::cout << number++ << "  " << device.name << '\n';
  }
  return 0;
}

/// Only the terminal can be told.
int tell_terminal(const std::string& line, int result) {
  std::cerr << "vemo06: " << line << '\n';
  return result;
}

tonarix::FoundCatalogues find_catalogues() {
  const std::filesystem::path folder = tonarix::catalogue_place().lexically_normal();
  tonarix::FoundCatalogues found{folder.string(), {}, tonarix::damaged_catalogues(folder)};
  for (const auto& row : tonarix::catalogue_folder(folder).create_list()->languages()) {
    found.languages.push_back(row.name);
  }
  return found;
}

void quiet_qt(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) {
    const char* display = std::getenv("DISPLAY");
    const std::string name = display != nullptr ? std::string(" ") + display : "";
    std::_Exit(tell_terminal("the display" + name +
                                 " can't be opened. Start the program from the desktop, or set "
                                 "DISPLAY to a display that runs and lets you in.",
                             1));
  }
  if (std::getenv("QT_LOGGING_RULES") != nullptr) std::cerr << text.toStdString() << '\n';
}

}  // namespace

int main(int argc, char* argv[]) {
  Options options;
  if (const auto error = tonarix::parse_options({argv + 1, argv + argc}, options)) {
    std::cerr << error->line << '\n';
    return 2;
  }
  switch (options.task) {
    case Options::Task::list_midi:
      return list_midi(argc, argv);
    case Options::Task::show_version:
      std::cout << "vemo06 " << tonarix::application_facts().version() << '\n';
      return 0;
    case Options::Task::show_help:
      std::cout << tonarix::help_text();
      return 0;
    case Options::Task::open_module:
      break;
  }
  if (!find_data_folder(options)) return 2;
  const auto [language, trouble] = tonarix::choose_language(options.language, find_catalogues());
  if (!trouble.empty()) tell_terminal(trouble, 2);
  if (language.empty()) return 2;
  options.language = language;
  if (display_missing()) {
    return tell_terminal(
        "there is no display. Start the program from the desktop; over the network, connect with "
        "\"ssh -X\" first.",
        1);
  }
  qInstallMessageHandler(quiet_qt);
  int one = 1;  // the options are our own; Qt gets the name alone
  QApplication application(one, argv);
  application.setQuitOnLastWindowClosed(false);
  tonarix::theme::apply(application);
  tonarix::Program program(options);
  const tonarix::SessionEnd session_end(application, program);
  program.open();
  if (!trouble.empty()) program.tell(trouble);  // whoever has not started it in a terminal
  return application.exec();
}
