#include <QApplication>
#include <QtGlobal>
#include <cstdlib>
#include <cstring>
#include <iostream>

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

std::vector<tonarix::LanguageRow> installed_languages() {
  try {
    return tonarix::catalogue_folder(tonarix::catalogue_place()).create_list()->languages();
  } catch (const std::exception&) {
    return {};
  }
}

/// One line when there are catalogues but not of the language asked for; without any the program
/// runs without texts.
bool language_missing(const std::string& name) {
  const auto languages = installed_languages();
  if (languages.empty()) {
    std::cerr << "vemo06: no language catalogues in " << tonarix::catalogue_place().string()
              << "; every text will read VOID.\n";
    return false;
  }
  std::string known;
  for (const auto& language : languages) {
    if (language.name == name) return false;
    known += (known.empty() ? "" : ", ") + language.name;
  }
  std::cerr << "vemo06: --language: \"" << name << "\" is not one of " << known << ".\n";
  return true;
}

void quiet_qt(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) {
    const char* display = std::getenv("DISPLAY");
    std::cerr << "vemo06: the display" << (display != nullptr ? std::string(" ") + display : "")
              << " can't be opened.\n";
    std::_Exit(1);
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
  if (language_missing(options.language)) return 2;
  if (display_missing()) {
    std::cerr << "vemo06: no display; the program needs a graphical session.\n";
    return 1;
  }
  qInstallMessageHandler(quiet_qt);
  int one = 1;  // the options are our own; Qt gets the name alone
  QApplication application(one, argv);
  application.setQuitOnLastWindowClosed(false);
  tonarix::theme::apply(application);
  tonarix::Program program(options);
  const tonarix::SessionEnd session_end(application, program);
  program.open();
  return application.exec();
}
