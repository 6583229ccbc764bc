#include "engine/exercise_window.h"

#include "base/arithmetic.h"

namespace tonarix {

ExerciseWindow::ExerciseWindow(std::string name, const ExerciseContext& context)
    : Window(context.scheduler, std::move(name)),
      ExerciseControls(static_cast<Window&>(*this)),
      context_(context),
      box_(context.settings, context.key, context.statistics, context.chance),
      material_(context.settings, context.key, context.row, box_, context.chance),
      playback_(context.midi, context.settings, context.key, context.row),
      start_(context.scheduler, [this] { start_timer(); }),
      spieltimer_(context.scheduler, [this] { spieltimer_timer(); }),
      grdton_Timer_(context.scheduler, [this] { grdton_Timer_timer(); }),
      WahlAutomat_(context.scheduler, [this] { WahlAutomat_timer(); }),
      Uhrzeit_(context.scheduler, [this] { Uhrzeit_timer(); }),
      testtimer_(context.scheduler, [this] { zurueck_click(); }),
      sounding_timer_(context.scheduler, [this] {
        show_sounding(sounding_place_ + 1);
        changed();
      }) {
  context_.midi_event.QueueEmpty = [this] { MIDI_QueueEmpty(); };
  name_window();
  clear_statistics();
  start_.enable();
}

ExerciseWindow::~ExerciseWindow() {
  context_.midi_event.QueueEmpty = nullptr;
}

void ExerciseWindow::tell(const std::string& text, std::function<void()> then) {
  context_.dialogs.show({"Tonarix 2000", text, MessageStyle::warning, "", ""},
                        [then = std::move(then), alive = std::weak_ptr<bool>(alive_)](Reply) {
                          if (!alive.expired() && then) then();
                        });
}

Sequence ExerciseWindow::mat_wahl() {
  material_.mat_wahl();
  reset_display();
  tuning_ = {material_.ton_abw, material_.freq_abw};
  open_lesson();
  co_await Delay(kResetPause);
  if (waits().closed()) co_return;
  co_await play(SpielArt::task);
}

void ExerciseWindow::reset_display() {
  ++lesson_nr_;
  name_next_task();
  antw_seconds_ = 0;
  AntwDau_ = 0;
  wdh_gesamt_ = 0;
  iv_nr_ = 0;
  gesperrt_.fill(0);
  for (int i = ergebnis.first; i <= ergebnis.last; ++i) {
    ergebnis[i].text.clear();
    ergebnis[i].accessible_name = nriv[i].text;
    ergebnis[i].back = ergebnis[i].fore = std::nullopt;
    nriv[i].visible = false;
  }
  if (settings().ton_st_wahl == 1) give_first_interval();
  nriv[iv_nr_].visible = true;
  question.text = Wort(1111_text);
  wieder2.visible = false;
  wieder.visible = true;
  wieder.enabled = grundton.enabled = false;
  set_answers_enabled(false);
}

void ExerciseWindow::name_next_task() {
  CmdNextAufg.text = LbNextAufg.text = Wort(129_text) + " " + std::to_string(lesson_nr_ + 1);
}

void ExerciseWindow::give_first_interval() {
  const std::int16_t code = settings().abfr_iv == Naming::from_keynote
                                ? to_int16(settings().stufe_wahl + 1)
                                : to_int16(std::abs(context_.row.iv[0]));
  ergebnis[0].text = answer_text(code);
  ergebnis[0].accessible_name = nriv[0].text + ": " + ergebnis[0].text;
  ergebnis[0].back = signal::right;
  ergebnis[0].fore = signal::black;
  iv_nr_ = 1;
}

void ExerciseWindow::open_lesson() {
  const RowAnalysis analysis = analyse_row(
      std::span(context_.row.inv_ton).first(static_cast<std::size_t>(playback_.tones())),
      context_.key, context_.tone_names, context_.interval_names);
  LessonFacts facts;
  facts.interval = to_int16(lesson_nr_);
  facts.iv_nr = iv_nr_;
  for (const AnalysedTone& tone : analysis.tones) facts.qz_tones.push_back(tone.qz);
  for (const AnalysedInterval& interval : analysis.intervals) {
    facts.intervals.push_back({interval.degree_text, interval.interval_text});
  }
  if (settings().frequenz != 0 || settings().stimm_g != 0) {
    for (int i = 0; i < playback_.tones(); ++i) {
      facts.pb_abweichung.push_back(
          to_int16(tuning_.ton_abw[static_cast<std::size_t>(i)] + tuning_.freq_abw));
    }
  }
  context_.protocol.ProtokollAufgabe(facts);
  answer_lfd_ = 1;
}

void ExerciseWindow::offer_next_task() {
  if (settings().abfrage == 1) {
    WahlAutomat_.enable();
    LbNextAufg.visible = true;
    hint.text = Wort(1121_text);
  } else {
    CmdNextAufg.visible = CmdNextAufg.enabled = true;
  }
}

void ExerciseWindow::withdraw_next_task() {
  WahlAutomat_.disable();
  LbNextAufg.visible = false;
  CmdNextAufg.visible = false;
}

void ExerciseWindow::CmdNextAufg_click() {
  press(CmdNextAufg, "mat_wahl.", [this] {
    CmdNextAufg.visible = false;
    return mat_wahl();
  });
}

void ExerciseWindow::WahlAutomat_timer() {
  LbNextAufg.visible = false;
  run("mat_wahl.", mat_wahl());
}

Sequence ExerciseWindow::AutoAntwort() {
  co_await Delay(draw(context_.chance, 10) * 400 + 300);
  co_await Delay(kResetPause);
  if (waits().closed()) co_return;
  const auto right = to_int16(std::abs(iv()));
  std::int16_t code = right;
  if (draw(context_.chance, 2) == 1) {
    do {
      code = to_int16(draw(context_.chance, key().iv_anzahl) + 1);
    } while (code == right || locked(code));
  }
  press_answer(code);
}

void ExerciseWindow::cmd_test_ein_click() {
  press(cmd_test_ein, "cmd_test_ein_click.", [this] {
    lab_aufgaben.visible = stop_uhr.visible = true;
    cmd_test_ein.visible = cmd_test_ein.enabled = false;
    cmd_test_aus.visible = cmd_test_aus.enabled = true;
  });
}

void ExerciseWindow::cmd_test_aus_click() {
  press(cmd_test_aus, "cmd_test_aus_click.", [this] {
    lab_aufgaben.visible = stop_uhr.visible = false;
    cmd_test_aus.visible = cmd_test_aus.enabled = false;
    cmd_test_ein.visible = cmd_test_ein.enabled = true;
  });
}

void ExerciseWindow::Uhrzeit_timer() {
  handle("Uhrzeit_timer.", [this] {
    Uhr.text = time_of_day(context_.clock.now());
    Uhrzeit_.enable();
    if (!test()) return;
    box_.aufg_dauer = to_int16(box_.aufg_dauer - 10);
    show_test_standing();
    if (box_.aufg_dauer <= 0) end_test();
  });
}

const Control* ExerciseWindow::default_button() const {
  if (zurueck.back == signal::finished) return &zurueck;
  if (CmdNextAufg.open()) return &CmdNextAufg;
  return wieder2.open() ? &wieder2 : nullptr;
}

void ExerciseWindow::escape_key() {
  if (!test() || zustand_ == Zustand::test_finished) zurueck_click();
}

void ExerciseWindow::failed(std::string_view tag, std::exception_ptr error) {
  if (leaving_ && tag == kLeavingTag) return give_up_leaving(error);
  if (exit_ == Exit::error || leaving_) {
    context_.errors.log(tag, error);
    return;
  }
  if (is_device_failure(error)) return device_failed(tag, error);
  exit_ = Exit::error;
  stop_all();
  context_.errors.report_exercise(name(), tag, error, [this, alive = std::weak_ptr<bool>(alive_)] {
    if (alive.expired()) return;
    testtimer_.set_interval(0);
    testtimer_.enable();
  });
}

}  // namespace tonarix
