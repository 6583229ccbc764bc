#include "sound/sound_check.h"

#include <algorithm>

#include "base/arithmetic.h"

namespace tonarix {

std::vector<std::int16_t> test_notes(const SoundCheck& check) {
  const double range = check.tonraum_max - check.tonraum_min;
  const std::int16_t step = round_to_int16(Int(range / (check.invzahl + 1)));
  std::vector<std::int16_t> notes;
  for (int i = 0; i < check.invzahl + 2; ++i)
    notes.push_back(to_int16(check.tonraum_min + i * step));
  return notes;
}

std::int16_t lowered_velocity(std::int16_t velocity, std::int16_t by) {
  return std::max<std::int16_t>(to_int16(velocity - by), 30);
}

void queue_sound_check(Midi& midi, const SoundCheck& check) {
  const double beat = check.beat_ms;
  const std::vector<std::int16_t> notes = test_notes(check);
  const std::int16_t kanal = check.stimm_g == 0 ? 0 : 2;
  std::int32_t tag = 0;
  for (const std::int16_t note : notes) {
    midi.MidiNote(note, tag * beat, 0.9 * beat, kanal, tag);
    ++tag;
  }
  if (check.grd_ton != 0) return;
  const double whole = static_cast<double>(notes.size()) * beat;
  midi.MidiNote(to_int16(check.tonraum_min - 12), 0, whole - 0.1 * beat, 1, tag,
                lowered_velocity(midi.midi_lautstaerke, 50));
}

}  // namespace tonarix
