#include "base/arithmetic.h"
#include "engine/exercise_window.h"
#include "settings/exercises.h"

namespace tonarix {

namespace {

constexpr double kResultPause = 300;  // ms for the result sheet to stand before the exercise goes

}  // namespace

void ExerciseWindow::stop_all() {
  waits().close();
  for (Timer* timer : {&start_, &spieltimer_, &grdton_Timer_, &WahlAutomat_, &Uhrzeit_, &testtimer_,
                       &sounding_timer_}) {
    timer->disable();
  }
  show_sounding(-1);
  set_answers_enabled(false);
  withdraw_next_task();
  try {
    context_.midi.MidiReset();
  } catch (const std::exception&) {
    context_.errors.log("MidiReset.", std::current_exception());  // a vanished device is silent too
  }
}

std::string ExerciseWindow::record_key(char record) const {
  return tonarix::record_key(record, settings());
}

void ExerciseWindow::zurueck_click() {
  if (leaving_) return;
  leaving_ = true;
  run(kLeavingTag, leave());
}

Sequence ExerciseWindow::leave() {
  zurueck.enabled = false;
  stop_all();
  wieder.enabled = wieder2.enabled = grundton.enabled = false;
  if (!over() && exit_ == Exit::ok && training() && tasks_done_ > 0) co_await ask_to_save();

  zurueck.text = Wort(640_text);
  zurueck.back.reset();
  zurueck.fore = signal::leaving;
  hint.text.clear();
  enabled = false;
  context_.open_result([this] {
    result_closed_ = true;
    if (result_stood_) run(kLeavingTag, write_protocol());
  });
  co_await waits().FullDelay(kResultPause);
  result_stood_ = true;
  if (result_closed_) co_await write_protocol();
}

Sequence ExerciseWindow::ask_to_save() {
  const Message question_box{Wort(8_text), Wort(495_text), MessageStyle::yes_no, Wort(1104_text),
                             Wort(1105_text)};
  Reply reply = co_await ask(waits(), context_.dialogs, question_box);
  const Message again{Wort(8_text), Wort(1106_text), MessageStyle::yes_no, Wort(1107_text),
                      Wort(1108_text)};
  while (reply == Reply::yes) {
    if (save_training()) co_return;
    reply = co_await ask(waits(), context_.dialogs, again);
  }
}

// Both records or none: the settings of one training beside the state of another would go on with
// nonsense.
bool ExerciseWindow::save_training() {
  std::vector<std::string> former;
  bool had_former = false;
  try {
    had_former = context_.server.ServerRead(record_key('E'), former);
    const SavedTraining training =
        training_state(box_, settings(), context_.statistics, to_int16(std::stoi(zaehler[1].text)),
                       to_int16(std::stoi(whlgzaehler.text)));
    context_.settings.AntwSicherung = to_record(training, settings());
    context_.server.ServerStore(record_key('E'), Variant::strings(settings().EinstSicherung));
    context_.server.ServerStore(record_key('A'), Variant::strings(settings().AntwSicherung));
    context_.saved_training = training;
    context_.caller.training_saved();
    return true;
  } catch (const std::exception&) {
    context_.errors.log(kLeavingTag, std::current_exception());
  }
  try {
    if (had_former) context_.server.ServerStore(record_key('E'), Variant::strings(former));
  } catch (const std::exception&) {
    context_.errors.log(kLeavingTag, std::current_exception());
  }
  return false;
}

void ExerciseWindow::forget_saved_training() {
  try {
    context_.server.ServerStore(record_key('A'), Variant::strings({"False"}));
  } catch (const std::exception&) {
    context_.errors.log("intervall_antw.", std::current_exception());
    tell(Wort(1129_text));
  }
  context_.caller.training_finished();
}

// What can still be done is done: the student is told and is back at the settings.
void ExerciseWindow::give_up_leaving(std::exception_ptr error) {
  busy = false;
  WaitMeldung.visible = false;
  context_.errors.report(kLeavingTag, error);
  context_.caller.show_again();
  context_.windows.unload(*this);
}

Sequence ExerciseWindow::write_protocol() {
  busy = true;
  WaitMeldung.visible = true;
  co_await waits().FullDelay(0);
  FinishResult result = context_.protocol.ProtokollSchluss(context_.caller.exercise_caption(),
                                                           caption, settings().EinstDatSave);
  while (result.failed) {
    const Message told{"Tonarix 2000",
                       Wort(1113_text) + "\n" + result.wanted.string() + ": " + result.reason,
                       MessageStyle::yes_no, Wort(1107_text), Wort(1126_text)};
    const Reply reply = co_await ask(waits(), context_.dialogs, told);
    if (reply != Reply::yes) break;
    result = context_.protocol.finish_again();
  }
  if (result.fell_back) {
    const Message told{"Tonarix 2000",
                       Wort(1112_text) + " " + result.wanted.string() + ": " + result.reason +
                           "\n" + Wort(1135_text) + "\n" + result.path.string(),
                       MessageStyle::warning, "", ""};
    co_await ask(waits(), context_.dialogs, told);
  }
  busy = false;
  WaitMeldung.visible = false;
  context_.caller.show_again();
  context_.windows.unload(*this);
}

}  // namespace tonarix
