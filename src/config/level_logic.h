#pragma once

#include <exception>
#include <functional>
#include <string>

#include "config/choices.h"
#include "config/frames.h"
#include "config/settings_context.h"

namespace tonarix {

/// What the exercise level does to a settings window: it fills the two lists, presets, locks, and
/// gives back what an exam took.
class LevelLogic {
 public:
  using Tell = std::function<void(const std::string& text)>;

  LevelLogic(const SettingsContext& context, SettingsKind kind, SettingsControls& controls,
             Choices& choices, Frames& frames, Tell tell);

  /// Fills both lists and begins at the free level.
  void begin();
  /// Where no training is offered it is looked for again: it may be readable now, or stored by now.
  void look_again();
  /// What the status line says while nothing newer stands there; empty when all is well.
  std::string standing_line() const;
  /// Another level, another exam has been chosen.
  void level_chosen();
  void exam_chosen();
  /// The window is left: an exam's fields go back.
  void leave();
  /// The saved training is used up: level 2 is off, level 1 chosen.
  void training_finished();
  /// The training can be gone on with: the list gets its five captions and the level in force.
  void training_saved();

 private:
  void look_for_training();
  void fill_levels(RecordRead saved);
  void continue_training();
  void restore();
  void restore_failed(std::exception_ptr error);
  void give_back();

  const SettingsContext& context_;
  Settings& settings_;
  SettingsKind kind_;
  SettingsControls& controls_;
  Choices& choices_;
  Frames& frames_;
  Tell tell_;
  RecordRead saved_ = RecordRead::none;  ///< the training that the list tells of
  Level before_ = Level::free;
};

}  // namespace tonarix
