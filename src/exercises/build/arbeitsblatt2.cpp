#include "exercises/build/arbeitsblatt2.h"

#include <algorithm>
#include <cstdlib>

#include "base/arithmetic.h"
#include "base/filled_text.h"
#include "base/module_texts.h"
#include "engine/answer_words.h"
#include "engine/playback.h"
#include "exercises/build/forming_task.h"
#include "settings/accuracy.h"
#include "settings/setting_pairs.h"

namespace tonarix {

namespace {

constexpr Colour kOpenSlider = RGB(255, 128, 0);
constexpr Colour kClosedSlider = RGB(255, 224, 192);
constexpr std::array kTunings{546_text, 458_text, 401_text};

/// "große Terz aufwärts"; an octave leap has the code of a prime.
std::string interval_words(std::int16_t iv, bool leap, const IntervalNames& names,
                           const Texts& texts) {
  constexpr int kPrime = 1;
  const int size = std::abs(iv);
  const IntervalCode code{to_int16(size == kPrime && leap ? 0 : size)};
  return names.long_name(code) + " " + texts.Wort(Sgn(iv) == 1 ? 131_text : 82_text);
}

}  // namespace

std::string gap_words(int steps, const Texts& texts) {
  if (steps == 0) return texts.Wort(text::pitch_exact);
  const bool high = steps > 0;
  const std::string cents = cents_text(std::abs(steps), texts);
  if (std::abs(steps) == 1) {
    return filled(texts.Wort(high ? text::one_step_high : text::one_step_low), {cents});
  }
  return filled(texts.Wort(high ? text::steps_high : text::steps_low),
                {std::to_string(std::abs(steps)), cents});
}

Arbeitsblatt2::Arbeitsblatt2(const ExerciseContext& given)
    : SoundingWindow("arbeitsblatt2", given), PlaceControls(static_cast<Window&>(*this)) {
  context().settings.abfr_iv = Naming::from_tone_before;
  desk_.slider_moves = [this](std::int16_t value) {
    sldPitch.value = value;
    changed();
  };
  desk_.tells = [this](std::optional<TextKey> what) {
    vorgabe_lab.visible = what.has_value();
    vorgabe_lab.text = what ? word(*what) : std::string();
    if (what) announce(vorgabe_lab.text);
    changed();
  };
  desk_.run = [this](Sequence step) { run("spieltimer_timer.", std::move(step)); };
  RTxtBox.visible = help_close.visible = false;
  vorgabe_lab.visible = sldPitch.enabled = cmdok.enabled = false;
}

std::unique_ptr<RowPlayer> Arbeitsblatt2::make_player() {
  const ExerciseContext& given = context();
  auto player = std::make_unique<FormingPlayer>(scheduler(), waits(), given.midi, given.settings,
                                                given.key, given.row, desk_);
  player->shows = [this](int place) { show_sounding(place); };
  return player;
}

void Arbeitsblatt2::prepare() {
  SoundingWindow::prepare();
  const Settings& settings = context().settings;
  wieder2.text = word(370_text);
  cmdok.text = word(text::tone_is_formed);
  for (const auto& [index, key] :
       {std::pair{0, 159_text}, {1, 633_text}, {2, 635_text}, {3, 634_text}}) {
    Label2[index].text = word(key);
  }
  var_th.text = sldPitch.accessible_name = word(604_text);
  Label1.text = word(271_text);
  Label3.text = word(545_text);
  stimm_anz.text =
      Label2[2].text + ": " + word(kTunings.at(static_cast<std::size_t>(settings.stimm_g)));
  row_title.text = word(text::tone_row);
  lower_end.text = word(text::lower);
  higher_end.text = word(text::higher);
  slider_keys.text = word(text::slider_keys);
  accuracy_title.text = word(text::accuracy_title);
  accuracy.text = setting_value(settings.EinstDatSave, "Genauigkeit");
  settings_line.text =
      joined_values(settings.EinstDatSave, {"Tongeschlecht", "Stimmung", word(341_text), "Tempo"});
  accuracy_note.text = accuracy_words(settings.genau, common().texts);
  if (const auto page = context().help_page("tb06_bildenIv_")) help_page_ = rich_text_html(*page);
  RTxtBox.text = word(text::help_caption);
  help_close.text = word(text::help_close);
  for (int i = nriv.first; i <= nriv.last; ++i) {
    nriv[i].text = word(text::interval_number) + " " + std::to_string(i + 1);
    nriv[i].visible = false;
    ergebnis[i].visible = i <= kAsked;
  }
}

// Where all three tones are heard before the two, a test has time for both.
TestTiming Arbeitsblatt2::test_timing(const TestTiming& usual) const {
  TestTiming timing = usual;
  if (context().settings.aufg == 0) timing.spieltimer = forming_ms(context().settings);
  return timing;
}

TaskTuning Arbeitsblatt2::tune() {
  const ExerciseContext& given = context();
  const TaskTuning tuning = tune_forming(given.settings, given.row, given.chance);
  const SliderRange range = draw_slider(tuning, given.settings.genau, given.chance);
  desk_.ziel = target_of(tuning);
  desk_.slider = range.start;
  sldPitch.minimum = range.low;
  sldPitch.maximum = range.high;
  sldPitch.value = range.start;
  return tuning;
}

void Arbeitsblatt2::show_task() {
  const auto words = [this](int place) {
    const auto& tones = context().row.inv_ton;
    const auto from = static_cast<std::size_t>(place);
    return interval_words(answers().book.place(place).interval,
                          tones[from].chr != tones[from + 1].chr, context().interval_names,
                          common().texts);
  };
  aufg.text = words(kAsked);
  ergebnis[kGiven].text = words(kGiven);
  ergebnis[kAsked].text.clear();
  for (const int place : {kGiven, kAsked}) {
    ergebnis[place].back = ergebnis[place].fore = std::nullopt;
    ergebnis[place].accessible_name = nriv[place].text;
  }
  ergebnis[kGiven].accessible_name += ": " + ergebnis[kGiven].text;
  for (Control& value : LabPitch) value.text.clear();
  pitch_gap.text.clear();
  pitches_.reset();
  okFrei_ = true;
  close_help();
  announce(question_text());
}

// The page stands where the slider stood, which rests meanwhile, as does the answer clock.
void Arbeitsblatt2::show_help(const std::function<void()>& closed) {
  if (help_page_.empty()) return SoundingWindow::show_help(closed);
  if (RTxtBox.visible) return close_help(), closed();
  help_closed_ = closed;
  RTxtBox.visible = help_close.visible = true;
  open_answers(actions_in(phase()).answers);
}

void Arbeitsblatt2::help_close_click() {
  press(help_close, "cmdHilfe_click.", [this] { close_help(); });
}

void Arbeitsblatt2::close_help() {
  if (!RTxtBox.visible) return;
  RTxtBox.visible = help_close.visible = false;
  open_answers(actions_in(phase()).answers);
  if (const auto closed = std::exchange(help_closed_, nullptr)) closed();
}

void Arbeitsblatt2::open_answers(bool open) {
  open = open && !RTxtBox.visible;
  sldPitch.enabled = open;
  sldPitch.back = open ? kOpenSlider : kClosedSlider;
  cmdok.enabled = open && okFrei_;
}

void Arbeitsblatt2::tell_what_to_do() {
  hint.text = word(line(text::how_to_answer));
}

void Arbeitsblatt2::show_actions(const Actions& actions) {
  SoundingWindow::show_actions(actions);
  if (actions.phase == Phase::leaving) return;
  nriv[kAsked].visible = actions.asks;
  show_tries();
}

void Arbeitsblatt2::show_tries() {
  tries[kAsked].visible = nriv[kAsked].visible;
  tries[kAsked].text = std::to_string(answers().book.tries_left(kAsked));
}

TextKey Arbeitsblatt2::line(TextKey usual) const {
  if (usual == text::listen && phase() == Phase::sounding) return {};
  if (usual == text::how_to_answer) return okFrei_ ? text::how_to_form : text::move_first;
  if (usual == text::may_hear_again) return text::may_hear_both;
  if (usual == text::row_is_done) return text::task_is_done;
  return usual;
}

std::string Arbeitsblatt2::question_text() const {
  return filled(word(text::form_interval), {aufg.text});
}

const Control* Arbeitsblatt2::default_button() const {
  if (takes_input(help_close)) return &help_close;
  return takes_input(cmdok) ? &cmdok : SoundingWindow::default_button();
}

void Arbeitsblatt2::sldPitch_change(int value) {
  press(sldPitch, "sldPitch_change.", [&] {
    value = std::clamp(value, sldPitch.minimum, sldPitch.maximum);
    sldPitch.value = value;
    desk_.slider = to_int16(value);
    okFrei_ = cmdok.enabled = true;
    forming_player().follow_slider();
    tell_what_to_do();
  });
}

void Arbeitsblatt2::cmdok_click() {
  press(cmdok, "cmdOK_click.", [this] { answer(); });
}

void Arbeitsblatt2::answer() {
  cmdok.enabled = false;
  const int gap = desk_.slider - desk_.ziel;
  const float tenths = answers().take(gap);
  const int limit = genauGrenze.at(static_cast<std::size_t>(context().settings.genau));
  announce(std::abs(gap) < limit ? right_answer(tenths) : wrong_answer());
  const bool done = answers().book.done();
  if (done) announce(gap_words(gap, common().texts) + ".");
  go_on_after_answer();
  if (!done) return;
  desk_.pbLetzt = desk_.slider;
  run("cmdOK_click.", show_pitches());
  player().silence();
}

std::string Arbeitsblatt2::right_answer(float tenths) {
  solve(signal::black, signal::right);
  ergebnis[kAsked].accessible_name += ", " + word(text::spoken_right);
  answers().right(kAsked, tenths);
  return word(468_text) + ":";
}

std::string Arbeitsblatt2::wrong_answer() {
  okFrei_ = false;
  if (answers().wrong(kAsked, 0) == Verdict::given_up) {
    solve(signal::given, signal::black);
    ergebnis[kAsked].accessible_name += ", " + word(text::spoken_solution);
    return word(232_text) + ":";
  }
  Control& field = ergebnis[kAsked];
  const std::string still =
      show_wrong_try(field, nriv[kAsked].text, answers().book, kAsked, common().texts);
  show_tries();
  tell_what_to_do();
  answers().open_next(kAsked);
  return field.text + ", " + still + ". " + hint.text;
}

void Arbeitsblatt2::solve(const Colour& back, const Colour& fore) {
  Control& field = ergebnis[kAsked];
  field.back = back;
  field.fore = fore;
  field.text = aufg.text;
  field.accessible_name = nriv[kAsked].text + ": " + field.text;
}

// The next task may begin before that; the pitches of this one are not to be told then.
Sequence Arbeitsblatt2::show_pitches() {
  const int task = lesson_number();
  const Pitches pitches{desk_.slider, desk_.ziel};
  co_await Delay(kResetPause);
  if (task != lesson_number()) co_return;
  pitches_ = pitches;
  LabPitch[0].text = std::to_string(pitches.formed);
  LabPitch[1].text = std::to_string(pitches.target);
  pitch_gap.text = gap_words(pitches.formed - pitches.target, common().texts);
}

}  // namespace tonarix
