#include "engine/keeping.h"

#include <memory>

#include "base/completion.h"
#include "base/runtime_error.h"
#include "settings/exercises.h"

namespace tonarix {

namespace {

constexpr const char* kTag = "keeping.";

/// The state of the training that the store holds, empty where it holds none to go on with.
std::optional<std::vector<std::string>> stored_state(Server& server, const Settings& settings) {
  std::vector<std::string> state;
  if (server.read_record(record_key('A', settings), state) == RecordRead::failed) return {};
  return says_valid(state) ? state : std::vector<std::string>();
}

KeptTraining begin_training(Server& server, const Settings& settings) {
  const bool continued = settings.Uebungsmodus == Level::continued;
  return {.study = static_cast<int>(settings.Theoriewahl),
          .kind = static_cast<int>(settings.ueb_typ),
          .continued = continued,
          .settings = settings.EinstSicherung,
          .state = {},
          .stored_before = continued ? settings.AntwSicherung : stored_state(server, settings)};
}

}  // namespace

Keeping::Keeping(const ExerciseContext& context, const Window& window)
    : context_(context), window_(window), due_(context.common.scheduler, [this] { write(true); }) {}

void Keeping::task_done(int tasks, const std::optional<SavedTraining>& training) {
  kept_.tasks = tasks;
  training_ = training;
  due_.enable();
}

void Keeping::now() {
  if (!due_.enabled()) return;
  due_.disable();
  write(true);
}

void Keeping::settle_training() {
  training_.reset();
  kept_.training.reset();
  if (kept_.tasks > 0) write(true);
}

Sequence Keeping::tell_interrupted(Waits& waits) {
  now();
  if (!kept_.training) co_return;
  using End = InterruptedExercises::End;
  Completion told(waits);
  // The answer may come when the window has gone.
  const auto end = std::make_shared<End>(End::stays_kept);
  context_.interrupted.offer(kept_, [end, done = told.signal()](End became) {
    *end = became;
    done();
  });
  co_await told;
  if (*end == End::stored) context_.caller.training_saved();
  if (*end != End::stays_kept) settle_training();
}

void Keeping::finish(bool protocol_written) {
  now();
  over_ = true;
  if (protocol_written && !kept_.training) return context_.kept.use_up();
  write(!protocol_written);
  context_.kept.leave_behind();
}

void Keeping::leave_behind() {
  now();
  over_ = true;
  context_.kept.leave_behind();
}

void Keeping::end_session() {
  if (over_) return;
  now();
  over_ = true;
  const FinishResult result = context_.protocol.ProtokollSchluss(caption(), window_.caption,
                                                                 context_.settings.EinstDatSave);
  if (!result.failed && !kept_.training) return context_.kept.use_up();
  write(result.failed);
}

void Keeping::write(bool with_protocol) {
  try {
    keep(with_protocol);
  } catch (const std::exception&) {
    context_.errors.log(kTag, std::current_exception());
  }
}

void Keeping::keep(bool with_protocol) {
  const Settings& settings = context_.settings;
  if (kept_.user.empty()) kept_.user = user_name(context_.server);
  kept_.file = context_.protocol.file_name();
  if (training_) {
    if (!kept_.training) kept_.training = begin_training(context_.server, settings);
    kept_.training->state = to_record(*training_, settings);
  } else {
    kept_.training.reset();
  }
  if (with_protocol) {
    kept_.document = context_.protocol.so_far(caption(), window_.caption, settings.EinstDatSave);
  }
  const bool kept = context_.kept.keep(kept_);
  kept_.document.clear();
  if (kept) return;
  throw RuntimeError(RuntimeError::kPathError, "The exercise could not be kept", "Keeping");
}

std::string Keeping::caption() const {
  return context_.common.texts.Wort(exercise_row(context_.settings).caption);
}

}  // namespace tonarix
