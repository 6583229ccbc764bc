#include "app/exercise_windows.h"

#include <algorithm>
#include <array>

#include "base/module_texts.h"
#include "config/einstellung1.h"
#include "config/einstellung2.h"
#include "exercises/build/arbeitsblatt2.h"
#include "exercises/determine/arbeitsblatt1.h"
#include "exercises/play/arbeitsblatt3.h"

namespace tonarix {

namespace {

template <typename Kind, typename Context>
std::unique_ptr<Window> make(const Context& context) {
  return std::make_unique<Kind>(context);
}

// clang-format off
constexpr std::array kExerciseWindows{
    // window          help       made by
    ExerciseFactory{"arbeitsblatt1", text::help_determine, make<Arbeitsblatt1>},
    ExerciseFactory{"arbeitsblatt2", text::help_build, make<Arbeitsblatt2>},
    ExerciseFactory{"arbeitsblatt3", text::help_play, make<Arbeitsblatt3>},
};
constexpr std::array kSettingsWindows{
    // kind                                      window          help       made by
    SettingsFactory{SettingsKind::einstellung1, "einstellung1", text::help_settings, make<Einstellung1>},
    SettingsFactory{SettingsKind::einstellung2, "einstellung2", text::help_forming_settings, make<Einstellung2>},
};
// clang-format on
// A misspelt name would only ever show as an exercise that is not there yet.
static_assert(std::ranges::all_of(kExerciseWindows, [](const ExerciseFactory& factory) {
  return std::ranges::find(kExercises, factory.window, &ExerciseRow::window) != kExercises.end();
}));

struct Help {
  std::string_view window;
  TextKey text;
};
constexpr std::array kOtherHelp{Help{"grd_einst", text::help_selection},
                                Help{"testergebnis", text::help_sheet}};

template <typename Table, typename Value, typename Member>
auto* find(const Table& table, const Value& value, Member member) {
  const auto found = std::ranges::find(table, value, member);
  return found == table.end() ? nullptr : &*found;
}

}  // namespace

const ExerciseFactory* exercise_factory(const ExerciseRow& row) {
  return find(kExerciseWindows, row.window, &ExerciseFactory::window);
}

const SettingsFactory* settings_factory(SettingsKind kind) {
  return find(kSettingsWindows, kind, &SettingsFactory::kind);
}

bool can_be_practised(const ExerciseRow& row) {
  return exercise_factory(row) != nullptr && settings_factory(row.settings) != nullptr;
}

std::optional<TextKey> help_for(std::string_view window) {
  if (const auto* row = find(kExerciseWindows, window, &ExerciseFactory::window)) return row->help;
  if (const auto* row = find(kSettingsWindows, window, &SettingsFactory::window)) return row->help;
  if (const auto* row = find(kOtherHelp, window, &Help::window)) return row->text;
  return std::nullopt;
}

}  // namespace tonarix
