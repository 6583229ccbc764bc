#pragma once

#include <cstdint>

namespace tonarix {

/// Narrows a whole number to 16 bits. Throws RuntimeError 6 (overflow) outside -32768..32767.
std::int16_t to_int16(std::int64_t value);

/// Assigns a real number to a 16-bit field: rounds half to even, overflow is RuntimeError 6.
std::int16_t round_to_int16(double value);

/// Rounds down to the next whole number: Int(-0.5) is -1.
double Int(double value);

/// Rounds to the nearest whole number, halves to the even neighbour.
double Round(double value);

/// Sign of a number: -1, 0 or 1.
template <typename Number>
constexpr std::int16_t Sgn(Number value) {
  return static_cast<std::int16_t>((value > Number{0}) - (value < Number{0}));
}

/// Odd in the sense of "the remainder of the halving is not 0", so that it holds for negative codes
/// too.
constexpr bool is_odd(int value) {
  return value % 2 != 0;
}

}  // namespace tonarix
