#include "engine/interrupted_exercises.h"

#include <algorithm>

#include "base/delay.h"
#include "base/filled_text.h"
#include "base/module_texts.h"
#include "base/runtime_error.h"
#include "engine/training_record.h"
#include "music/key.h"
#include "protocol/written_protocol.h"
#include "settings/exercises.h"
#include "settings/saved_settings.h"

namespace tonarix {

namespace {

struct Training {
  Settings settings;
  SavedTraining state;
};

/// The training if it can be gone on with.
std::optional<Training> read(const KeptTraining& kept) {
  Settings settings;
  settings.Theoriewahl = static_cast<Study>(kept.study);
  settings.ueb_typ = static_cast<ExerciseKind>(kept.kind);
  const ExerciseRow* row = find_exercise(settings.Theoriewahl, settings.ueb_typ);
  if (row == nullptr) return {};
  try {
    settings = read_EinstSicherung(settings, row->settings, kept.settings);
    settings.EinstSicherung = kept.settings;
    Key key;
    build_scale(key, settings.tongeschl, settings.abfr_iv);
    const auto state = from_record(kept.state, settings, key);
    const auto* whole = std::get_if<SavedTraining>(&state);
    if (whole == nullptr) return {};
    return Training{std::move(settings), *whole};
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace

std::string user_name(Server& server) {
  std::string name;
  for (const std::string& field : server.ServerLogin()) name += field + ";";
  return name;
}

void InterruptedExercises::take_up(KeptExercises& kept, DocumentWriter& writer,
                                   const ProtocolFolders& folders) {
  const std::string user = user_name(server_);
  left_ = kept.left_behind();
  // The oldest first: what is written anew keeps its place in the order of time.
  std::ranges::reverse(left_);
  std::erase_if(left_, [&](KeptExercises::Left& left) {
    KeptExercise& exercise = left.exercise;
    if (!exercise.document.empty() && put_protocol(exercise, writer, folders)) {
      exercise.document.clear();
      kept.keep(exercise, left.name);  // or else the next start finds that the protocol lies there
    }
    const bool own = exercise.user == user;
    if (!own && !exercise.training && exercise.document.empty()) kept.use_up(left.name);
    return !own;
  });
  take_up_next(kept);
}

bool InterruptedExercises::put_protocol(const KeptExercise& exercise, DocumentWriter& writer,
                                        const ProtocolFolders& folders) {
  const std::filesystem::path file = std::filesystem::path(exercise.file).filename();
  for (const auto& folder : {folders.protocols, folders.data}) {
    if (lies_in(folder, file, exercise.document)) return true;  // put there before
  }
  for (const auto& folder : {folders.protocols, folders.data}) {
    const WriteResult result = writer.write(folder / file, exercise.document);
    if (result.written) return true;
    errors_.log("take_up.", std::make_exception_ptr(RuntimeError(
                                RuntimeError::kPathError,
                                (folder / file).string() + ": " + result.reason, "take_up")));
  }
  return false;
}

// One after the other: what the newest training has brought into the store the older ones meet.
void InterruptedExercises::take_up_next(KeptExercises& kept) {
  if (left_.empty()) return;
  const KeptExercises::Left left = std::move(left_.back());
  left_.pop_back();
  offer(left.exercise, [this, &kept, left](End end) {
    if (end != End::stays_kept) {
      KeptExercise still = left.exercise;
      still.training.reset();
      still.document.empty() ? kept.use_up(left.name) : void(kept.keep(still, left.name));
    }
    const auto next = [this, &kept] { take_up_next(kept); };
    end == End::nothing ? tell(text::exercise_interrupted, left.exercise, next) : next();
  });
}

void InterruptedExercises::offer(const KeptExercise& exercise, std::function<void(End)> done) {
  auto training = exercise.training ? read(*exercise.training) : std::nullopt;
  if (!training) return done(End::nothing);
  const KeptTraining& kept = *exercise.training;
  std::vector<std::string> stored;
  const RecordRead found = server_.read_record(record_key('A', training->settings), stored);
  if (found == RecordRead::failed) {
    return tell(text::interrupted_not_stored, exercise, [done] { done(End::stays_kept); });
  }
  const bool valid = found == RecordRead::found && says_valid(stored);
  if (!valid) stored.clear();
  // A training that was saved since wins, and one that was gone on with may have come to its end.
  const bool there_already = stored == kept.state;
  const bool newer = valid && kept.stored_before && stored != *kept.stored_before;
  const bool ended = found == RecordRead::found && !valid && kept.continued;
  if (!there_already && (newer || ended)) return done(End::nothing);
  auto store = [this, exercise, training = *training, done, stored](Reply reply) mutable {
    if (reply == Reply::no) return done(End::refused);
    if (reply == Reply::yes) {
      std::vector<std::string> now;
      const RecordRead read_now = server_.read_record(record_key('A', training.settings), now);
      if (read_now == RecordRead::found && now != stored) return offer(exercise, done);
    }
    std::optional<SavedTraining> current;
    // Tried once: what a busy host does not take now stays kept for the next start.
    Waits waits(scheduler_);
    TrainingRecord record(server_, errors_, training.settings, current, scheduler_, waits);
    bool stored_now = false;
    Sequence storing = record.keep(training.state, stored_now);
    storing.start();
    const End end = stored_now ? End::stored : End::stays_kept;
    if (end == End::stored && reply == Reply::yes) return done(end);
    tell(end == End::stored ? text::training_interrupted : text::interrupted_not_stored, exercise,
         [done, end] { done(end); });
  };
  if (stored.empty() || there_already || (kept.continued && kept.stored_before))
    return store(Reply::ok);
  dialogs_.show(
      {"Tonarix 2000", words(text::keep_interrupted_training, exercise), MessageStyle::yes_no,
       texts_.Wort(text::save_training), texts_.Wort(text::do_not_save), Reply::no},
      std::move(store));
}

void InterruptedExercises::tell(TextKey text, const KeptExercise& exercise,
                                std::function<void()> then) {
  dialogs_.show({"Tonarix 2000", words(text, exercise), MessageStyle::plain, {}, {}},
                [then = std::move(then)](Reply) { then(); });
}

std::string InterruptedExercises::words(TextKey text, const KeptExercise& exercise) const {
  return filled(texts_.Wort(text), {std::to_string(exercise.tasks), texts_.Wort(565_text)});
}

}  // namespace tonarix
