#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/delay.h"
#include "base/scheduler.h"
#include "base/sequence.h"
#include "engine/exercise_context.h"
#include "protocol/kept_exercise.h"

namespace tonarix {

/// Keeps the running exercise for the case that the program ends without its way out: after each
/// task the protocol so far and, in a training, its state. Whose it is and what the store held is
/// as it was when the exercise began.
class Keeping {
 public:
  Keeping(const ExerciseContext& context, const Window& window);

  /// A task is done to its end. `training` as it stands now; nothing where there is none to go on
  /// with. It is kept by a posted task, off the answer's path.
  void task_done(int tasks, const std::optional<SavedTraining>& training);
  /// What waits to be kept is kept now, before the protocol goes on.
  void now();
  /// The training is saved, or not wanted: it is not offered again.
  void settle_training();
  /// An error ends the training: as it stood after its last task it is stored, and the student is
  /// told. `show_wait` says that a busy host is waited for, and later that it is over.
  Sequence tell_interrupted(Waits& waits, std::function<void(bool)> show_wait);

  /// The exercise has come to its end. Only a training that nobody could settle stays kept, and a
  /// protocol that no place took.
  void finish(bool protocol_written);
  /// The way out has failed: all stays kept for the next start.
  void leave_behind();
  /// The session ends: the protocol is written without a question, and the training stays kept.
  void end_session();

 private:
  /// What is kept of the protocol: as it stands, which is to be asked between two tasks; as it was
  /// kept last; nothing where it lies in its place.
  enum class Document : std::uint8_t { as_it_stands, as_kept, none };
  void keep(Document document);
  void write(Document document);
  std::string caption() const;

  const ExerciseContext& context_;
  const Window& window_;
  Timer due_;
  KeptExercise kept_;
  std::optional<KeptTraining> begun_;  ///< as the exercise found the store
  std::optional<SavedTraining> training_;
  bool lies_kept_ = false;  ///< as it stands now
  bool over_ = false;
};

}  // namespace tonarix
