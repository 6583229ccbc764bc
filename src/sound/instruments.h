#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "sound/midi.h"

namespace tonarix {

/// The 128 General MIDI programs in the standard's order, in this program's wording.
extern const std::array<std::string_view, 128> general_midi_programs;

/// Programs at start where intervals are named, played or written: the tones on channel 0, the
/// keynote on channel 1.
inline constexpr std::array<std::int16_t, 8> kPatchesForRows{0, 43, 0, 0, 0, 0, 0, 0};
/// Programs at start where a tone is formed: the tones on channel 0, the keynote on channel 1, the
/// student's tone on channel 2.
inline constexpr std::array<std::int16_t, 8> kPatchesForForming{73, 0, 71, 73, 73, 73, 73, 73};

/// Sends the program to the channel.
void SetzeKlangfarbe(Midi& midi, std::int16_t patch, std::int16_t kanal);

/// The first channel that follows what is chosen for the tones. Where a tone is formed, channel 2
/// keeps the instrument of the student's own tone.
inline constexpr std::int16_t kFollowsForRows = 2;
inline constexpr std::int16_t kFollowsForForming = 3;

/// Takes the program for the channel, 0 to 7, and sends it; what is taken for channel 0 holds for
/// the channels from `follows` to 7 too. All of it is taken before the first message goes out, so
/// that a device that refuses (RuntimeError 57) loses nothing.
void choose_patch(Midi& midi, std::array<std::int16_t, 8>& patch_ar, std::int16_t kanal,
                  std::int16_t patch, std::int16_t follows);

}  // namespace tonarix
