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

/// The number of a degree: its row in the scale, counted from 1, with or without a direction. Not
/// to be taken for the code of an interval.
enum class DegreeNumber : std::int16_t {};

constexpr DegreeNumber degree_in(int row) {
  return static_cast<DegreeNumber>(row + 1);
}

/// One row of a scale on C: its tone in the MIDI octave 12 to 24, the label of the degree, and the
/// |code| of the interval that it forms over the keynote. The last row, the octave, has no label.
struct Degree {
  Tone tone;
  std::string_view label;
  IntervalCode code;
};

/// Rows 0 to `anz_stufen` of Dur (0), moll (1) or Dur-moll (2), lowest first; RuntimeError 9 for
/// any other `tongeschl`.
std::span<const Degree> degrees(std::int16_t tongeschl);

/// The degrees between the keynote and its octave: what a single chosen degree can be beside them.
std::span<const Degree> degrees_above_keynote(std::int16_t tongeschl);

/// "(II) große Sekunde": what stands on the button of a degree, 1 to `anz_stufen`. The first degree
/// names both the prime and the octave. RuntimeError 9 for any other number.
std::string degree_caption(std::int16_t tongeschl, DegreeNumber degree, const IntervalNames& names,
                           const Texts& texts);

/// |code| of the interval that a degree, 1 to `anz_stufen` + 1, forms over the keynote. The octave
/// gives 0; RuntimeError 9 for a degree outside the scale.
IntervalCode direct_code_of_degree(const Key& key, DegreeNumber degree);

}  // namespace tonarix
