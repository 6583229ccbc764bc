#include "engine/playback.h"

#include "base/arithmetic.h"
#include "sound/sound_check.h"
#include "sound/tuning.h"

namespace tonarix {

namespace {

constexpr std::int16_t kKeynoteChannel = 1;
constexpr std::int16_t kKeynoteSofter = 50;  // velocity steps under the tones
constexpr double kSoundingPart = 0.9;
constexpr double kStartPause = 100;

}  // namespace

Sequence Playback::SpieleAufgabe(const TaskTuning& tuning, Waits& waits) {
  midi_.MidiReset();
  co_await waits.Delay(kResetPause);
  if (waits.closed()) co_return;
  midi_.send_patches(settings_.patch_ar);
  co_await midi_.MidiLeiser(waits);
  if (waits.closed()) co_return;

  tag_ = 0;
  for (int i = 0; i < tones(); ++i) {
    const auto place = static_cast<std::size_t>(i);
    queue_tone(i, row_.inv_ton[place].chr, to_int16(tuning.ton_abw[place] + tuning.freq_abw),
               i * static_cast<double>(beat()));
  }
  if (settings_.grd_ton == 0) queue_keynote(tuning);

  co_await waits.Delay(kStartPause);
  if (waits.closed()) co_return;
  co_await midi_.MidiStart(waits);
}

Sequence Playback::SpieleGrundton(const KeynoteChord& chord, const TaskTuning& tuning,
                                  Waits& waits) {
  midi_.send_patches(settings_.patch_ar);
  co_await midi_.MidiLeiser(waits);
  if (waits.closed()) co_return;
  tag_ = 0;
  int place = 0;
  for (const ChordNote& tone : chord) {
    queue_tone(place++, tone.note, to_int16(tone.ton_abw + tuning.freq_abw), 0);
  }
  co_await waits.Delay(kStartPause);
  if (waits.closed()) co_return;
  co_await midi_.MidiStart(waits);
}

bool Playback::bent() const {
  return tones_are_bent(settings_.stimm_g, settings_.frequenz);
}

void Playback::queue_tone(int place, std::int16_t note, std::int16_t deviation, double start) {
  const std::int16_t channel = tone_channel(place, settings_.stimm_g, settings_.frequenz);
  if (bent()) midi_.MidiBend(to_int16(kBendCentre + deviation), channel);
  midi_.MidiNote(note, start, kSoundingPart * beat(), channel, ++tag_);
}

void Playback::queue_keynote(const TaskTuning& tuning) {
  if (bent()) {
    midi_.MidiBend(to_int16(kBendCentre + tuning.freq_abw + tuning.ton_abw[0]), kKeynoteChannel);
  }
  const std::int16_t note = to_int16(key_.skala[0].chr + grdton_lage(settings_));
  midi_.MidiNote(note, 0, beat() * static_cast<double>(tones()) - beat() / 10.0, kKeynoteChannel,
                 ++tag_, lowered_velocity(midi_.midi_lautstaerke, kKeynoteSofter));
}

}  // namespace tonarix
