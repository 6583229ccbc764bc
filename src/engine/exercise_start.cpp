#include "engine/answer_rules.h"
#include "engine/exercise_window.h"
#include "settings/exercises.h"

namespace tonarix {

namespace {

constexpr double kAutomaticWait = 1800;   // ms between two tasks in the automatic order
constexpr double kClockInterval = 10000;  // ms

}  // namespace

void ExerciseWindow::start_timer() {
  handle("start_timer.", [this] {
    set_common_captions();
    prepare_timers();
    prepare_level();
    prepare();
    set_answers_enabled(false);
    prepared_ = true;
  });
  if (prepared_) run("mat_wahl.", mat_wahl());
}

void ExerciseWindow::name_window() {
  caption = Wort(exercise_row(settings()).title);
}

void ExerciseWindow::clear_statistics() {
  context_.statistics.init_arr(3, kStatisticRows - 1);
  context_.statistics.Clear();
  context_.best.init_arr(kStatisticRows - 1);
  context_.best.Clear();
}

void ExerciseWindow::set_common_captions() {
  wieder.text = Wort(629_text);
  wieder2.text = Wort(632_text);
  grundton.text = Wort(300_text);
  zurueck.text = Wort(640_text);
  cmd_test_ein.text = Wort(1118_text);
  cmd_test_aus.text = Wort(1119_text);
  true_false[0].text = Wort(468_text);
  true_false[1].text = Wort(232_text);
  repeat_label.text = Wort(1115_text);
  keynote_label.text = Wort(1116_text);
  WaitMeldung.text = Wort(1120_text);
  WaitMeldung.visible = false;
  for (Control* counter : {&zaehler[0], &zaehler[1], &whlgzaehler, &GrdtonWhlg})
    counter->text = "0";
  ergebnis_anz[0].text = Wort(1100_text);
  ergebnis_anz[1].text = Wort(1101_text);
  ergebnis_anz[2].text = Wort(1102_text);
  for (int i = nriv.first; i <= nriv.last; ++i) {
    nriv[i].text = Wort(1103_text) + " " + std::to_string(i + 1);
    nriv[i].visible = false;
    ergebnis[i].visible = i <= settings().invzahl;
  }
  for (Control& mark : sounding) mark.visible = false;
  name_next_task();
  withdraw_next_task();
  wieder2.visible = false;
  wieder.enabled = false;
  grundton.enabled = true;
  Uhr.text = time_of_day(context_.clock.now());
}

void ExerciseWindow::prepare_timers() {
  spieltimer_.set_interval(static_cast<double>(playback_.beat()) * playback_.tones());
  grdton_Timer_.set_interval(playback_.beat());
  WahlAutomat_.set_interval(kAutomaticWait);
  Uhrzeit_.set_interval(kClockInterval);
  sounding_timer_.set_interval(playback_.beat());
  zeit_grenze_ = zeit_grenze_of(settings().abfr_iv);
  Uhrzeit_.enable();
}

void ExerciseWindow::prepare_level() {
  build_scale(context_.key, settings().tongeschl, settings().abfr_iv);
  if (settings().Uebungsmodus != Level::free) {
    box_.BoxAufbau(
        {to_int16(spieltimer_.interval()), to_int16(WahlAutomat_.interval()), zeit_grenze_});
  }
  if (settings().Uebungsmodus == Level::continued) resume_training();
  material_.begin();

  ergebnis_anz[0].visible = training();
  ergebnis_anz[1].visible = false;
  ergebnis_anz[2].visible = false;
  for (Control& part : matboxanz) part.visible = training();
  if (training()) show_training_standing();
  lab_aufgaben.visible = stop_uhr.visible = test();
  cmd_test_aus.visible = cmd_test_aus.enabled = test();
  cmd_test_ein.visible = cmd_test_ein.enabled = false;
  if (test()) show_test_standing();
}

void ExerciseWindow::resume_training() {
  const SavedTraining& saved = context_.saved_training.value();
  resume(saved, settings(), box_, context_.statistics);
  zaehler[1].text = std::to_string(saved.zaehler);
  whlgzaehler.text = std::to_string(saved.whlgzaehler);
}

}  // namespace tonarix
