#pragma once

#include "base/texts.h"
#include "engine/exercise_controls.h"
#include "engine/material/frequency_box.h"
#include "engine/task_answers.h"
#include "settings/settings.h"

namespace tonarix {

/// What an exercise window shows of how the exercise stands: its counts, the bar of a
/// training, the tasks and the time left of a test.
class Standing {
 public:
  Standing(ExerciseControls& controls, const Texts& texts, const FrequencyBox& box)
      : controls_(controls), texts_(texts), box_(box) {}

  void prepare(Level level);
  /// Right and wrong answers.
  void show_counts(const TaskAnswers::Counts& counts);
  void show_training();
  /// Panel 0 the status, 1 solved, 2 too difficult.
  void show_panel(int panel);
  void show_test();
  /// The lines of a test are hidden and shown by its two buttons.
  void show_test_lines(bool shown);

 private:
  ExerciseControls& controls_;
  const Texts& texts_;
  const FrequencyBox& box_;
};

}  // namespace tonarix
