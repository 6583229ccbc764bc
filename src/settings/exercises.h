#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/text_key.h"
#include "settings/settings.h"

namespace tonarix {

/// The three settings windows.
enum class SettingsKind : std::uint8_t { einstellung1, einstellung2, einstellung1b };
inline constexpr int kSettingsKinds = 3;

/// One exercise of the module.
struct ExerciseRow {
  Study study;
  ExerciseKind kind;
  SettingsKind settings;    ///< the window where it is set up
  std::string_view window;  ///< the window where it is done
  TextKey caption;          ///< its option on the first window
  TextKey title;            ///< its name in titles, on the sheet and in the protocol
  std::string_view record;  ///< what the short keys of its store records end with
  /// False where the row is written and nothing sounds.
  constexpr bool sounds() const { return study == Study::ear; }
};

// clang-format off
inline constexpr std::array<ExerciseRow, 6> kExercises{{
    // study       kind                       settings window              window            caption   title     record
    {Study::ear,    ExerciseKind::determine, SettingsKind::einstellung1,  "arbeitsblatt1",  154_text, 291_text, "1"},
    {Study::ear,    ExerciseKind::build,     SettingsKind::einstellung2,  "arbeitsblatt2",  160_text, 292_text, "2"},
    {Study::ear,    ExerciseKind::play,      SettingsKind::einstellung1,  "arbeitsblatt3",  496_text, 293_text, "3"},
    {Study::ear,    ExerciseKind::write,     SettingsKind::einstellung1,  "arbeitsblatt4",  690_text, 715_text, "4"},
    {Study::theory, ExerciseKind::determine, SettingsKind::einstellung1b, "arbeitsblatt1b", 154_text, 291_text, "1b"},
    {Study::theory, ExerciseKind::write,     SettingsKind::einstellung1b, "arbeitsblatt4b", 690_text, 715_text, "4b"},
}};
// clang-format on

/// The row of an exercise, nullptr where the study does not have the kind.
const ExerciseRow* find_exercise(Study study, ExerciseKind kind);
/// The row of the exercise that is chosen; RuntimeError 9 when there is none.
const ExerciseRow& exercise_row(const Settings& settings);

/// Short key of a store record of the chosen exercise: 'E' for the settings, 'A' for the state:
/// "E1", "A4b".
std::string record_key(char record, const Settings& settings);

}  // namespace tonarix
