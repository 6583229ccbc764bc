#pragma once

#include <array>
#include <cstdint>

#include "base/chance.h"
#include "music/tone.h"

namespace tonarix {

// A tone sounds as its equal-tempered MIDI note plus a deviation in bend steps. One step is 200 /
// 64 = 3.125 cents at a receiver's default range of two semitones.

/// Bend of a tone without deviation.
inline constexpr std::int16_t kBendCentre = 64;

/// Pure (Pythagorean) tuning: steps by the tone's place on the line of fifths after moving the key
/// to C, without the tens: 0 stands for D flat (10) and B (20), 9 for E (19). Row 10 is never
/// reached. Fifths of 701.95 cents from A, whose deviation is 0.
inline constexpr std::array<std::int16_t, 11> rein_abw{-5, -4, -4, -3, -2, -2, -1, -1, 0, 1, 1};

/// Mean-tone tuning after Kirnberger: steps by pitch class from C. His first tuning, pure but for
/// the fifth from D to A, which is a comma narrower, with A at 0.
inline constexpr std::array<std::int16_t, 12> kirnberger_abw{5, 2, 6, 3, 1, 4, 2, 6, 3, 0, 4, 1};

/// Deviation of a tone in the tuning `stimm_g`: 0 equal, 1 pure, 2 Kirnberger. In the pure tuning a
/// tone below the line of fifths of its key has no place in the table: RuntimeError 9.
std::int16_t tuning_deviation(const Tone& tone, std::int16_t stimm_g, std::int16_t qz_transpos);

/// Deviation of a tone that somebody plays, under any name: as above, and in the pure tuning beyond
/// the tones of the key by pure fifths further on, -20 to 16 steps.
std::int16_t played_deviation(const Tone& tone, std::int16_t stimm_g, std::int16_t qz_transpos);

/// The common detuning `freq_abw` of a new task: -16 to 16 steps, 0 when `frequenz` is 0 and then
/// without a draw.
std::int16_t draw_freq_abw(std::int16_t frequenz, Chance& chance);

/// True when tones are bent; then each tone of a row needs a channel of its own.
constexpr bool tones_are_bent(std::int16_t stimm_g, std::int16_t frequenz) {
  return stimm_g != 0 || frequenz != 0;
}

/// Channel of the row's tone at the position: channels 0 and 1 stay free for plain tones and the
/// keynote.
constexpr std::int16_t tone_channel(int position, std::int16_t stimm_g, std::int16_t frequenz) {
  return static_cast<std::int16_t>(tones_are_bent(stimm_g, frequenz) ? position + 2 : 0);
}

}  // namespace tonarix
