#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "base/texts.h"
#include "music/interval.h"
#include "music/key.h"
#include "music/tone.h"

namespace tonarix {

/// One row of a scale on C: its tone in the MIDI octave 12 to 24, the label of the degree, and the
/// |code| of the interval that it forms over the keynote. The last row, the octave, has no label.
struct Degree {
  Tone tone;
  std::string_view label;
  std::int16_t code;
};

/// Rows 0 to `anz_stufen` of Dur (0), moll (1) or Dur-moll (2), lowest first; RuntimeError 9 for
/// any other `tongeschl`.
std::span<const Degree> degrees(std::int16_t tongeschl);

/// The degrees between the keynote and its octave: what a single chosen degree can be beside them.
std::span<const Degree> degrees_above_keynote(std::int16_t tongeschl);

/// "(II) große Sekunde": what stands on the button of a degree, row 0 to `anz_stufen` - 1. The
/// first degree names both the prime and the octave. RuntimeError 9 for any other row.
std::string degree_caption(std::int16_t tongeschl, int row, const IntervalNames& names,
                           const Texts& texts);

/// |code| of the interval that a degree forms over the keynote, from a degree number with or
/// without direction, 1 to `anz_stufen` + 1. The octave row gives 0; RuntimeError 9 for a degree
/// outside the scale.
std::int16_t direct_code_of_degree(const Key& key, int degree);

}  // namespace tonarix
