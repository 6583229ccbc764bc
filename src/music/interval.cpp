#include "music/interval.h"

#include <cstdlib>

#include "base/runtime_error.h"

namespace tonarix {
namespace {

struct IntervalNameKeys {
  TextKey long_name;
  TextKey short_name;
};

// By |code|.
constexpr std::array<IntervalNameKeys, kNamedIntervals> kIntervalNameKeys{{
    // long, short          fifths with the melody
    {450_text, 453_text},  // octave             0
    {449_text, 456_text},  // prime              0
    {452_text, 455_text},  // fifth             +1
    {451_text, 454_text},  // fourth            -1
    {281_text, 260_text},  // major second      +2
    {359_text, 352_text},  // minor seventh     -2
    {283_text, 262_text},  // major sixth       +3
    {361_text, 350_text},  // minor third       -3
    {284_text, 261_text},  // major third       +4
    {360_text, 351_text},  // minor sixth       -4
    {282_text, 263_text},  // major seventh     +5
    {358_text, 349_text},  // minor second      -5
    {574_text, 580_text},  // augmented fourth  +6
    {595_text, 600_text},  // diminished fifth  -6
    {573_text, 578_text},  // augmented prime   +7
    {593_text, 602_text},  // diminished octave -7
    {575_text, 581_text},  // augmented fifth   +8
    {594_text, 599_text},  // diminished fourth -8
    {576_text, 579_text},  // augmented second  +9
    {596_text, 592_text},  // diminished seventh -9
    {577_text, 582_text},  // augmented sixth   +10
    {597_text, 598_text},  // diminished third  -10
}};

}  // namespace

IntervalNames::IntervalNames(const Texts& texts) {
  for (std::size_t code = 0; code < names_.size(); ++code) {
    const IntervalNameKeys& keys = kIntervalNameKeys[code];
    names_[code] = {texts.Wort(keys.long_name), texts.Wort(keys.short_name)};
  }
}

const IntervalNames::Name& IntervalNames::of(IntervalCode code) const {
  const int size = std::abs(static_cast<int>(code));
  if (size >= kNamedIntervals) throw RuntimeError::index_out_of_range("IntervalNames");
  return names_[static_cast<std::size_t>(size)];
}

const std::string& IntervalNames::long_name(IntervalCode code) const {
  return of(code).long_name;
}

const std::string& IntervalNames::short_name(IntervalCode code) const {
  return of(code).short_name;
}

IntervalText IntervalNames::text(int difference, IntervalCode code) const {
  const int size = std::abs(difference);
  const int octaves = size > 12 ? (size - 1) / 12 : 0;
  return {{Sgn(difference) == 1 ? "+ " : "- ", long_name(code),
           octaves > 0 ? " und " + std::to_string(octaves) + " Okt." : std::string()}};
}

}  // namespace tonarix
