#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/delay.h"
#include "base/dialogs.h"
#include "base/scheduler.h"
#include "base/sequence.h"
#include "base/texts.h"
#include "host/error_report.h"
#include "host/server.h"
#include "protocol/kept_exercise.h"
#include "protocol/protokoll.h"
#include "settings/saved_training.h"
#include "settings/settings.h"

namespace tonarix {

/// The training that the store holds, as far as it can be told.
struct StoredState {
  RecordRead read = RecordRead::none;
  std::vector<std::string> state;  ///< empty unless found
  friend bool operator==(const StoredState&, const StoredState&) = default;
};

/// The user's data in one text, to tell whose an exercise is; nothing when the host does not say.
std::optional<std::string> user_name(Server& server);

/// An exercise that came to no end of its own.
struct Interrupted {
  KeptExercise exercise;
  bool kept = true;  ///< it lies on the disk until its training is settled
  std::string protocol =
      {};  ///< what the student must know of its protocol; empty when all is well
};

/// Exercises that came to no end of their own: their protocols go where they belong, their
/// trainings into the store, and the student is told in one box each.
class InterruptedExercises {
 public:
  /// What became of a training.
  enum class End {
    stored,
    refused,     ///< by the student
    nothing,     ///< there is none that can be gone on with, or a newer one is saved
    stays_kept,  ///< the host fails; the next start tries again
  };

  InterruptedExercises(Scheduler& scheduler, Server& server, ErrorReport& errors,
                       const Texts& texts, Dialogs& dialogs)
      : scheduler_(scheduler),
        server_(server),
        errors_(errors),
        texts_(texts),
        dialogs_(dialogs),
        waits_(scheduler) {}

  /// Takes up what earlier programs have left. The training of another user waits for that user.
  void take_up(KeptExercises& kept, DocumentWriter& writer, const ProtocolFolders& folders);
  /// Stores the training of the exercise and says what became of it. A training that was saved
  /// meanwhile wins; to replace an older one, or a record that is damaged, is asked first. While
  /// the host is busy it waits in `waits`, up to 10 s, with `show_wait` around it. A host that
  /// stores in memory alone is given only what is not kept anyway.
  Sequence offer(Interrupted interrupted, Waits& waits, End& end,
                 std::function<void(bool)> show_wait);

 private:
  Sequence take_up_all(KeptExercises& kept);
  struct Left {
    std::string name;
    Interrupted interrupted;
  };

  Sequence take_up_one(KeptExercises& kept, const Left left);
  /// Where the protocol lies from now on; nothing where no place takes it, which the log tells.
  std::optional<std::filesystem::path> put_protocol(const KeptExercise& exercise,
                                                    DocumentWriter& writer,
                                                    const ProtocolFolders& folders);
  /// What is said of a protocol that does not lie where it belongs; else nothing.
  std::string protocol_words(const std::optional<std::filesystem::path>& place,
                             const ProtocolFolders& folders) const;
  void log(const std::string& line);
  StoredState stored(const Settings& settings);
  /// The training is stored unless the store holds anything else than `before`, or memory would
  /// take what is `kept` on the disk.
  Sequence store(const SavedTraining& state, Settings& settings, const StoredState& before,
                 bool kept, Waits& waits, End& end);
  Message told(TextKey text, const Interrupted& interrupted) const;
  Message question(const StoredState& before, const Interrupted& interrupted) const;
  std::string words(TextKey text, const KeptExercise& exercise) const;

  Scheduler& scheduler_;
  Server& server_;
  ErrorReport& errors_;
  const Texts& texts_;
  Dialogs& dialogs_;
  std::vector<Left> left_;  ///< still to be told of, newest last
  Waits waits_;
  std::optional<Sequence> telling_;
};

}  // namespace tonarix
