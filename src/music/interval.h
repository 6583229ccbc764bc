#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/arithmetic.h"
#include "base/texts.h"

namespace tonarix {

/// The code of a direct interval, with or without its direction, as names go by it. Not to be taken
/// for the number of a degree.
enum class IntervalCode : std::int16_t {};

/// Named interval codes: 0 (the octave over the keynote) to 21 (the diminished third).
inline constexpr int kNamedIntervals = 22;

/// The direct code of the step from `q1` to `q2`, places on the line of fifths from 0 to 34.
/// `direction` is +1 up or -1 down and becomes the sign of the code. |code| 2k is k fifths with
/// the melody, 2k + 1 is k fifths against it, 1 the prime and the octave.
constexpr std::int16_t direct_code(int direction, int q2, int q1) {
  const int x = 2 * (q2 - q1);
  if (x == 0) return static_cast<std::int16_t>(direction);
  if (Sgn(x) == direction) return static_cast<std::int16_t>(x);
  return static_cast<std::int16_t>(x > 0 ? -(x + 1) : -(x - 1));
}

/// Fifths that a direct code leads along the line, upward positive.
constexpr std::int16_t fifth_steps(int code) {
  return static_cast<std::int16_t>(is_odd(code) ? -(code / 2) : code / 2);
}

/// Where a direct code leads from `q`; the place may have no name.
constexpr std::int16_t next_qz(int q, int code) {
  return static_cast<std::int16_t>(q + fifth_steps(code));
}

/// The code of the same two tone names with the melody turned round: a fifth up becomes a fourth
/// down. The prime turns into the prime the other way.
constexpr std::int16_t KomplementaerIv(int code) {
  if (code == 1 || code == -1) return static_cast<std::int16_t>(-code);
  const int size = code < 0 ? -code : code;
  return static_cast<std::int16_t>(-Sgn(code) * (is_odd(size) ? size - 1 : size + 1));
}

/// The code behind the running number of an answer, 1 to 19: the augmented prime (14) and the
/// diminished octave (15) are never asked.
constexpr std::int16_t asked_code(int number) {
  return static_cast<std::int16_t>(number > 13 ? number + 2 : number);
}

/// A described interval in its three parts.
struct IntervalText {
  std::array<std::string, 3> hstrWert;  ///< sign, long name, octaves beyond the first
  std::string joined() const { return hstrWert[0] + hstrWert[1] + hstrWert[2]; }
};

/// The interval names of the language in force, loaded once.
class IntervalNames {
 public:
  explicit IntervalNames(const Texts& texts);

  /// Names by code, whatever its sign; RuntimeError 9 when |code| is above 21.
  const std::string& long_name(IntervalCode code) const;
  const std::string& short_name(IntervalCode code) const;

  /// The interval of `difference` semitones and the code. A difference of 0 has the sign "- "; 12
  /// semitones are no octave beyond the first, 13 to 24 are one.
  IntervalText text(int difference, IntervalCode code) const;

 private:
  struct Name {
    std::string long_name;
    std::string short_name;
  };
  const Name& of(IntervalCode code) const;
  std::array<Name, kNamedIntervals> names_;
};

}  // namespace tonarix
