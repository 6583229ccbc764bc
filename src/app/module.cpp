#include "app/module.h"

#include "app/exercise_windows.h"
#include "base/module_texts.h"
#include "base/runtime_error.h"
#include "host/help_file.h"
#include "results/result_window.h"
#include "settings/settings_tables.h"

namespace tonarix {

Module::Module(Outside outside)
    : outside_(std::move(outside)),
      server_(outside_.create_host, outside_.application),
      errors_(server_, outside_.language, outside_.dialogs),
      protocol_(
          server_, outside_.clock, outside_.documents, outside_.folders,
          [this](std::string_view tag, std::exception_ptr error) { errors_.log(tag, error); }),
      interrupted_(outside_.scheduler, server_, errors_, outside_.language, outside_.dialogs) {
  outside_.windows.on_empty = outside_.quit;
}

Module::~Module() {
  outside_.windows.clear();
}

void Module::open() {
  SelectionContext context{.common = window_context(),
                           .server = server_,
                           .language = outside_.language,
                           .tables = tables_,
                           .errors = errors_,
                           .settings = settings_,
                           .screen_width = outside_.screen_width,
                           .open_settings = [this](SettingsKind kind) { open_settings(kind); },
                           .show_help = [this] { show_help(); },
                           .quit = outside_.quit,
                           .available = can_be_practised,
                           .join_companion = {},
                           .started = [this] { take_up_interrupted(); }};
  auto& window = outside_.windows.open(std::make_unique<SelectionWindow>(std::move(context)));
  selection_ = WindowRef(window);
  window.load();
}

void Module::take_up_interrupted() {
  outside_.scheduler.post([this] {
    try {
      interrupted_.take_up(outside_.kept, outside_.documents, outside_.folders);
    } catch (const std::exception&) {
      errors_.log("take_up.", std::current_exception());
    }
    for (const std::filesystem::path& file : outside_.kept.take_damaged()) {
      outside_.dialogs.show(warning(file.empty() ? outside_.language.Wort(text::kept_file_empty)
                                                 : outside_.language.Wort(text::kept_file_damaged) +
                                                       "\n" + file.string()),
                            [](Reply) {});
    }
  });
}

void Module::end_session() {
  if (std::exchange(session_ended_, true)) return;
  const auto step = [this](const auto& work) {
    try {
      work();
    } catch (const std::exception&) {
      errors_.log("end_session.", std::current_exception());
    }
  };
  WindowList& windows = outside_.windows;
  for (int i = windows.count() - 1; i >= 0; --i) {
    windows.at(i)->on_changed = nullptr;
    step([&] { windows.at(i)->session_ends(); });
  }
  // The windows stay as they are until the program takes them down.
  WindowList none(outside_.scheduler);
  step([&] { server_.ServerMenue(none); });
}

WindowContext Module::window_context() const {
  return {.scheduler = outside_.scheduler,
          .windows = outside_.windows,
          .texts = outside_.language,
          .dialogs = outside_.dialogs};
}

void Module::load_names() {
  if (interval_names_) return;
  interval_names_.emplace(outside_.language);
  tone_names_.emplace(outside_.language);
}

void Module::open_settings(SettingsKind kind) {
  const SettingsFactory* factory = settings_factory(kind);
  if (factory == nullptr) {
    throw RuntimeError(RuntimeError::kOther, "This exercise has no settings window",
                       "open_settings");
  }
  load_names();
  const SettingsContext context{
      .common = window_context(),
      .server = server_,
      .errors = errors_,
      .midi = midi_,
      .devices = outside_.devices,
      .midi_event = midi_event_,
      .settings = settings_,
      .saved_training = saved_training_,
      .statistics = statistics_,
      .best = best_,
      .tables = tables_,
      .interval_names = *interval_names_,
      .ProtokollNeu = [this] { protocol_.ProtokollNeu(); },
      .open_exercise = [this](SettingsWindow& caller) { open_exercise(caller); },
      .show_selection =
          [this] {
            if (auto* window = selection_.get()) window->show();
          },
      .send_keys = [this](const std::string&) { show_help(); },
      .put_listing = outside_.put_listing};
  outside_.windows.open(factory->make(context));
  if (exercise_row(settings_).sounds()) outside_.scheduler.post([this] { tell_sound_problem(); });
}

void Module::open_exercise(SettingsWindow& caller) {
  const ExerciseFactory* factory = exercise_factory(exercise_row(settings_));
  if (factory == nullptr) {
    throw RuntimeError(RuntimeError::kOther, "This exercise has no window", "open_exercise");
  }
  const WindowRef ref(caller);
  const ExerciseContext context{
      .common = window_context(),
      .server = server_,
      .errors = errors_,
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
      .kept = outside_.kept,
      .interrupted = interrupted_,
      .tone_names = *tone_names_,
      .interval_names = *interval_names_,
      .caller = {.training_saved =
                     [ref] {
                       if (auto* window = ref.get()) window->training_saved();
                     },
                 .training_finished =
                     [ref] {
                       if (auto* window = ref.get()) window->training_finished();
                     },
                 .show_again =
                     [this, ref] {
                       if (auto* window = ref.get()) return window->show_again();
                       if (auto* first = selection_.get()) first->show();
                     }},
      .help_page = [this](std::string_view stem) { return help_page(stem); },
      .show_help = [this](const std::function<void()>& closed) { show_help(closed); },
      .open_result = [this](
                         const WorkDone& work,
                         std::function<void()> closed) { open_result(work, std::move(closed)); }};
  outside_.windows.open(factory->make(context));
}

void Module::open_result(const WorkDone& work, std::function<void()> closed) {
  const ResultContext context{.common = window_context(),
                              .server = server_,
                              .errors = errors_,
                              .clock = outside_.clock,
                              .settings = settings_,
                              .statistics = statistics_,
                              .interval_names = *interval_names_,
                              .work = work,
                              .printer = outside_.printer,
                              .computer_user = outside_.computer_user,
                              .show_help = [this] { show_help(); }};
  outside_.windows.open(std::make_unique<ResultWindow>(context, std::move(closed)));
}

void Module::tell_sound_problem() {
  if (sound_problem_told_ || !outside_.sound_problem) return;
  const auto problem = outside_.sound_problem();
  if (!problem) return;
  sound_problem_told_ = true;
  outside_.dialogs.show(warning(outside_.language.Wort(*problem)), [](Reply) {});
}

std::optional<RichText> Module::help_page(std::string_view stem) {
  std::string reason;
  auto page = read_help(outside_.program_data, outside_.language, stem, &reason);
  if (!page) {
    errors_.log("help_page.", std::make_exception_ptr(
                                  RuntimeError(RuntimeError::kPathError, reason, "help_page")));
  }
  return page;
}

void Module::show_help(const std::function<void()>& closed) {
  const Window* newest = outside_.windows.newest();
  const auto help = newest != nullptr ? help_for(newest->name()) : std::nullopt;
  if (!help) return closed();
  outside_.dialogs.show({outside_.language.Wort(text::help_caption), outside_.language.Wort(*help),
                         MessageStyle::plain, "", ""},
                        [closed](Reply) { closed(); });
}

}  // namespace tonarix
