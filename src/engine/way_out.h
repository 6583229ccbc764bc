#pragma once

#include <functional>
#include <string>

#include "engine/exercise_context.h"
#include "engine/exercise_controls.h"
#include "engine/keeping.h"
#include "engine/training_record.h"

namespace tonarix {

/// Says that a moment is needed, and later that it is over. The window can be moved and read.
void show_wait(Window& window, ExerciseControls& controls, bool waiting);

/// The last steps of an exercise: the end of a training, keeping it, the result sheet, the
/// protocol, and back to the settings.
class WayOut {
 public:
  WayOut(const ExerciseContext& context, Window& window, ExerciseControls& controls, Waits& waits,
         Keeping& keeping)
      : context_(context), window_(window), controls_(controls), waits_(waits), keeping_(keeping) {}

  /// Stores the training and says whether it could.
  using Keep = std::function<Sequence(bool& kept)>;
  /// Walks to the end; `work` goes on the sheet. `keep` is empty where there is nothing to keep,
  /// and then nothing is asked. `former`: whether another saved training would go, which the
  /// question says.
  Sequence leave(WorkDone work, Keep keep, RecordRead former);
  /// Asks whether the student breaks off a test or exam: it can't be gone on with, so a slip must
  /// not end it. Its time goes on meanwhile.
  Sequence ask_to_break_off(bool& breaks_off);
  /// Marks the training that is solved, or too hard, as used up. The list of the settings window
  /// follows the store; while the store is silent it stays.
  Sequence finish_training(TrainingRecord& training);
  /// True while leaving has to wait: for an answer, or until a record is stored.
  bool held() const { return held_; }
  /// What can still be done is done: the student is told and is back at the settings.
  void give_up(std::string_view tag, std::exception_ptr error);

 private:
  Sequence ask_to_save(Keep keep, RecordRead former);
  Sequence write_protocol();
  FinishResult close_protocol();
  void go_back();
  void hold(bool on) { controls_.zurueck.enabled = !(held_ = on); }
  std::string Wort(TextKey nr) const { return context_.common.texts.Wort(nr); }

  const ExerciseContext& context_;
  Window& window_;
  ExerciseControls& controls_;
  Waits& waits_;
  Keeping& keeping_;
  bool held_ = false;
  bool protocol_closed_ = false;
  bool protocol_written_ = false;
};

}  // namespace tonarix
