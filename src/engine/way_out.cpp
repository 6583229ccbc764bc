#include "engine/way_out.h"

#include "base/completion.h"
#include "base/module_texts.h"
#include "base/system_failure.h"
#include "settings/exercises.h"

namespace tonarix {

namespace {

constexpr double kResultPause = 300;  // ms for the result sheet to stand before the exercise goes

}  // namespace

void show_wait(Window& window, ExerciseControls& controls, bool waiting) {
  window.busy = waiting;
  controls.hint.visible = !waiting;
  controls.WaitMeldung.visible = waiting;
}

Sequence WayOut::ask_to_break_off(bool& breaks_off) {
  const bool exam = context_.settings.Uebungsmodus == Level::exam;
  const Message told{
      window_.caption,        Wort(exam ? text::break_off_exam : text::break_off_test),
      MessageStyle::yes_no,   Wort(text::break_off),
      Wort(text::keep_going), Reply::no};
  hold(true);
  breaks_off = co_await ask(waits_, context_.common.dialogs, told) == Reply::yes;
  hold(false);
}

Sequence WayOut::finish_training(TrainingRecord& training) {
  // The mark of the end stands in the one place for both.
  const bool earlier =
      context_.settings.Uebungsmodus == Level::training && training.stored() == RecordRead::found;
  hold(true);
  show_wait(window_, controls_, true);
  bool dropped = false;
  co_await training.drop(dropped);
  show_wait(window_, controls_, false);
  hold(false);
  const RecordRead left = dropped ? RecordRead::none : training.stored();
  const auto tell = [this](TextKey text) {
    context_.common.dialogs.show(warning(Wort(text)), [](Reply) {});
  };
  if (left == RecordRead::failed) co_return tell(text::store_not_read);
  const bool found = left == RecordRead::found;
  found ? context_.caller.training_saved() : context_.caller.training_finished();
  if (!dropped) co_return tell(found ? text::training_not_marked : text::no_training_stored);
  if (earlier) tell(text::earlier_training_over);
}

Sequence WayOut::leave(WorkDone work, Keep keep, RecordRead former) {
  if (keep) {
    co_await ask_to_save(std::move(keep), former);
    keeping_.settle_training();
  }
  controls_.zurueck.text = Wort(640_text);
  controls_.zurueck.back.reset();
  controls_.zurueck.fore = signal::leaving;
  window_.enabled = false;
  Completion sheet(waits_);
  context_.open_result(work, sheet.signal());
  co_await waits_.FullDelay(kResultPause);
  co_await sheet;
  co_await write_protocol();
}

Sequence WayOut::ask_to_save(Keep keep, RecordRead former) {
  std::string asked = Wort(495_text);
  if (former == RecordRead::found) asked += " " + Wort(text::replaces_saved_training);
  if (former == RecordRead::failed) asked += " " + Wort(text::may_replace_saved_training);
  const Message question{Wort(8_text), asked, MessageStyle::yes_no, Wort(text::save_training),
                         Wort(text::do_not_save)};
  Reply reply = co_await ask(waits_, context_.common.dialogs, question);
  const Message again{Wort(8_text), Wort(text::training_not_saved), MessageStyle::yes_no,
                      Wort(text::try_again), Wort(text::leave_without_saving)};
  bool kept = false;
  while (reply == Reply::yes) {
    show_wait(window_, controls_, true);
    co_await keep(kept);
    show_wait(window_, controls_, false);
    if (kept) break;
    reply = co_await ask(waits_, context_.common.dialogs, again);
  }
  if (reply == Reply::yes) context_.caller.training_saved();
}

Sequence WayOut::write_protocol() {
  show_wait(window_, controls_, true);
  co_await waits_.FullDelay(0);
  FinishResult result = close_protocol();
  const auto why = [this](std::error_code error) {
    return failure_words(context_.common.texts, error);
  };
  while (result.failed) {
    const Message told{
        "Tonarix 2000",
        Wort(text::protocol_not_written) + "\n" + result.wanted.string() + ": " + why(result.error),
        MessageStyle::yes_no, Wort(text::try_again), Wort(text::go_on_without_protocol)};
    const Reply reply = co_await ask(waits_, context_.common.dialogs, told);
    if (reply != Reply::yes) break;
    result = context_.protocol.finish_again();
  }
  protocol_written_ = !result.failed;
  keeping_.finish(protocol_written_);
  if (result.fell_back) {
    const Message told = warning(Wort(text::protocol_not_written_to) + " " +
                                 result.wanted.string() + ": " + why(result.error) + "\n" +
                                 Wort(text::protocol_saved_instead) + "\n" + result.path.string());
    co_await ask(waits_, context_.common.dialogs, told);
  }
  go_back();
}

FinishResult WayOut::close_protocol() {
  protocol_closed_ = true;
  FinishResult result =
      context_.protocol.ProtokollSchluss(Wort(exercise_row(context_.settings).caption),
                                         window_.caption, context_.settings.EinstDatSave);
  protocol_written_ = !result.failed;
  return result;
}

void WayOut::give_up(std::string_view tag, std::exception_ptr error) {
  context_.errors.report(tag, error);
  try {
    if (!protocol_closed_) close_protocol();
    protocol_written_ ? keeping_.finish(true) : keeping_.leave_behind();
  } catch (...) {
    context_.errors.log(tag, std::current_exception());
  }
  go_back();
}

void WayOut::go_back() {
  window_.busy = false;
  controls_.WaitMeldung.visible = false;
  context_.caller.show_again();
  context_.common.windows.unload(window_);
}

}  // namespace tonarix
