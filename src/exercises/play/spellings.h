#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "music/tones.h"

namespace tonarix {

// A piano key is divided into up to three bands, counted from its lower edge. The key says the
// pitch, the band how the tone is written. Keys are numbered so that a multiple of 12 is a c.

inline constexpr int kBands = 3;

/// A place to press: a key and one of its bands, 1 (lowest) to 3.
struct Field {
  int key = 0;
  int band = 1;
  friend constexpr bool operator==(const Field&, const Field&) = default;
};

/// 100 x band + pitch class by place on the line of fifths. Natural tones and the single sharps F#
/// to A# lie lowest; flats Gb to Bb, E#, B# and the double sharps F## to A## in the middle; double
/// flats, Fb, Cb, E## and B## on top.
inline constexpr std::array<std::int16_t, kNamedTones> qzBand{
    303, 310, 305, 300, 307, 302, 309,  // Fbb to Bbb
    304, 311, 206, 201, 208, 203, 210,  // Fb to Bb
    105, 100, 107, 102, 109, 104, 111,  // F to B
    106, 101, 108, 103, 110, 205, 200,  // F# to B#
    207, 202, 209, 204, 211, 306, 301,  // F## to B##
};

/// Band of a place on the line of fifths, 0 to 34.
constexpr int band_of(int qz) {
  return qzBand[static_cast<std::size_t>(qz)] / 100;
}

/// Pitch class of a key, 0 (c) to 11; keys below the first c too.
constexpr int pitch_class_of_key(int key) {
  return (key % 12 + 12) % 12;
}

constexpr bool is_black(int key) {
  const int pitch = pitch_class_of_key(key);
  return pitch < 5 ? pitch % 2 == 1 : pitch % 2 == 0;
}

/// The place on the line of fifths that a field stands for; none in the top band of the key between
/// g and a, which has two names only, nor for a band outside 1 to 3.
constexpr std::optional<int> spelling(const Field& field) {
  for (int qz = 0; qz < kNamedTones; ++qz) {
    if (qzBand[static_cast<std::size_t>(qz)] == 100 * field.band + pitch_class_of_key(field.key)) {
      return qz;
    }
  }
  return std::nullopt;
}

static_assert([] {
  for (int qz = 0; qz < kNamedTones; ++qz) {
    if (spelling({pitch_class(qz), band_of(qz)}) != qz) return false;
  }
  return true;
}());

}  // namespace tonarix
