#include "engine/interrupted_exercises.h"

#include <algorithm>
#include <utility>

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

constexpr const char* kTag = "take_up.";

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

/// What is to be done with a training.
enum class Way { stored, asked, dropped, left_kept };

Way way_with(const KeptExercise& exercise, const StoredState& before) {
  if (before.read == RecordRead::failed) return Way::left_kept;
  const KeptTraining& kept = *exercise.training;
  if (before.state == kept.state) return Way::stored;
  const bool damaged = before.read == RecordRead::damaged;
  const bool valid = says_valid(before.state);
  // A training that was saved since wins, and one that was gone on with may have come to its end.
  if (valid && kept.stored_before && before.state != *kept.stored_before) return Way::dropped;
  if (before.read == RecordRead::found && !valid && kept.continued) return Way::dropped;
  const bool its_own = kept.continued && kept.stored_before && !damaged;
  const bool replaces = (valid || damaged) && !its_own;
  return replaces || exercise.user.empty() ? Way::asked : Way::stored;
}

std::string with_protocol(const std::string& told, const Interrupted& interrupted) {
  return interrupted.protocol.empty() ? told : told + " " + interrupted.protocol;
}

}  // namespace

std::optional<std::string> user_name(Server& server) {
  const auto user = server.logged_on();
  if (!user) return {};
  std::string name;
  for (const std::string& field : *user) name += field + ";";
  return name;
}

void InterruptedExercises::take_up(KeptExercises& kept, DocumentWriter& writer,
                                   const ProtocolFolders& folders) {
  const std::optional<std::string> user = user_name(server_);
  std::vector<KeptExercises::Left> all = kept.left_behind();
  // The oldest first: what is written anew keeps its place in the order of time.
  std::ranges::reverse(all);
  for (auto& [name, exercise] : all) {
    std::string protocol;
    if (!exercise.document.empty()) {
      const auto place = put_protocol(exercise, writer, folders);
      protocol = protocol_words(place, folders);
      if (place) {
        exercise.document.clear();
        kept.keep(exercise, name);  // or else the next start finds that the protocol lies there
      }
    }
    const bool own = user && (exercise.user == *user || exercise.user.empty());
    if (own) {
      left_.push_back({name, {exercise, true, protocol}});
    } else if (!exercise.training && exercise.document.empty()) {
      kept.use_up(name);
    }
  }
  telling_ = take_up_all(kept);
  telling_->start();
}

std::optional<std::filesystem::path> InterruptedExercises::put_protocol(
    const KeptExercise& exercise, DocumentWriter& writer, const ProtocolFolders& folders) {
  const std::filesystem::path file = std::filesystem::path(exercise.file).filename();
  for (const auto& folder : {folders.protocols, folders.data}) {
    if (auto before = written_in(folder, file, exercise.document)) return before;
  }
  for (const auto& folder : {folders.protocols, folders.data}) {
    const WriteResult result = writer.write(folder / file, exercise.document);
    if (result.written && folder == folders.data) log("A protocol lies in " + result.path.string());
    if (result.written) return result.path;
    log((folder / file).string() + ": " + result.reason);
  }
  return {};
}

std::string InterruptedExercises::protocol_words(const std::optional<std::filesystem::path>& place,
                                                 const ProtocolFolders& folders) const {
  if (!place) return texts_.Wort(text::interrupted_protocol_not_written);
  if (place->parent_path() != folders.data || folders.data == folders.protocols) return {};
  return texts_.Wort(text::interrupted_protocol_elsewhere) + "\n" + place->string();
}

void InterruptedExercises::log(const std::string& line) {
  const RuntimeError error(RuntimeError::kPathError, line, "take_up");
  errors_.log(kTag, std::make_exception_ptr(error));
}

// One after the other: what the newest training has brought into the store the older ones meet.
Sequence InterruptedExercises::take_up_all(KeptExercises& kept) {
  while (!left_.empty()) {
    Left left = std::move(left_.back());
    left_.pop_back();
    try {
      co_await take_up_one(kept, std::move(left));
    } catch (const std::exception&) {
      errors_.log(kTag, std::current_exception());
    }
  }
}

Sequence InterruptedExercises::take_up_one(KeptExercises& kept, const Left left) {
  End end = End::nothing;
  KeptExercise still = left.interrupted.exercise;
  if (still.training) {
    std::function<void(bool)> no_window;
    co_await offer(left.interrupted, waits_, end, std::move(no_window));
  } else {
    Interrupted interrupted = left.interrupted;
    std::string& protocol = interrupted.protocol;
    if (protocol.empty()) protocol = texts_.Wort(text::interrupted_protocol_saved);
    const Message message = told(text::exercise_interrupted, interrupted);
    co_await ask(waits_, dialogs_, message);
  }
  if (end == End::stays_kept) co_return;
  still.training.reset();
  still.document.empty() ? kept.use_up(left.name) : void(kept.keep(still, left.name));
}

StoredState InterruptedExercises::stored(const Settings& settings) {
  StoredState found;
  std::vector<std::string> of_settings;
  const RecordRead settings_read = server_.read_record(record_key('E', settings), of_settings);
  found.read = server_.read_record(record_key('A', settings), found.state);
  for (const RecordRead worse : {RecordRead::failed, RecordRead::damaged}) {
    if (settings_read == worse || found.read == worse) return {worse, {}};
  }
  return found;
}

Sequence InterruptedExercises::offer(Interrupted interrupted, Waits& waits, End& end,
                                     std::function<void(bool)> show_wait) {
  end = End::nothing;
  const KeptExercise& exercise = interrupted.exercise;
  TextKey became = text::training_not_usable;
  if (std::optional<Training> training = read(*exercise.training)) {
    StoredState before = stored(training->settings);
    Way way = interrupted.kept && !server_.lasting() ? Way::left_kept : way_with(exercise, before);
    for (bool agreed = false; way == Way::asked && !agreed;) {
      const Message asked = question(before, interrupted);
      const Reply reply = co_await ask(waits, dialogs_, asked);
      end = End::refused;
      if (reply != Reply::yes) co_return;
      // Another program may have stored while the question stood there.
      const StoredState now = stored(training->settings);
      agreed = now == std::exchange(before, now);
      way = way_with(exercise, before);
    }
    const bool asked = way == Way::asked;
    end = way == Way::dropped ? End::nothing : End::stays_kept;
    if (way == Way::stored || asked) {
      if (show_wait) show_wait(true);
      co_await store(training->state, training->settings, before, interrupted.kept, waits, end);
      if (show_wait) show_wait(false);
    }
    if (end == End::stored && asked) co_return;
    became = end == End::stored    ? text::training_interrupted
             : end == End::nothing ? text::newer_training_stays
                                   : text::interrupted_not_stored;
  }
  const Message message = told(became, interrupted);
  co_await ask(waits, dialogs_, message);
}

Sequence InterruptedExercises::store(const SavedTraining& state, Settings& settings,
                                     const StoredState& before, bool kept, Waits& waits, End& end) {
  std::optional<SavedTraining> current;
  bool done = false;
  TrainingRecord record(server_, errors_, settings, current, scheduler_, waits, kTag);
  std::function<bool()> still = [this, &settings, &before, kept] {
    return stored(settings) == before && (!kept || server_.lasting());
  };
  co_await record.keep(state, done, std::move(still));
  end = done ? End::stored : End::stays_kept;
}

Message InterruptedExercises::told(TextKey text, const Interrupted& interrupted) const {
  return {"Tonarix 2000",
          with_protocol(words(text, interrupted.exercise), interrupted),
          MessageStyle::plain,
          {},
          {}};
}

Message InterruptedExercises::question(const StoredState& before,
                                       const Interrupted& interrupted) const {
  std::string asked = words(text::keep_interrupted_training, interrupted.exercise);
  const bool damaged = before.read == RecordRead::damaged;
  if (damaged) asked += " " + texts_.Wort(text::replaces_damaged_training);
  if (says_valid(before.state)) asked += " " + texts_.Wort(text::replaces_saved_training);
  return {"Tonarix 2000", with_protocol(asked, interrupted), MessageStyle::yes_no,
          texts_.Wort(text::save_training), texts_.Wort(text::do_not_save)};
}

std::string InterruptedExercises::words(TextKey text, const KeptExercise& exercise) const {
  return filled(texts_.Wort(text),
                {std::to_string(exercise.tasks), exercise.title, texts_.Wort(565_text)});
}

}  // namespace tonarix
