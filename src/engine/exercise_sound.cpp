#include <algorithm>

#include "base/arithmetic.h"
#include "engine/exercise_window.h"

namespace tonarix {

Sequence ExerciseWindow::play(SpielArt spiel_art) {
  spiel_art_ = spiel_art;
  hint.text = Wort(spiel_art == SpielArt::grundton ? 1122_text : 1110_text);
  return spiel_art == SpielArt::grundton ? play_keynote() : play_task();
}

Sequence ExerciseWindow::play_task() {
  co_await playback_.SpieleAufgabe(tuning_, waits());
  if (waits().closed()) co_return;
  show_sounding(0);
  spieltimer_.enable();
}

void ExerciseWindow::all_notes_off() {
  show_sounding(-1);
  context_.midi.MidiReset();
}

void ExerciseWindow::show_sounding(int place) {
  sounding_place_ = place >= 0 && place < playback_.tones() ? place : -1;
  for (int i = sounding.first; i <= sounding.last; ++i) {
    sounding[i].visible = i == sounding_place_;
  }
  if (sounding_place_ >= 0) {
    sounding_timer_.enable();
  } else {
    sounding_timer_.disable();
  }
}

void ExerciseWindow::MIDI_QueueEmpty() {
  handle("MIDI_QueueEmpty.", [this] { show_sounding(-1); });
}

void ExerciseWindow::spieltimer_timer() {
  handle("spieltimer_timer.", [this] { NachSpiel(); });
}

void ExerciseWindow::grdton_Timer_timer() {
  handle("grdton_Timer_timer.", [this] {
    if (!waits().closed()) NachSpiel();
  });
}

void ExerciseWindow::NachSpiel() {
  show_sounding(-1);
  hint.text.clear();
  if (spiel_art_ != SpielArt::wieder2) {
    AntwortenFrei();
    wieder.enabled = grundton.enabled = true;
    antw_start_ = now();
    if (Schalter) run("AutoAntwort.", AutoAntwort());
    return;
  }
  wieder2.enabled = grundton.enabled = true;
  if (over()) {
    hint.text = Wort(test() ? 1117_text : 1114_text);
  } else if (!waits().closed()) {
    offer_next_task();
  }
}

void ExerciseWindow::wieder_click() {
  press(wieder, "wieder_click.", [this] { return wieder_sequence(); });
}

Sequence ExerciseWindow::wieder_sequence() {
  wieder.enabled = grundton.enabled = false;
  set_answers_enabled(false);
  spiel_art_ = SpielArt::wieder;
  antw_seconds_ += now() - antw_start_;
  all_notes_off();
  co_await Delay(kResetPause);
  if (waits().closed()) co_return;
  count(whlgzaehler);
  box_.wdh_gewicht.at(static_cast<std::size_t>(iv_nr_)) += 1;
  wdh_gesamt_ += 1.0F;
  co_await play(SpielArt::wieder);
}

void ExerciseWindow::wieder2_click() {
  press(wieder2, "wieder2_click.", [this] { return wieder2_sequence(); });
}

Sequence ExerciseWindow::wieder2_sequence() {
  wieder2.enabled = grundton.enabled = false;
  spiel_art_ = SpielArt::wieder2;
  withdraw_next_task();
  all_notes_off();
  co_await Delay(kResetPause);
  if (waits().closed()) co_return;
  co_await play(SpielArt::wieder2);
}

void ExerciseWindow::grundton_click() {
  press(grundton, "grundton_click.", [this] { return grundton_sequence(); });
}

Sequence ExerciseWindow::grundton_sequence() {
  const bool during_task = wieder.open();
  grundton.enabled = false;
  wieder.enabled = wieder2.enabled = false;
  spiel_art_ = during_task ? SpielArt::grundton : SpielArt::wieder2;
  withdraw_next_task();
  if (during_task) {
    set_answers_enabled(false);
    antw_seconds_ += now() - antw_start_;
  }
  all_notes_off();
  co_await Delay(kResetPause);
  if (waits().closed()) co_return;
  if (during_task) {
    auto& repeats = box_.wdh_gewicht.at(static_cast<std::size_t>(iv_nr_));
    repeats = round_to_int16(Round(repeats + 0.5));
    count(GrdtonWhlg);
    wdh_gesamt_ += 0.5F;
  }
  hint.text = Wort(1122_text);
  co_await play_keynote();
}

Sequence ExerciseWindow::play_keynote() {
  const Tone just_answered =
      context_.row.inv_ton.at(static_cast<std::size_t>(std::min<int>(iv_nr_, 5)));
  const KeynoteChord chord =
      keynote_chord(settings(), key(), just_answered, material_.terz_typ, context_.chance);
  co_await playback_.SpieleGrundton(chord, tuning_, waits());
  if (waits().closed()) co_return;
  grdton_Timer_.enable();
}

// A silent device takes nothing away that was earned: the answers open as if the row had sounded,
// and the next playback opens the device anew.
void ExerciseWindow::device_failed(std::string_view tag, std::exception_ptr error) {
  context_.errors.log(tag, error);
  spieltimer_.disable();
  grdton_Timer_.disable();
  NachSpiel();
  // The time that goes into reading the message is not the student's.
  tell(Wort(1128_text), [this] { antw_start_ = now(); });
}

}  // namespace tonarix
