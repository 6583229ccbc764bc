#pragma once

#include <functional>

#include "base/scheduler.h"
#include "base/texts.h"
#include "engine/exercise_controls.h"

namespace tonarix {

/// The offer of the next task: a button, or in the automatic order a line and a short wait.
class NextTask {
 public:
  /// `go_on` runs when the wait of the automatic order is over.
  NextTask(Scheduler& scheduler, ExerciseControls& controls, std::function<void()> go_on);

  /// Names the task that comes after `tasks` tasks.
  void name(const Texts& texts, int tasks);
  void offer(bool automatic);
  void withdraw();
  /// Pause before the next task in the automatic order, milliseconds.
  std::int16_t pause_ms() const;

 private:
  ExerciseControls& controls_;
  Timer WahlAutomat_;
};

}  // namespace tonarix
