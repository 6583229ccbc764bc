#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "base/text_key.h"
#include "config/settings_window.h"
#include "engine/exercise_context.h"
#include "settings/exercises.h"

namespace tonarix {

/// How the window of an exercise comes into being.
struct ExerciseFactory {
  std::string_view window;  ///< as the table of exercises names it
  TextKey help;
  std::unique_ptr<Window> (*make)(const ExerciseContext& context);
};

/// The same for a settings window.
struct SettingsFactory {
  SettingsKind kind;
  std::string_view window;
  TextKey help;
  std::unique_ptr<Window> (*make)(const SettingsContext& context);
};

/// The window where the exercise is done, nullptr while there is none. What has both its windows
/// can be practised.
const ExerciseFactory* exercise_factory(const ExerciseRow& row);
const SettingsFactory* settings_factory(SettingsKind kind);
bool can_be_practised(const ExerciseRow& row);

/// The help text for a window, nothing where there is none.
std::optional<TextKey> help_for(std::string_view window);

}  // namespace tonarix
