#include "engine/keeping.h"

#include "base/runtime_error.h"
#include "host/text_tables.h"
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

/// "Gehörbildung: tonale Intervalle (sukzessiv) bestimmen (Test)"
std::string title_of(const Settings& settings, const Texts& texts) {
  TextTables words;
  words.load(texts);
  return words.theory_kind(static_cast<int>(settings.Theoriewahl)) + texts.Wort(700_text) +
         texts.Wort(exercise_row(settings).title) + " (" +
         words.levels.at(static_cast<std::size_t>(settings.Uebungsmodus)) + ")";
}

}  // namespace

Keeping::Keeping(const ExerciseContext& context, const Window& window)
    : context_(context),
      window_(window),
      due_(context.common.scheduler, [this] { write(Document::as_it_stands); }) {
  kept_.user = user_name(context.server).value_or("");
  kept_.title = title_of(context.settings, context.common.texts);
  if (is_training(context.settings.Uebungsmodus)) {
    begun_ = begin_training(context.server, context.settings);
  }
}

void Keeping::task_done(int tasks, const std::optional<SavedTraining>& training) {
  kept_.tasks = tasks;
  training_ = training;
  due_.enable();
}

void Keeping::now() {
  if (!due_.enabled()) return;
  due_.disable();
  write(Document::as_it_stands);
}

void Keeping::settle_training() {
  training_.reset();
  kept_.training.reset();
  if (kept_.tasks > 0) write(Document::as_kept);
}

Sequence Keeping::tell_interrupted(Waits& waits, std::function<void(bool)> show_wait) {
  now();
  if (!kept_.training) co_return;
  using End = InterruptedExercises::End;
  End end = End::stays_kept;
  const Interrupted interrupted{kept_, lies_kept_};
  co_await context_.interrupted.offer(interrupted, waits, end, std::move(show_wait));
  if (end == End::stored) context_.caller.training_saved();
  if (end != End::stays_kept) settle_training();
}

void Keeping::finish(bool protocol_written) {
  now();
  over_ = true;
  if (protocol_written && !kept_.training) return context_.kept.use_up();
  write(protocol_written ? Document::none : Document::as_it_stands);
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
  // What does not lie where it belongs the next start finds and tells.
  const bool in_place = !result.failed && !result.fell_back;
  if (in_place && !kept_.training) return context_.kept.use_up();
  write(in_place ? Document::none : Document::as_it_stands);
}

void Keeping::write(Document document) {
  try {
    keep(document);
  } catch (const std::exception&) {
    context_.errors.log(kTag, std::current_exception());
  }
}

void Keeping::keep(Document document) {
  const Settings& settings = context_.settings;
  if (kept_.user.empty()) kept_.user = user_name(context_.server).value_or("");
  kept_.file = context_.protocol.file_name();
  kept_.training = training_ ? begun_ : std::nullopt;
  if (kept_.training) kept_.training->state = to_record(*training_, settings);
  if (document == Document::none) kept_.document.clear();
  if (document == Document::as_it_stands) {
    kept_.document = context_.protocol.so_far(caption(), window_.caption, settings.EinstDatSave);
  }
  lies_kept_ = context_.kept.keep(kept_);
  if (lies_kept_) return;
  throw RuntimeError(RuntimeError::kPathError, "The exercise could not be kept", "Keeping");
}

std::string Keeping::caption() const {
  return context_.common.texts.Wort(exercise_row(context_.settings).caption);
}

}  // namespace tonarix
