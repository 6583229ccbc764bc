#include "app/module.h"

#include <map>

#include "config/einstellung1.h"
#include "exercises/determine/arbeitsblatt1.h"
#include "results/result_window.h"
#include "settings/settings_tables.h"

namespace tonarix {

namespace {

bool can_be_practised(const ExerciseRow& row) {
  return row.window == "arbeitsblatt1";
}

}  // namespace

Module::Module(Outside outside)
    : outside_(std::move(outside)),
      server_(outside_.create_host, outside_.application),
      errors_(server_, outside_.language, outside_.dialogs),
      protocol_(
          server_, outside_.clock, outside_.documents, outside_.folders,
          [this](std::string_view tag, std::exception_ptr error) { errors_.log(tag, error); }) {
  outside_.windows.on_empty = outside_.quit;
}

Module::~Module() {
  outside_.windows.clear();
}

void Module::open() {
  SelectionContext context{outside_.scheduler,
                           outside_.windows,
                           server_,
                           outside_.language,
                           tables_,
                           errors_,
                           outside_.dialogs,
                           settings_,
                           outside_.screen_width,
                           [this](SettingsKind kind) { open_settings(kind); },
                           [this] { show_help(); },
                           outside_.quit,
                           can_be_practised,
                           {}};
  outside_.windows.open(std::make_unique<SelectionWindow>(std::move(context))).load();
}

void Module::load_names() {
  if (interval_names_) return;
  interval_names_.emplace(outside_.language);
  tone_names_.emplace(outside_.language);
}

void Module::open_settings(SettingsKind kind) {
  if (kind != SettingsKind::einstellung1) {
    throw RuntimeError(RuntimeError::kOther, "This exercise has no settings window",
                       "open_settings");
  }
  load_names();
  const SettingsContext context{outside_.scheduler,
                                outside_.windows,
                                outside_.language,
                                server_,
                                errors_,
                                outside_.dialogs,
                                midi_,
                                outside_.devices,
                                midi_event_,
                                settings_,
                                saved_training_,
                                statistics_,
                                best_,
                                tables_,
                                *interval_names_,
                                [this] { protocol_.ProtokollNeu(); },
                                [this](SettingsWindow& caller) { open_exercise(caller); },
                                [this] { outside_.windows.at(0)->show(); },
                                [this](const std::string&) { show_help(); },
                                outside_.put_listing};
  outside_.windows.open(std::make_unique<Einstellung1>(context));
  outside_.scheduler.post([this] { tell_sound_problem(); });
}

void Module::open_exercise(SettingsWindow& caller) {
  const ExerciseContext context{
      .scheduler = outside_.scheduler,
      .windows = outside_.windows,
      .texts = outside_.language,
      .server = server_,
      .errors = errors_,
      .dialogs = outside_.dialogs,
      .clock = outside_.clock,
      .chance = outside_.chance,
      .midi = midi_,
      .midi_event = midi_event_,
      .settings = settings_,
      .saved_training = saved_training_,
      .key = key_,
      .row = row_,
      .statistics = statistics_,
      .best = best_,
      .protocol = protocol_,
      .tone_names = *tone_names_,
      .interval_names = *interval_names_,
      .caller = {.training_saved = [&caller] { caller.training_saved(); },
                 .training_finished = [&caller] { caller.training_finished(); },
                 .show_again = [&caller] { caller.show_again(); }},
      .open_result = [this](std::function<void()> closed) { open_result(std::move(closed)); }};
  outside_.windows.open(std::make_unique<Arbeitsblatt1>(context));
}

void Module::open_result(std::function<void()> closed) {
  const ResultContext context{outside_.scheduler,
                              outside_.windows,
                              outside_.language,
                              server_,
                              errors_,
                              outside_.dialogs,
                              outside_.clock,
                              settings_,
                              statistics_,
                              *interval_names_,
                              outside_.printer,
                              outside_.computer_user,
                              [this] { show_help(); }};
  outside_.windows.open(std::make_unique<ResultWindow>(context, std::move(closed)));
}

void Module::tell_sound_problem() {
  if (sound_problem_told_ || !outside_.sound_problem) return;
  const auto problem = outside_.sound_problem();
  if (!problem) return;
  sound_problem_told_ = true;
  outside_.dialogs.show(
      {"Tonarix 2000", outside_.language.Wort(*problem), MessageStyle::warning, "", ""},
      [](Reply) {});
}

void Module::show_help() {
  static const std::map<std::string, TextKey> kHelp{{"grd_einst", 1283_text},
                                                    {"einstellung1", 1284_text},
                                                    {"arbeitsblatt1", 1285_text},
                                                    {"testergebnis", 1286_text}};
  const Window* newest = outside_.windows.newest();
  const auto found = newest != nullptr ? kHelp.find(newest->name()) : kHelp.end();
  if (found == kHelp.end()) return;
  outside_.dialogs.show({outside_.language.Wort(1282_text), outside_.language.Wort(found->second),
                         MessageStyle::plain, "", ""},
                        [](Reply) {});
}

}  // namespace tonarix
