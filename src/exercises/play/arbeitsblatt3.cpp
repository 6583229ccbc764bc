#include "exercises/play/arbeitsblatt3.h"

#include <cstdlib>

#include "base/arithmetic.h"
#include "base/filled_text.h"
#include "base/module_texts.h"
#include "base/runtime_error.h"
#include "engine/answer_words.h"
#include "exercises/play/played_key.h"
#include "settings/setting_pairs.h"
#include "sound/tuning.h"

namespace tonarix {

namespace {

constexpr Colour kSoundingKey = RGB(255, 224, 192);
constexpr std::int16_t kFirstClickFree = 20;  // tenths of a second
constexpr std::array kKeyNames{text::key_of_major, text::key_of_minor,
                               text::key_of_major_and_minor};
constexpr std::int16_t kMoll = 1;

}  // namespace

Arbeitsblatt3::Arbeitsblatt3(const ExerciseContext& given)
    : SoundingWindow("arbeitsblatt3", given, this),
      KeynoteControls(static_cast<Window&>(*this)),
      names_(given.common.texts, given.tone_names) {
  for (Control& key : taste) key.visible = key.enabled = false;
}

void Arbeitsblatt3::prepare() {
  SoundingWindow::prepare();
  const Settings& settings = context().settings;
  row_title.text = word(text::tone_row);
  field_note.text = word(text::field_says_spelling);
  Klavierrahmen.accessible_name = word(text::piano_keyboard);
  grundtlb.text = word(text::key_title) + ":";
  settings_line.text = joined_values(settings.EinstDatSave, {"Stimmung", "Tempo"});
  for (int i = int_lb.first; i <= int_lb.last; ++i) {
    int_lb[i].text = filled(word(text::number_of_tone), {std::to_string(i + 1)});
    int_lb[i].visible = tries[i].visible = warnung[i].visible = false;
    ergPic[i].visible = i <= settings.invzahl + 1;
  }
}

TestTiming Arbeitsblatt3::test_timing(const TestTiming& usual) const {
  TestTiming timing = usual;
  timing.shortened = three_quarters;
  timing.one_degree_is_long = false;
  return timing;
}

// Why a row came out as it did can be read in the host's log; a host without one is no trouble.
void Arbeitsblatt3::row_drawn(std::span<const RangeMove> moves) {
  const auto number = [](int value) { return std::to_string(value); };
  for (const RangeMove& move : moves) {
    std::string line = "  Ton " + number(move.tone) + " = außerhalb  inv_ton(i, 0) neu  " +
                       number(move.chr) + " vorher:  " + number(move.iv_before) +
                       " nachher : " + number(move.iv);
    if (std::abs(move.iv) != std::abs(move.iv_before)) line += " KomplementärIv";
    if (move.seeming_octave) line += "  '=scheinbare Oktave ";
    try {
      context().server.ServerLogMess(line);
    } catch (const std::exception&) {
      return;
    }
  }
}

LessonFacts Arbeitsblatt3::lesson_facts() {
  LessonFacts facts = SoundingWindow::lesson_facts();
  facts.iv_nr = 1;  // answers are numbered by the tone they lead to
  return facts;
}

const Tone& Arbeitsblatt3::row_tone(int place) const {
  return context().row.inv_ton.at(static_cast<std::size_t>(place));
}

Tone Arbeitsblatt3::tone_of(const Field& field) const {
  return {to_int16(note_of(field.key, tasteBasis())), to_int16(spelling(field).value())};
}

Field Arbeitsblatt3::field_of(const Tone& tone) const {
  return {key_of(tone.chr, tasteBasis()), band_of(tone.qz)};
}

std::string Arbeitsblatt3::caption(const Field& field) const {
  return names_.caption(field, note_of(field.key, tasteBasis()));
}

std::string Arbeitsblatt3::spoken(const Field& field) const {
  return spelling(field) ? in_full(tone_of(field)) : std::string();
}

std::string Arbeitsblatt3::in_full(const Tone& tone) const {
  return names_.spoken(tone) + ", " + names_.band(band_of(tone.qz));
}

std::string Arbeitsblatt3::key_name() const {
  const auto mode = context().settings.tongeschl;
  const int keynote = context().key.skala[0].qz;
  const ToneNames& tones = context().tone_names;
  return filled(word(kKeyNames.at(static_cast<std::size_t>(mode))),
                {mode == kMoll ? tones.lower(keynote) : tones.upper(keynote)});
}

void Arbeitsblatt3::show_task() {
  keys_ = key_range(context().settings, context().key, context().row);
  for (Control& key : taste) {
    key.visible = *key.index() >= keys_.lowest && *key.index() <= keys_.highest;
    key.back = std::nullopt;
  }
  finished_tone_.reset();
  tonNr_ = 0;
  erstKlick_ = true;
  for (int i = ergPic.first; i <= ergPic.last; ++i) {
    ergPic[i].text.clear();
    ergPic[i].back = ergPic[i].fore = std::nullopt;
    ergPic[i].accessible_name = int_lb[i].text;
    warnung[i].visible = false;
    warnung[i].text.clear();
  }
  if (const std::string key = key_name(); key != grdton_pic.text) {
    grdton_pic.text = key;
    announce(grundtlb.text + " " + key);
  }
}

void Arbeitsblatt3::open_answers(bool open) {
  for (Control& key : taste) key.enabled = open && !locked(*key.index());
}

void Arbeitsblatt3::show_actions(const Actions& actions) {
  SoundingWindow::show_actions(actions);
  // What begins now silences the device itself.
  if (is_sounding(actions.phase) || actions.phase >= Phase::time_up) turn_off();
  if (is_sounding(actions.phase)) heard_ = false;
  if (actions.phase != Phase::leaving) mark_asked(actions.asks);
}

void Arbeitsblatt3::mark_asked(bool asked) {
  for (int i = int_lb.first; i <= int_lb.last; ++i) {
    int_lb[i].visible = asked && i == tonNr_;
    tries[i].visible = int_lb[i].visible && !erstKlick_;
    if (tries[i].visible) tries[i].text = std::to_string(answers().book.tries_left(i - 1));
  }
}

void Arbeitsblatt3::row_sounded() {
  heard_ = true;
  if (lesson_number() == 1 && erstKlick_) announce(word(text::how_to_begin_row));
}

void Arbeitsblatt3::hearing(SpielArt what) {
  if (what == SpielArt::wieder) tasteGesperrt_.reset();
}

TextKey Arbeitsblatt3::line(TextKey usual) const {
  if (usual != text::how_to_answer) return usual;
  return erstKlick_ ? text::how_to_begin_row : text::how_to_play;
}

std::string Arbeitsblatt3::question_text() const {
  return filled(word(text::play_tone), {std::to_string(tonNr_ + 1)});
}

void Arbeitsblatt3::taste_down(int key, std::optional<int> band) {
  if (!band || !spelling({key, *band})) return;
  press(taste[key], "tasten_click.", [&] { tasten_click({key, *band}); });
}

void Arbeitsblatt3::taste_up() {
  if (sounding_) handle("tasten_click.", [this] { let_go(); });
}

void Arbeitsblatt3::let_go() {
  if (!sounding_) return;
  const SoundingKey key = *sounding_;
  turn_off();
  context().midi.MidiNoteOff(key.note, key.channel);
}

// The tone goes out before anything else. It is an answer on a silent device too, which is told
// once and tried again with the next row.
void Arbeitsblatt3::tasten_click(const Field& field) {
  std::exception_ptr failure;
  try {
    if (heard_) sound(field);
  } catch (const RuntimeError&) {
    failure = std::current_exception();
    heard_ = false;
  }
  tasteBand_ = field.band;
  erstKlick_ ? first_click() : answer(field);
  if (failure) std::rethrow_exception(failure);
}

void Arbeitsblatt3::sound(const Field& field) {
  let_go();
  const Settings& settings = context().settings;
  const Tone tone = tone_of(field);
  // Where tones are bent each has the channel that is its own when the row is played.
  const std::int16_t channel = tone_channel(tonNr_, settings.stimm_g, settings.frequenz);
  if (tones_are_bent(settings.stimm_g, settings.frequenz)) {
    const int deviation = played_deviation(tone, settings.stimm_g, context().key.qz_transpos);
    context().midi.MidiBend(to_int16(kBendCentre + player().tuning().freq_abw + deviation),
                            channel);
  }
  context().midi.MidiNoteOn(tone.chr, channel);
  sounding_ = {field.key, tone.chr, channel};
  taste[field.key].back = kSoundingKey;
}

void Arbeitsblatt3::turn_off() {
  if (!sounding_) return;
  taste[sounding_->key].back = std::nullopt;
  sounding_.reset();
}

// The row begins anywhere in sight: only how its first tone is written is judged.
void Arbeitsblatt3::first_click() {
  const float tenths = answers().stop();
  if (level() != Level::free) answers().book.add_lateness(0, tenths, kFirstClickFree);
  erstKlick_ = false;
  const Tone& first = row_tone(0);
  const bool spelled = tasteBand_ == band_of(first.qz);
  show_tone(spelled ? signal::right : signal::given,
            word(spelled ? text::spoken_right : text::spoken_solution));
  if (!spelled) warn(561_text);
  const std::string told = spelled ? word(468_text) + ": " + names_.spoken(first) + "."
                                   : filled(word(text::first_spelling_wrong), {in_full(first)});
  announce(told);
  finish_tone();
  answers().restart();
  hint.text = spelled ? word(line(text::how_to_answer)) : told;
  go_on_after_answer();
}

void Arbeitsblatt3::answer(const Field& field) {
  const float tenths = answers().take();
  const int place = tonNr_ - 1;
  const KeyVerdict verdict = judge_key(field, row_tone(tonNr_), row_tone(tonNr_ - 1), tasteBasis());
  const bool nearly = verdict == KeyVerdict::tone_right || verdict == KeyVerdict::octave_right;
  std::string told;
  switch (verdict) {
    case KeyVerdict::right:
      told = right_answer(tenths);
      break;
    case KeyVerdict::tone_right:
      told = near_miss("TrOf", 433_text, text::other_register);
      break;
    case KeyVerdict::octave_right:
      told = near_miss("TfOr", 561_text, text::other_spelling);
      break;
    case KeyVerdict::wrong:
      told = wrong_answer(field);
      break;
  }
  announce(told);
  if (!answers().book.open(place)) finish_tone();
  if (!answers().book.done()) answers().open_next(to_int16(tonNr_));
  const std::string words = hint.text;
  go_on_after_answer();
  // What was nearly right in the last tone stays to be read.
  if (nearly && answers().book.done()) hint.text = words;
}

std::string Arbeitsblatt3::right_answer(float tenths) {
  show_tone(signal::right, word(text::spoken_right));
  answers().right(tonNr_ - 1, tenths);
  hint.text = word(text::how_to_play);
  return word(468_text) + ": " + names_.spoken(row_tone(tonNr_)) + ".";
}

std::string Arbeitsblatt3::near_miss(const char* verdict, TextKey warning, TextKey words) {
  show_tone(signal::open, word(warning));
  warn(warning);
  answers().near_miss(tonNr_ - 1, verdict);
  hint.text = filled(word(words), {in_full(row_tone(tonNr_))});
  return hint.text;
}

std::string Arbeitsblatt3::wrong_answer(const Field& field) {
  const int place = tonNr_ - 1;
  const std::int16_t value =
      played_interval(tone_of(field), row_tone(place), context().settings, context().key);
  hint.text = word(text::how_to_play);
  if (answers().wrong(place, value) == Verdict::given_up) {
    show_tone(signal::given, word(text::spoken_solution));
    return word(232_text) + ", " + word(text::spoken_solution) + ": " + in_full(row_tone(tonNr_)) +
           ".";
  }
  Control& result = ergPic[tonNr_];
  const std::string still =
      show_wrong_try(result, int_lb[tonNr_].text, answers().book, place, common().texts);
  tasteGesperrt_.set(static_cast<std::size_t>(field.key));
  taste[field.key].back = std::nullopt;
  open_answers(true);
  mark_asked(true);
  return result.text + ", " + still + ".";
}

void Arbeitsblatt3::show_tone(const Colour& ground, const std::string& verdict) {
  Control& result = ergPic[tonNr_];
  const Tone& tone = row_tone(tonNr_);
  result.back = ground;
  result.fore = signal::black;
  result.text = names_.written(tone);
  // What the program tells reads differently from what was played, in grey too.
  if (ground == signal::given) result.text = verdict + ": " + result.text;
  result.accessible_name = int_lb[tonNr_].text + ": " + names_.spoken(tone) + ", " + verdict;
}

void Arbeitsblatt3::warn(TextKey what) {
  Control& warning = warnung[tonNr_];
  warning.text = word(what) + word(703_text);
  warning.back = signal::finished;
  warning.fore = signal::black;
  warning.visible = true;
}

void Arbeitsblatt3::finish_tone() {
  finished_tone_ = field_of(row_tone(tonNr_));
  ++tonNr_;
  tasteGesperrt_.reset();
  open_answers(true);
  mark_asked(tonNr_ <= context().settings.invzahl + 1);
}

}  // namespace tonarix
