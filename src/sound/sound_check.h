#pragma once

#include <cstdint>
#include <vector>

#include "sound/midi.h"

namespace tonarix {

/// What a sound check is made of: the settings that shape it.
struct SoundCheck {
  std::int16_t tonraum_min = 48;  ///< MIDI notes
  std::int16_t tonraum_max = 72;
  std::int16_t invzahl = 1;  ///< the check has invzahl + 2 notes
  std::int16_t stimm_g = 0;
  std::int16_t grd_ton = 1;  ///< 0: the keynote sounds along, an octave under the range
  double beat_ms = 0;
};

/// The notes of the check: from the bottom of the range upward in equal whole steps.
std::vector<std::int16_t> test_notes(const SoundCheck& check);

/// A velocity lowered for an accompanying note, but not under 30.
std::int16_t lowered_velocity(std::int16_t velocity, std::int16_t by);

/// Queues the check's notes, each 0.9 beats long; the queue is started by the caller.
void queue_sound_check(Midi& midi, const SoundCheck& check);

}  // namespace tonarix
