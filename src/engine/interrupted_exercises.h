#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/dialogs.h"
#include "base/scheduler.h"
#include "base/texts.h"
#include "host/error_report.h"
#include "host/server.h"
#include "protocol/kept_exercise.h"
#include "protocol/protokoll.h"

namespace tonarix {

/// The user's data in one text, to tell whose an exercise is.
std::string user_name(Server& server);

/// Exercises that came to no end of their own: their protocols go where they belong, their
/// trainings into the store, and the student is told in one box each.
class InterruptedExercises {
 public:
  /// What became of a training.
  enum class End {
    stored,
    refused,     ///< by the student
    nothing,     ///< there is none that can be gone on with, or a newer one is saved; not told
    stays_kept,  ///< the host fails; the next start tries again
  };

  InterruptedExercises(Scheduler& scheduler, Server& server, ErrorReport& errors,
                       const Texts& texts, Dialogs& dialogs)
      : scheduler_(scheduler), server_(server), errors_(errors), texts_(texts), dialogs_(dialogs) {}

  /// Takes up what earlier programs have left. The training of another user waits for that user.
  void take_up(KeptExercises& kept, DocumentWriter& writer, const ProtocolFolders& folders);
  /// Stores the training and says so; `done` runs once the box is closed. A training that was saved
  /// meanwhile wins; to replace an older one is asked first.
  void offer(const KeptExercise& exercise, std::function<void(End)> done);

 private:
  void take_up_next(KeptExercises& kept);
  bool put_protocol(const KeptExercise& exercise, DocumentWriter& writer,
                    const ProtocolFolders& folders);
  void tell(TextKey text, const KeptExercise& exercise, std::function<void()> then);
  std::string words(TextKey text, const KeptExercise& exercise) const;

  Scheduler& scheduler_;
  Server& server_;
  ErrorReport& errors_;
  const Texts& texts_;
  Dialogs& dialogs_;
  std::vector<KeptExercises::Left> left_;  ///< still to be told of, newest last
};

}  // namespace tonarix
