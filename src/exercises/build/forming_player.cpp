#include "exercises/build/forming_player.h"

#include "base/arithmetic.h"
#include "engine/playback.h"
#include "exercises/build/forming_task.h"
#include "sound/instruments.h"
#include "sound/sound_check.h"
#include "sound/tuning.h"

namespace tonarix {

namespace {

constexpr int kTones = 3;
constexpr std::int16_t kKeynoteSofter = 20;  // velocity steps under the tones
constexpr double kSoundingPart = 0.9;
constexpr double kStartPause = 100;  // ms, before the queue starts
constexpr double kPassPause = 800;   // ms, between two playbacks
constexpr double kToneDelay = 200;   // ms, before the third tone begins to sound on
constexpr TextKey kModel = 616_text;
constexpr TextKey kNowForm = 416_text;
constexpr TextKey kFormedPitch = 483_text;
constexpr TextKey kRightPitch = 544_text;

double beat_of(const Settings& settings) {
  return settings.tempo_ms.at(static_cast<std::size_t>(settings.tempo));
}

}  // namespace

std::int16_t forming_ms(const Settings& settings) {
  return to_int16(static_cast<std::int64_t>(5 * beat_of(settings) + kPassPause + kToneDelay));
}

FormingPlayer::FormingPlayer(Scheduler& scheduler, Waits& waits, Midi& midi,
                             const Settings& settings, const Key& key, const TaskRow& row,
                             FormingDesk& desk)
    : waits_(waits),
      midi_(midi),
      settings_(settings),
      key_(key),
      row_(row),
      desk_(desk),
      spieltimer_(scheduler, [this] { desk_.run(step()); }),
      cursor_(scheduler, [this](int place) {
        if (shows) shows(place);
      }) {}

std::int16_t FormingPlayer::row_ms() const {
  return to_int16(static_cast<std::int64_t>(beat()) * kTones);
}

double FormingPlayer::beat() const {
  return beat_of(settings_);
}

std::int16_t FormingPlayer::note(int place) const {
  return row_.inv_ton.at(static_cast<std::size_t>(place)).chr;
}

std::int16_t FormingPlayer::keynote() const {
  const int oktLage = settings_.tonraum_min > 35 ? settings_.tonraum_min - 12 : 24;
  return to_int16(key_.skala[0].chr + oktLage);
}

std::int16_t FormingPlayer::keynote_velocity() const {
  return lowered_velocity(midi_.midi_lautstaerke, kKeynoteSofter);
}

Sequence FormingPlayer::play(SpielArt what, Tone) {
  const bool model = settings_.aufg == 0;
  control_ = what == SpielArt::wieder2;
  vorspiel_ = control_ || model;
  double sounding = 2 * beat();
  if (control_) {
    sounding = 3 * beat() - 0.1 * beat();
  } else if (model) {
    sounding = what == SpielArt::task ? 3 * beat() : Int(3 * beat() * kSoundingPart);
  }
  if (what == SpielArt::task) {
    bend_given_tones();
    bend_keynote();
    // In two steps, so that the channel is bent also where the slider stood there already.
    const std::int16_t start = desk_.slider;
    for (const int value : {start - 1, start + 0}) move_slider(to_int16(value));
  }
  if (vorspiel_) desk_.tells(control_ ? kFormedPitch : kModel);
  co_await spiele(vorspiel_ ? kTones : kTones - 1);
  if (!waits_.closed()) wait_for(sounding);
}

Sequence FormingPlayer::step() {
  const bool first = std::exchange(vorspiel_, false);
  if (!first) {
    if (!control_) co_await waits_.Delay(kToneDelay);
    if (waits_.closed()) co_return;
    desk_.tells({});
    if (!control_) hold_tone();
    co_return sounded();
  }
  if (!control_) desk_.tells(kNowForm);
  co_await waits_.Delay(kPassPause);
  if (waits_.closed()) co_return;
  if (control_) desk_.tells(kRightPitch);
  co_await spiele(control_ ? kTones : kTones - 1);
  if (!waits_.closed()) wait_for(control_ ? 3 * beat() - 0.1 * beat() : 2 * beat());
}

void FormingPlayer::wait_for(double ms) {
  spieltimer_.set_interval(ms);
  spieltimer_.enable();
}

Sequence FormingPlayer::spiele(int tones) {
  midi_.MidiReset();
  co_await waits_.Delay(kResetPause);
  if (waits_.closed()) co_return;
  send_patches();
  bend_given_tones();
  if (control_) {
    move_slider(vorspiel_ ? desk_.pbLetzt : desk_.ziel);
  } else if (tones == kTones) {
    bend(kFormedChannel, desk_.ziel);
  }
  co_await midi_.MidiLeiser(waits_);
  if (waits_.closed()) co_return;

  std::int32_t tag = 0;
  for (int i = 0; i < tones; ++i) {
    midi_.MidiNote(note(i), i * beat(), kSoundingPart * beat(), to_int16(kFirstChannel + i), ++tag);
  }
  bend_keynote();
  if (settings_.grd_ton == 0 && tones == kTones) {
    midi_.MidiNote(keynote(), 0, tones * beat() - 0.1 * beat(), kKeynoteChannel, ++tag,
                   keynote_velocity());
  }
  co_await waits_.Delay(kStartPause);
  if (waits_.closed()) co_return;
  co_await midi_.MidiStart(waits_);
  if (waits_.closed()) co_return;
  if (settings_.grd_ton == 0 && tones != kTones) hold_keynote();
  cursor_.begin(tones, beat());
}

void FormingPlayer::send_patches() {
  for (const std::int16_t channel : {2, 3}) SetzeKlangfarbe(midi_, settings_.patch_ar[0], channel);
  SetzeKlangfarbe(midi_, settings_.patch_ar[1], kKeynoteChannel);
  SetzeKlangfarbe(midi_, settings_.patch_ar[2], kFormedChannel);
}

void FormingPlayer::bend(std::int16_t channel, std::int16_t value) {
  midi_.MidiBend(value, channel);
}

void FormingPlayer::bend_given_tones() {
  for (int i = 0; i < kTones - 1; ++i) {
    const std::int16_t steps = tuning_.ton_abw[static_cast<std::size_t>(i)];
    bend(to_int16(kFirstChannel + i), to_int16(kBendCentre + tuning_.freq_abw + steps));
  }
}

void FormingPlayer::bend_keynote() {
  if (settings_.grd_ton != 0) return;
  bend(kKeynoteChannel, to_int16(kBendCentre + tuning_.freq_abw + tuning_.ton_abw[0]));
}

void FormingPlayer::move_slider(std::int16_t value) {
  desk_.slider = value;
  desk_.slider_moves(value);
  bend_formed_tone();
}

void FormingPlayer::hold_tone() {
  bend_formed_tone();
  tone_held_ = true;
  midi_.MidiNoteOn(note(kFormedTone), kFormedChannel);
  cursor_.stay_at(kFormedTone);
}

void FormingPlayer::hold_keynote() {
  keynote_held_ = true;
  midi_.MidiNoteOn(keynote(), kKeynoteChannel, keynote_velocity());
}

void FormingPlayer::release() {
  if (std::exchange(tone_held_, false)) midi_.MidiNoteOff(note(kFormedTone), kFormedChannel);
  if (std::exchange(keynote_held_, false)) midi_.MidiNoteOff(keynote(), kKeynoteChannel);
}

void FormingPlayer::silence() {
  const bool leaving = waits_.closed();
  spieltimer_.disable();
  cursor_.stop();
  desk_.tells({});
  release();
  midi_.MidiReset();
  if (!leaving) return;
  for (const std::int16_t channel : {2, 3, 1, 4}) {
    SetzeKlangfarbe(midi_, settings_.patch_ar[static_cast<std::size_t>(channel)], channel);
  }
}

void FormingPlayer::forget() {
  spieltimer_.disable();
  cursor_.stop();
  desk_.tells({});
  tone_held_ = keynote_held_ = false;
}

}  // namespace tonarix
