#include "engine/exercise_window.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "base/module_texts.h"
#include "engine/answer_rules.h"
#include "engine/material/training_state.h"
#include "engine/row_facts.h"
#include "settings/exercises.h"

namespace tonarix {

namespace {

constexpr double kClockInterval = 10000;  // ms
constexpr std::int16_t kClockSeconds = 10;
constexpr double kLookAgain = 100;  // ms until a way out that is held is tried again
constexpr const char* kLeavingTag = "zurueck_click.";

}  // namespace

ExerciseWindow::ExerciseWindow(std::string name, const ExerciseContext& context)
    : Window(context.common, std::move(name)),
      ExerciseControls(static_cast<Window&>(*this)),
      context_(context),
      box_(context.settings, context.key, context.statistics, context.chance),
      material_(context.settings, context.key, context.row, box_, context.chance),
      answers_(context.common.scheduler, context.protocol),
      training_(context.server, context.errors, context.settings, context.saved_training,
                context.common.scheduler, waits()),
      standing_(*this, context.common.texts, box_),
      sitting_(context.common.scheduler),
      next_task_(context.common.scheduler, *this, [this] { run("mat_wahl.", mat_wahl()); }),
      keeping_(context_, *this),
      way_out_(context_, *this, *this, waits(), keeping_),
      start_(context.common.scheduler, [this] { start_timer(); }),
      Uhrzeit_(context.common.scheduler, [this] { Uhrzeit_timer(); }),
      testtimer_(context.common.scheduler, [this] { leave_broken(); }) {
  caption = word(exercise_row(context.settings).title);
  context_.statistics.init_arr(3, kStatisticRows - 1);
  context_.statistics.Clear();
  context_.best.init_arr(kStatisticRows - 1);
  context_.best.Clear();
  WaitMeldung.visible = false;
  Uhrzeit_.set_interval(kClockInterval);
  testtimer_.set_interval(kLookAgain);
  start_.enable();
}

void ExerciseWindow::start_timer() {
  handle("start_timer.", [this] {
    enter(Phase::starting);
    zurueck.text = word(640_text);
    cmdHilfe.text = word(text::help_caption);
    WaitMeldung.text = word(text::one_moment);
    Uhr.text = time_of_day(context_.clock.now());
    next_task_.name(context_.common.texts, 0);
    Uhrzeit_.enable();
    prepare_level();
    prepare();
    update_counts();
    run("mat_wahl.", mat_wahl());
  });
}

RowPlayer& ExerciseWindow::player() {
  if (!player_) {
    player_ = make_player();
    player_->sounded = [this] { handle("spieltimer_timer.", [this] { after_playing(true); }); };
  }
  return *player_;
}

void ExerciseWindow::prepare_level() {
  const Settings& settings = context_.settings;
  build_scale(context_.key, settings.tongeschl, settings.abfr_iv);
  if (level() != Level::free) {
    box_.BoxAufbau(test_timing({.spieltimer = player().row_ms(),
                                .WahlAutomat = next_task_.pause_ms(),
                                .zeit_grenze = zeit_grenze_of(settings.abfr_iv)}));
  }
  if (level() == Level::continued) {
    const SavedTraining& saved = training_.resumed();
    resume(saved, settings, box_, context_.statistics);
    answers_.counts.wrong = saved.zaehler;
    answers_.counts.repeats = saved.whlgzaehler;
    sitting_.begin_with(saved.zaehler);
  }
  material_.begin();
  standing_.prepare(level());
}

Sequence ExerciseWindow::mat_wahl() {
  keeping_.now();
  sitting_.begin_task();
  material_.mat_wahl();
  row_drawn(material_.moves());
  next_task_.name(context_.common.texts, ++lesson_nr_);
  player().begin_task(tune(), material_.terz_typ);
  const auto intervals =
      std::span(context_.row.iv).first(static_cast<std::size_t>(context_.settings.invzahl) + 1);
  answers_.begin_task(intervals, {.first_asked = first_asked(),
                                  .first_scored = first_scored(),
                                  .zeit_grenze = zeit_grenze_of(context_.settings.abfr_iv),
                                  .rewarded = level() != Level::free});
  show_task();
  enter(Phase::sounding);
  LessonFacts facts = lesson_facts();
  facts.interval = to_int16(lesson_nr_);
  context_.protocol.ProtokollAufgabe(facts);
  co_await Delay(kResetPause);
  if (waits().closed()) co_return;
  co_await player().play(SpielArt::task, {});
}

LessonFacts ExerciseWindow::lesson_facts() {
  return row_facts(context_, first_asked());
}

int ExerciseWindow::first_scored() const {
  return std::max<int>(first_asked(), context_.settings.ton_st_wahl);
}

void ExerciseWindow::enter(Phase phase, bool keynote) {
  phase_ = phase;
  const Actions& actions = actions_in(phase);
  const bool automatic = context_.settings.abfrage == 1;
  next_task_.withdraw();
  if (actions.next_task && reading_ == 0) next_task_.offer(automatic);
  const TextKey head = line(actions.next_task && automatic ? actions.other : actions.head);
  question.text = head == TextKey{} ? question_text() : word(head);
  hint.text = word(line(keynote ? actions.other : actions.hint));
  if (is_over(phase)) {
    sitting_.end();
    zurueck.back = signal::finished;
    zurueck.fore = signal::wrong;
    zurueck.text = word(625_text);
  }
  cmdHilfe.enabled = phase != Phase::leaving;
  zurueck.enabled = cmdHilfe.enabled && !way_out_.held();
  open_answers(actions.answers);
  show_actions(actions);
  tell_phase();
}

// For who does not see the screen: what sounds, what is asked, what comes.
void ExerciseWindow::tell_phase() {
  if (phase_ == Phase::starting || phase_ == Phase::broken || phase_ == Phase::leaving) return;
  if (is_sounding(phase_)) return announce(hint.text);
  if (phase_ == Phase::answering) announce(word(text::answer_now));
  announce(question.text);
}

void ExerciseWindow::after_playing(bool heard) {
  if (phase_ == Phase::sounding) {
    if (heard) row_sounded();
    if (reading_ == 0) answers_.open();
  }
  if (!waits().closed()) enter(after_sounding(phase_));
}

void ExerciseWindow::go_on_after_answer() {
  update_counts();
  if (answers_.book.done()) return finish_row();
  const std::string asked = question_text();
  if (asked == question.text) return;
  question.text = asked;
  announce(asked);
}

void ExerciseWindow::update_counts() {
  standing_.show_counts(answers_.counts);
  show_counts(answers_.counts);
}

void ExerciseWindow::finish_row() {
  sitting_.finish_task();
  announce(word(line(text::row_is_done)));
  Phase next = control_comes_first() ? Phase::row_done : Phase::next_offered;
  BoxOutcome outcome{1, 0};
  if (level() != Level::free) outcome = box_.BoxAuswerten(answers_.book.answered());
  if (is_training(level())) {
    standing_.show_training();
    standing_.show_panel(outcome.ergebnis_anz);
    if (outcome.finished()) announce(ergebnis_anz[outcome.ergebnis_anz].text);
    if (outcome.finished()) next = Phase::training_finished;
  }
  if (is_test(level())) {
    if (box_.test.finish_task()) next = Phase::test_finished;
    if (next == Phase::test_finished) Uhrzeit_.disable();
    standing_.show_test();
  }
  enter(next);
  const bool goes_on = is_training(level()) && next != Phase::training_finished;
  keeping_.task_done(sitting_.tasks(), goes_on ? std::optional(training_now()) : std::nullopt);
  if (next == Phase::training_finished) {
    run("intervall_antw.", way_out_.finish_training(training_));
  }
}

SavedTraining ExerciseWindow::training_now() const {
  return training_state(box_, context_.settings, context_.statistics, answers_.counts.wrong,
                        answers_.counts.repeats);
}

void ExerciseWindow::CmdNextAufg_click() {
  press(CmdNextAufg, "mat_wahl.", [this] { return mat_wahl(); });
}

void ExerciseWindow::cmd_test_ein_click() {
  press(cmd_test_ein, "cmd_test_ein_click.", [this] { standing_.show_test_lines(true); });
}

void ExerciseWindow::cmd_test_aus_click() {
  press(cmd_test_aus, "cmd_test_aus_click.", [this] { standing_.show_test_lines(false); });
}

void ExerciseWindow::Uhrzeit_timer() {
  handle("Uhrzeit_timer.", [this] {
    Uhr.text = time_of_day(context_.clock.now());
    Uhrzeit_.enable();
    if (!is_test(level())) return;
    const bool time_is_up = box_.test.pass_time(kClockSeconds);
    standing_.show_test();
    if (!time_is_up) return;
    stop_all();
    enter(Phase::time_up);
  });
}

const Control* ExerciseWindow::default_button() const {
  switch (actions_in(phase_).way_on) {
    case Way::zurueck:
      return &zurueck;
    case Way::next_task:
      return CmdNextAufg.open() ? &CmdNextAufg : nullptr;
    default:
      return nullptr;
  }
}

void ExerciseWindow::cmdHilfe_click() {
  press(cmdHilfe, "cmdHilfe_click.", [this] {
    hold_back();
    show_help([this, here = alive()] {
      if (!here.expired()) handle("cmdHilfe_click.", [this] { go_on_after_reading(); });
    });
  });
}

// The time that goes into reading is not the student's, and nothing begins behind what is read.
void ExerciseWindow::hold_back() {
  ++reading_;
  answers_.pause();
  next_task_.withdraw();
}

void ExerciseWindow::go_on_after_reading() {
  if (--reading_ > 0) return;
  if (phase_ == Phase::answering) answers_.open();
  if (actions_in(phase_).next_task) next_task_.offer(context_.settings.abfrage == 1);
}

void ExerciseWindow::zurueck_click() {
  if (takes_input(zurueck)) way_out();
}

void ExerciseWindow::way_out() {
  const bool running =
      is_test(level()) && lesson_nr_ > 0 && !is_over(phase_) && phase_ != Phase::broken;
  if (!way_out_.held()) run(kLeavingTag, running ? break_off() : leave());
}

Sequence ExerciseWindow::break_off() {
  bool breaks_off = false;
  hold_back();
  co_await way_out_.ask_to_break_off(breaks_off);
  if (breaks_off) co_return co_await leave();
  go_on_after_reading();
}

Sequence ExerciseWindow::leave() {
  if (phase_ == Phase::leaving) co_return;
  const bool broken = phase_ == Phase::broken;
  const bool ended = is_over(phase_) || broken;
  WayOut::Keep keep;
  if (!ended && is_training(level()) && sitting_.tasks() > 0) {
    keep = [this](bool& kept) { return training_.keep(training_now(), kept); };
  }
  // A training that goes on replaces nothing but its own earlier state.
  const RecordRead former =
      keep && level() == Level::training ? training_.stored() : RecordRead::none;
  begin_leaving();
  enter(Phase::leaving);
  stop_all();
  const auto in_all =
      is_test(level()) && lesson_nr_ > 0 ? std::optional<int>(box_.test.aufg_gesamt) : std::nullopt;
  const std::function<void(bool)> show = [this](bool waiting) { show_wait(*this, *this, waiting); };
  if (broken) co_await keeping_.tell_interrupted(waits(), show);
  co_await way_out_.leave(sitting_.work(answers_.counts, in_all), keep, former);
}

void ExerciseWindow::leave_broken() {
  way_out_.held() ? testtimer_.enable() : run(kLeavingTag, leave());
}

void ExerciseWindow::session_ends() {
  stop_all();
  keeping_.end_session();
}

void ExerciseWindow::stop_all() {
  waits().close();
  for (Timer* timer : {&start_, &Uhrzeit_, &testtimer_}) timer->disable();
  try {
    player().silence();
  } catch (const std::exception&) {
    context_.errors.log("MidiReset.", std::current_exception());  // a vanished device is silent too
  }
}

void ExerciseWindow::failed(std::string_view tag, std::exception_ptr error) {
  if (phase_ == Phase::leaving && tag == kLeavingTag) return way_out_.give_up(tag, error);
  if (phase_ == Phase::broken || phase_ == Phase::leaving) return context_.errors.log(tag, error);
  if (is_device_failure(error)) {
    // A silent device takes nothing away that was earned: the answers open as if the row had
    // sounded, and the next playback opens the device anew.
    context_.errors.log(tag, error);
    player().forget();
    after_playing(false);
    hold_back();
    return tell(word(text::device_silent), [this] { go_on_after_reading(); });
  }
  stop_all();
  enter(Phase::broken);
  context_.errors.report_exercise(name(), tag, error, [this, here = alive()] {
    if (!here.expired()) testtimer_.enable();
  });
}

}  // namespace tonarix
