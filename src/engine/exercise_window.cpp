#include "engine/exercise_window.h"

#include "base/arithmetic.h"
#include "engine/answer_rules.h"

namespace tonarix {

namespace {

constexpr double kAutomaticWait = 1800;   // ms between two tasks in the automatic order
constexpr double kClockInterval = 10000;  // ms
constexpr double kResetPause = 50;        // ms for a device to fall silent

}  // namespace

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

void ExerciseWindow::start_timer() {
  handle("start_timer.", [this] {
    set_common_captions();
    prepare_timers();
    prepare_level();
    prepare();
    set_answers_enabled(false);
    prepared_ = true;
  });
  if (!prepared_) return;
  if (!resume_refused_) return run("mat_wahl.", mat_wahl());
  tell(Wort(196_text) + " " + Wort(565_text), [this] { run("mat_wahl.", mat_wahl()); });
}

void ExerciseWindow::tell(const std::string& text, std::function<void()> then) {
  context_.dialogs.show({"Tonarix 2000", text, MessageStyle::warning, "", ""},
                        [then = std::move(then), alive = std::weak_ptr<bool>(alive_)](Reply) {
                          if (!alive.expired() && then) then();
                        });
}

void ExerciseWindow::name_window() {
  static constexpr std::array<TextKey, 4> kTitles{291_text, 292_text, 293_text, 715_text};
  caption = Wort(kTitles.at(static_cast<std::size_t>(settings().ueb_typ - 1)));
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
  if (settings().Uebungsmodus > 0) {
    box_.BoxAufbau(
        {to_int16(spieltimer_.interval()), to_int16(WahlAutomat_.interval()), zeit_grenze_});
  }
  if (settings().Uebungsmodus == 2) resume_training();
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
  resume_refused_ = true;
  if (context_.server.ServerRead(record_key('A'), context_.settings.AntwSicherung)) {
    const auto read = from_record(context_.settings.AntwSicherung, settings(), key());
    if (const auto* saved = std::get_if<SavedTraining>(&read)) {
      resume(*saved, settings(), box_, context_.statistics);
      zaehler[1].text = std::to_string(saved->zaehler);
      whlgzaehler.text = std::to_string(saved->whlgzaehler);
      resume_refused_ = false;
    }
  }
  if (resume_refused_) context_.caller.training_refused();
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
  const std::int16_t code = settings().abfr_iv == 0 ? to_int16(settings().stufe_wahl + 1)
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
  facts.ueb_typ = settings().ueb_typ;
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
