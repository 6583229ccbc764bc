#include "engine/way_out.h"

#include "base/completion.h"
#include "base/module_texts.h"
#include "base/system_failure.h"
#include "settings/exercises.h"

namespace tonarix {

namespace {

constexpr double kResultPause = 300;  // ms for the result sheet to stand before the exercise goes

}  // namespace

Sequence WayOut::leave(WorkDone work, std::function<bool()> keep, bool replaces) {
  if (keep) {
    co_await ask_to_save(std::move(keep), replaces);
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

Sequence WayOut::ask_to_save(std::function<bool()> keep, bool replaces) {
  std::string asked = Wort(495_text);
  if (replaces) asked += " " + Wort(text::replaces_saved_training);
  const Message question{Wort(8_text), asked, MessageStyle::yes_no, Wort(text::save_training),
                         Wort(text::do_not_save)};
  Reply reply = co_await ask(waits_, context_.common.dialogs, question);
  const Message again{Wort(8_text), Wort(text::training_not_saved), MessageStyle::yes_no,
                      Wort(text::try_again), Wort(text::leave_without_saving)};
  while (reply == Reply::yes && !keep()) {
    reply = co_await ask(waits_, context_.common.dialogs, again);
  }
  if (reply == Reply::yes) context_.caller.training_saved();
}

Sequence WayOut::write_protocol() {
  window_.busy = true;
  controls_.hint.visible = false;
  controls_.WaitMeldung.visible = true;
  co_await waits_.FullDelay(0);
  FinishResult result =
      context_.protocol.ProtokollSchluss(Wort(exercise_row(context_.settings).caption),
                                         window_.caption, context_.settings.EinstDatSave);
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
  if (result.fell_back) {
    const Message told = warning(Wort(text::protocol_not_written_to) + " " +
                                 result.wanted.string() + ": " + why(result.error) + "\n" +
                                 Wort(text::protocol_saved_instead) + "\n" + result.path.string());
    co_await ask(waits_, context_.common.dialogs, told);
  }
  keeping_.finish();
  go_back();
}

void WayOut::give_up(std::string_view tag, std::exception_ptr error) {
  keeping_.leave_behind();
  context_.errors.report(tag, error);
  go_back();
}

void WayOut::go_back() {
  window_.busy = false;
  controls_.WaitMeldung.visible = false;
  context_.caller.show_again();
  context_.common.windows.unload(window_);
}

}  // namespace tonarix
