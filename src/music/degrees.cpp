#include "music/degrees.h"

#include <array>
#include <cstdlib>

#include "base/runtime_error.h"
#include "music/tones.h"

namespace tonarix {
namespace {

constexpr std::array<Degree, 8> kDur{{
    // {chr, qz}, label, code over the keynote
    {{12, 15}, "(I)", IntervalCode{1}},
    {{14, 17}, "(II)", IntervalCode{4}},
    {{16, 19}, "(III)", IntervalCode{8}},
    {{17, 14}, "(IV)", IntervalCode{3}},
    {{19, 16}, "(V)", IntervalCode{2}},
    {{21, 18}, "(VI)", IntervalCode{6}},
    {{23, 20}, "(VII)", IntervalCode{10}},
    {{24, 15}, "", IntervalCode{0}},
}};

constexpr std::array<Degree, 10> kMoll{{
    {{12, 15}, "(I)", IntervalCode{1}},
    {{14, 17}, "(II)", IntervalCode{4}},
    {{15, 12}, "(III)", IntervalCode{7}},
    {{17, 14}, "(IV)", IntervalCode{3}},
    {{19, 16}, "(V)", IntervalCode{2}},
    {{20, 11}, "(VIa)", IntervalCode{9}},
    {{21, 18}, "(VIb)", IntervalCode{6}},
    {{22, 13}, "(VIIa)", IntervalCode{5}},
    {{23, 20}, "(VIIb)", IntervalCode{10}},
    {{24, 15}, "", IntervalCode{0}},
}};

// No row for the tritone over the keynote: it is no degree.
constexpr std::array<Degree, 12> kDurMoll{{
    {{12, 15}, "(I)", IntervalCode{1}},
    {{13, 10}, "(IIa)", IntervalCode{11}},
    {{14, 17}, "(IIb)", IntervalCode{4}},
    {{15, 12}, "(IIIa)", IntervalCode{7}},
    {{16, 19}, "(IIIb)", IntervalCode{8}},
    {{17, 14}, "(IV)", IntervalCode{3}},
    {{19, 16}, "(V)", IntervalCode{2}},
    {{20, 11}, "(VIa)", IntervalCode{9}},
    {{21, 18}, "(VIb)", IntervalCode{6}},
    {{22, 13}, "(VIIa)", IntervalCode{5}},
    {{23, 20}, "(VIIb)", IntervalCode{10}},
    {{24, 15}, "", IntervalCode{0}},
}};

// Every row sounds as it is written and above the one before, the octave closes the scale, and each
// degree's code leads from the keynote upward to its tone.
constexpr bool holds_together(std::span<const Degree> scale) {
  const Tone keynote = scale.front().tone;
  std::int16_t below = 11;
  for (const Degree& degree : scale.first(scale.size() - 1)) {
    if (degree.tone.chr <= below || degree.tone.chr >= keynote.chr + 12) return false;
    if (degree.tone.chr % 12 != pitch_class(degree.tone.qz)) return false;
    if (degree.code != IntervalCode{direct_code(1, degree.tone.qz, keynote.qz)}) return false;
    below = degree.tone.chr;
  }
  return scale.back().tone == Tone{static_cast<std::int16_t>(keynote.chr + 12), keynote.qz};
}
static_assert(holds_together(kDur) && holds_together(kMoll) && holds_together(kDurMoll));

}  // namespace

std::span<const Degree> degrees(std::int16_t tongeschl) {
  switch (tongeschl) {
    case 0:
      return kDur;
    case 1:
      return kMoll;
    case 2:
      return kDurMoll;
    default:
      throw RuntimeError::index_out_of_range("tongeschl");
  }
}

std::span<const Degree> degrees_above_keynote(std::int16_t tongeschl) {
  const std::span<const Degree> scale = degrees(tongeschl);
  return scale.subspan(1, scale.size() - 2);
}

std::string degree_caption(std::int16_t tongeschl, DegreeNumber number, const IntervalNames& names,
                           const Texts& texts) {
  const std::span<const Degree> scale = degrees(tongeschl);
  const int row = static_cast<int>(number) - 1;
  if (row < 0 || row >= static_cast<int>(scale.size()) - 1) {
    throw RuntimeError::index_out_of_range("degree_caption");
  }
  const Degree& degree = scale[static_cast<std::size_t>(row)];
  std::string caption = std::string(degree.label) + " " + names.long_name(degree.code);
  if (row == 0) caption += " " + texts.Wort(701_text) + " " + names.long_name(IntervalCode{0});
  return caption;
}

IntervalCode direct_code_of_degree(const Key& key, DegreeNumber degree) {
  const int row = std::abs(static_cast<int>(degree)) - 1;
  if (row == 0) return IntervalCode{1};
  if (row < 0 || row > key.anz_stufen) {
    throw RuntimeError::index_out_of_range("direct_code_of_degree");
  }
  const int x = 2 * (key.skala[static_cast<std::size_t>(row)].qz - key.skala[0].qz);
  return IntervalCode{to_int16(x < 0 ? -x + 1 : x)};
}

}  // namespace tonarix
