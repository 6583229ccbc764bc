#include "base/arithmetic.h"

#include <cmath>
#include <limits>

#include "base/runtime_error.h"

namespace tonarix {

std::int16_t to_int16(std::int64_t value) {
  using Limits = std::numeric_limits<std::int16_t>;
  if (value < Limits::min() || value > Limits::max()) throw RuntimeError::overflow("to_int16");
  return static_cast<std::int16_t>(value);
}

std::int16_t round_to_int16(double value) {
  const double whole = Round(value);
  if (!(whole >= -32768.0 && whole <= 32767.0)) throw RuntimeError::overflow("round_to_int16");
  return static_cast<std::int16_t>(whole);
}

double Int(double value) {
  return std::floor(value);
}

double Round(double value) {
  const double lower = std::floor(value);
  const double rest = value - lower;
  if (rest != 0.5) return rest < 0.5 ? lower : lower + 1.0;
  return std::fmod(lower, 2.0) == 0.0 ? lower : lower + 1.0;
}

}  // namespace tonarix
