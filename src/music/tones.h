#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "base/texts.h"
#include "music/tone.h"

namespace tonarix {

/// Tones of the line of fifths that have a name: Fbb (0) to B## (34).
inline constexpr int kNamedTones = 35;
inline constexpr int kHighestOctaveMark = 8;

constexpr bool has_name(int qz) {
  return qz >= 0 && qz < kNamedTones;
}

/// Pitch class, 0 (C) to 11, of a place on the line of fifths, 0 to 34.
constexpr int pitch_class(int qz) {
  return (7 * qz + 3) % 12;
}

/// The octave a tone is written in, 4 for the small octave (MIDI 48 to 59). Cbb and Cb are written
/// one higher than they sound, B# and B## one lower.
constexpr int written_octave(Tone tone) {
  const int octave = tone.chr / 12;
  if (tone.qz == 1 || tone.qz == 8) return octave + 1;
  if (tone.qz == 27 || tone.qz == 34) return octave - 1;
  return octave;
}

/// Place of the first tone with this `qz` among rows 0 to `last`, counted from 1; 0 when there is
/// none.
constexpr int position_in_list(int qz, std::span<const Tone> list, int last) {
  for (int row = 0; row <= last; ++row) {
    if (list[static_cast<std::size_t>(row)].qz == qz) return row + 1;
  }
  return 0;
}

/// The tone names of the language in force, loaded once.
class ToneNames {
 public:
  explicit ToneNames(const Texts& texts);

  /// The tone with its octave. RuntimeError 9 for an octave without a mark (below 0 or above 8) or
  /// a `qz` outside 0 to 34.
  std::string name(Tone tone) const;
  /// The lower-case form without an octave, or the upper-case one. `qz` from 0 to 34.
  const std::string& lower(int qz) const { return names_.at(static_cast<std::size_t>(qz)).lower; }
  const std::string& upper(int qz) const { return names_.at(static_cast<std::size_t>(qz)).upper; }
  /// The mark of an octave from 0 to 8; 3 and 4 have marks that are never printed.
  const std::string& octave_mark(int octave) const {
    return octave_marks_.at(static_cast<std::size_t>(octave));
  }
  /// The name of the tone in one row; RuntimeError 9 also when there is no such row.
  std::string ErmStatStrTon(int index, std::span<const Tone> row) const;

 private:
  struct Name {
    std::string lower;
    std::string upper;
  };
  std::array<Name, kNamedTones> names_;
  std::array<std::string, kHighestOctaveMark + 1> octave_marks_;  // 0 stays empty
};

}  // namespace tonarix
