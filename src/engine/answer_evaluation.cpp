#include <cstdlib>
#include <string>

#include "base/arithmetic.h"
#include "engine/answer_rules.h"
#include "engine/exercise_window.h"

namespace tonarix {

namespace {

constexpr float kWrongTry = 2.0F;  // what one wrong try adds to the error score
constexpr float kRightAtOnce =
    -4.0F;  // the reward of a right first answer, before repeats and lateness

}  // namespace

void ExerciseWindow::intervall_antw(std::int16_t code) {
  antw_seconds_ += now() - antw_start_;
  AntwDau_ = answer_tenths(antw_seconds_);
  context_.protocol.ProtokollProperty("AntwDau", AntwDau_);
  context_.protocol.ProtokollMesswerte(AntwDau_ / 10.0, wdh_gesamt_, std::nullopt);
  if (code == std::abs(iv())) {
    right_answer(code);
  } else {
    wrong_answer(code);
  }
  show_by_zustand();
}

void ExerciseWindow::right_answer(std::int16_t code) {
  const auto place = static_cast<std::size_t>(iv_nr_);
  Control& field = ergebnis[iv_nr_];
  field.back = signal::right;
  field.fore = signal::black;
  field.text = answer_text(code);
  field.accessible_name = nriv[iv_nr_].text + ": " + field.text + ", " + Wort(1123_text);
  count(zaehler[0]);
  context_.protocol.ProtokollProperty("Antwort", "true");
  if (box_.rf.at(place) == 0.0F && settings().Uebungsmodus != Level::free) {
    box_.zeit_gewicht.at(place) = ZeitStrafe(AntwDau_, zeit_grenze_);
    box_.rf.at(place) = kRightAtOnce;
  }
  settle_interval();
}

void ExerciseWindow::wrong_answer(std::int16_t code) {
  const auto place = static_cast<std::size_t>(iv_nr_);
  Control& field = ergebnis[iv_nr_];
  const bool was_red_on_black = field.fore == signal::wrong;
  field.fore = was_red_on_black ? signal::black : signal::wrong;
  field.back = was_red_on_black ? signal::wrong : signal::black;
  count(zaehler[1]);

  float& rf = box_.rf.at(place);
  rf += kWrongTry;
  const std::int16_t stored = signed_wrong_answer(key(), settings().abfr_iv, settings().ton_st_wahl,
                                                  settings().stufe_wahl, code, iv());
  box_.f_antw_wert.at(place).at(static_cast<std::size_t>(rf / kWrongTry)) = stored;
  context_.protocol.ProtokollProperty("Antwort", "false");
  context_.protocol.ProtokollProperty("FalschIv", static_cast<int>(stored));

  if (rf >= FrequencyBox::RF) {
    field.text = answer_text(to_int16(std::abs(iv())));
    field.accessible_name =
        nriv[iv_nr_].text + ": " + Wort(1124_text) + ", " + Wort(1125_text) + " " + field.text;
    settle_interval();
    return;
  }
  zustand_ = Zustand::wrong;
  field.text = Wort(232_text);
  field.accessible_name = nriv[iv_nr_].text + ": " + Wort(1124_text);
  gesperrt_.at(static_cast<std::size_t>(code)) = 1;
  AntwortenFrei();
  wdh_gesamt_ = 0;
  open_answer();
}

void ExerciseWindow::settle_interval() {
  nriv[iv_nr_].visible = false;
  ++iv_nr_;
  Weiter();
}

void ExerciseWindow::Weiter() {
  gesperrt_.fill(0);
  if (iv_nr_ != settings().invzahl + 1) {
    next_interval();
  } else {
    finish_row();
  }
}

void ExerciseWindow::next_interval() {
  zustand_ = Zustand::next_interval;
  nriv[iv_nr_].visible = true;
  AntwortenFrei();
  wdh_gesamt_ = 0;
  open_answer();
}

void ExerciseWindow::open_answer() {
  antw_seconds_ = 0;
  AntwDau_ = 0;
  antw_start_ = now();
  context_.protocol.ProtokollAntwort(++answer_lfd_, iv_nr_);
}

void ExerciseWindow::finish_row() {
  ++tasks_done_;
  zustand_ = Zustand::row_done;
  if (settings().Uebungsmodus != Level::free) {
    const BoxOutcome outcome = box_.BoxAuswerten(context_.row, iv_nr_);
    if (training()) {
      zustand_ = static_cast<Zustand>(outcome.zustand);
      show_training_standing();
      for (int i = ergebnis_anz.first; i <= ergebnis_anz.last; ++i) {
        ergebnis_anz[i].visible = i == outcome.ergebnis_anz;
      }
    }
  }
  if (test()) {
    --box_.aufg_rest;
    if (box_.aufg_rest == 0) {
      mark_way_out();
      zustand_ = Zustand::test_finished;
    } else if (box_.aufg_rest * 2 == box_.aufg_gesamt) {
      box_.TestListeFuellen();
    }
    show_test_standing();
  }
  set_answers_enabled(false);
}

void ExerciseWindow::show_by_zustand() {
  switch (zustand_) {
    case Zustand::next_interval:
    case Zustand::wrong:
      return;
    case Zustand::row_done:
      wieder.visible = wieder.enabled = false;
      wieder2.visible = wieder2.enabled = true;
      grundton.enabled = true;
      material_.erster_lauf = false;
      question.text.clear();
      hint.text = Wort(1109_text);
      return;
    case Zustand::training_finished:
      CmdNextAufg.visible = false;
      wieder.visible = wieder.enabled = false;
      wieder2.visible = wieder2.enabled = true;
      grundton.enabled = true;
      mark_way_out();
      question.text.clear();
      hint.text = Wort(1114_text);
      forget_saved_training();
      return;
    case Zustand::test_finished:
      Uhrzeit_.disable();
      withdraw_next_task();
      wieder.enabled = false;
      question.text.clear();
      hint.text = Wort(1117_text);
      return;
  }
}

void ExerciseWindow::mark_way_out() {
  zurueck.back = signal::finished;
  zurueck.fore = signal::wrong;
  zurueck.text = Wort(625_text);
}

void ExerciseWindow::end_test() {
  stop_all();
  zustand_ = Zustand::test_finished;
  for (Control& mark : nriv) mark.visible = false;
  set_answers_enabled(false);
  grundton.enabled = wieder2.enabled = false;
  mark_way_out();
  show_by_zustand();
}

void ExerciseWindow::show_test_standing() {
  const int left = std::max<int>(box_.aufg_dauer, 0);
  stop_uhr.text = Wort(461_text) + " " + std::to_string(left / 60) + " " + Wort(394_text) + " " +
                  std::to_string(left % 60) + " " + Wort(480_text);
  lab_aufgaben.text = Wort(462_text) + " " + std::to_string(box_.aufg_rest);
}

void ExerciseWindow::show_training_standing() {
  const int percent = static_cast<int>(box_.percentage());
  constexpr int kSegments = 15;
  for (int part = 0; part < kSegments; ++part) {
    matboxanz[part].back.reset();
    if (percent * kSegments > part * 100) matboxanz[part].back = signal::locked;
  }
  matboxanz[kSegments].text = std::to_string(percent);
}

void ExerciseWindow::count(Control& counter) {
  counter.text = std::to_string(std::stoi(counter.text) + 1);
}

}  // namespace tonarix
