#include "app/program.h"

#include <pwd.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QScreen>
#include <array>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <iostream>

#include "base/module_texts.h"
#include "base/system_failure.h"
#include "base/windows/accessibility.h"
#include "config/windows/einstellung1_view.h"
#include "config/windows/einstellung2_view.h"
#include "config/windows/selection_view.h"
#include "exercises/build/windows/arbeitsblatt2_view.h"
#include "exercises/determine/windows/arbeitsblatt1_view.h"
#include "exercises/play/windows/arbeitsblatt3_view.h"
#include "host/local/catalogue_folder.h"
#include "protocol/file_in_making.h"
#include "results/windows/result_view.h"

namespace tonarix {

namespace {

std::uint64_t clock_seed() {
  return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

/// "name on computer"
std::string computer_user() {
  const passwd* entry = getpwuid(getuid());
  std::array<char, HOST_NAME_MAX + 1> host{};
  gethostname(host.data(), host.size() - 1);
  std::string user = entry != nullptr ? entry->pw_name : "?";
  return host[0] != '\0' ? user + " (" + host.data() + ")" : user;
}

std::optional<TextKey> put_into_diagnostics(const std::string& document) {
  std::clog.clear();  // a pipe that was full may take more again
  std::clog << document << std::flush;
  if (!std::clog) return {};
  return text::diagnostic_stream;
}

LocalHostOptions host_options(const Options& options) {
  return {.folder = options.data,
          .user = options.user,
          .role = options.role,
          .language = options.language.value_or(""),
          .midi = options.midi};
}

}  // namespace

CivilTime SystemClock::now() const {
  const std::time_t moment = std::time(nullptr);
  std::tm local{};
  localtime_r(&moment, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

Server::Application application_facts() {
  Server::Application facts;
  facts.executable = "vemo06";
  facts.title = "Tonarix 2000";
  return facts;
}

std::filesystem::path catalogue_place() {
  const std::filesystem::path program =
      std::filesystem::read_symlink("/proc/self/exe").parent_path();
  for (const auto& place :
       {program / "lang", program / ".." / "lang", program / ".." / ".." / "lang",
        std::filesystem::path("/usr/share/tonarix/lang")}) {
    if (holds_catalogues(place)) return place;
  }
  return program / "lang";
}

Program::Program(const Options& options)
    : data_(options.data),
      chance_(clock_seed()),
      windows_(scheduler_),
      language_(catalogue_folder(catalogue_place())),
      key_repeats_(*QCoreApplication::instance()),
      presenter_(windows_),
      dialogs_(scheduler_, language_, presenter_),
      printer_(scheduler_, language_, presenter_),
      kept_(data_),
      devices_(scheduler_,
               [this](Scheduler::Task task) { scheduler_.post_from_thread(std::move(task)); }),
      host_(host_options(options), clock_),
      module_(outside()) {
  install_accessibility();
  language_.on_chosen = [this] {
    toolkit_texts_.speak(to_qstring(language_.Wort(text::toolkit_language)));
  };
  presenter_.add<SelectionWindow, SelectionView>("grd_einst", language_);
  presenter_.add<Einstellung1, Einstellung1View>("einstellung1", language_);
  presenter_.add<Einstellung2, Einstellung2View>("einstellung2", language_);
  presenter_.add<Arbeitsblatt1, Arbeitsblatt1View>("arbeitsblatt1", language_);
  presenter_.add<Arbeitsblatt2, Arbeitsblatt2View>("arbeitsblatt2", language_);
  presenter_.add<Arbeitsblatt3, Arbeitsblatt3View>("arbeitsblatt3", language_);
  presenter_.add<ResultWindow, ResultView>("testergebnis", language_);
}

Program::~Program() = default;

Outside Program::outside() {
  return {.scheduler = scheduler_,
          .windows = windows_,
          .language = language_,
          .clock = clock_,
          .chance = chance_,
          .dialogs = dialogs_,
          .devices = devices_,
          .documents = documents_,
          .kept = kept_,
          .printer = printer_,
          .create_host = host_.factory(),
          .folders = {.protocols = protocol_folder(), .data = data_},
          .program_data = catalogue_place().parent_path(),
          .application = application_facts(),
          .computer_user = computer_user(),
          .screen_width = QGuiApplication::primaryScreen()->size().width(),
          .sound_problem = [this] { return sound_problem(); },
          .put_listing = put_into_diagnostics,
          .quit = [] { QCoreApplication::exit(0); }};
}

void Program::open() {
  module_.open();
  scheduler_.post([this] {
    for (const auto& folder : {protocol_folder(), data_}) clear_leftovers(folder);
  });
  scheduler_.post(milliseconds(0), [this] { tell_problems(); });
}

std::optional<TextKey> Program::sound_problem() const {
  switch (devices_.problem()) {
    case Synthesizer::Problem::none:
      return {};
    case Synthesizer::Problem::no_sound_font:
      return text::no_sound_font;
    case Synthesizer::Problem::damaged_sound_font:
      return text::damaged_sound_font;
    case Synthesizer::Problem::no_sound_hardware:
      return text::no_sound_output;
  }
  return {};
}

void Program::tell_problems() {
  for (const Problem& problem : host_.problems()) {
    if (!problem.reason.empty()) {
      std::clog << "vemo06: " << problem.detail << ": " << problem.reason << std::endl;
    }
    std::string told = language_.Wort(problem.text) + "\n" + problem.detail;
    if (problem.error) told += "\n" + failure_words(language_, problem.error);
    dialogs_.show(warning(told), [](Reply) {});
  }
}

}  // namespace tonarix
