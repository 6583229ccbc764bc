#include "results/percentage.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/arithmetic.h"
#include "base/module_texts.h"

namespace tonarix {

namespace {

/// Values are sums of tenths kept in 32 bits. Taken to the thousandth they are the decimal numbers
/// they stand for, so that a result on the edge of a colour or a rounding falls on its right side.
double decimal(float value) {
  return std::round(static_cast<double>(value) * 1000.0) / 1000.0;
}

/// What few wrong entries take off: -6, -4, -2, then nothing.
double penalty(double wrong_entries) {
  return std::min(0.0, Int(wrong_entries - 8.0));
}

/// Statistics from a store may be anything; a quotient that is no number counts as no answer.
std::optional<double> quotient(double sum, double divisor) {
  const double fraction = sum / divisor;
  if (divisor == 0.0 || !std::isfinite(fraction)) return std::nullopt;
  return fraction;
}

constexpr double kGrain = 1e-9;  // below any difference that two results can have

}  // namespace

std::optional<double> interval_fraction(const RowStatistics& row, Level Uebungsmodus) {
  const double c0 = decimal(row.c0), c1 = decimal(row.c1), c2 = decimal(row.c2);
  const double f = c2 > 0 ? 1.0 : 0.0;
  const double p = c2 > 0 ? penalty(2.0 * c2) : 0.0;
  if (is_training(Uebungsmodus)) {
    if (c0 <= 0 && c2 <= 0) return std::nullopt;
    return quotient(c1 + p, Int((c0 + f) * -16.0));
  }
  if (!is_test(Uebungsmodus) || !row.asked) return std::nullopt;
  return quotient(c0 + c1 + p, f > 0 ? -48.0 : -32.0);
}

std::optional<double> degree_fraction(const RowStatistics& rising, const RowStatistics& falling,
                                      Level Uebungsmodus) {
  const double c0 = decimal(rising.c0) + decimal(falling.c0);
  const double c1 = decimal(rising.c1) + decimal(falling.c1);
  const double c2 = decimal(rising.c2), c2_falling = decimal(falling.c2);
  const bool wrong = c2 > 0 || c2_falling > 0;
  const double f = wrong ? 1.0 : 0.0;
  const double p = wrong ? penalty(2.0 * c2_falling + c2) : 0.0;
  if (is_training(Uebungsmodus)) {
    if (rising.c0 <= 0 && falling.c0 <= 0 && !wrong) return std::nullopt;
    return quotient(c1 + p, Int((c0 + f) * -16.0));
  }
  if (!is_test(Uebungsmodus) || !(rising.asked || falling.asked)) return std::nullopt;
  return quotient(c0 + c1 + p, wrong ? -96.0 : -64.0);
}

std::string percent_number(double fraction) {
  const double tenths_exact = fraction * 1000.0;
  double tenths = std::round(tenths_exact + std::copysign(kGrain * 1000.0, tenths_exact));
  if (tenths == 0.0) tenths = 0.0;  // drops the sign
  std::array<char, 400> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), tenths / 10.0,
                                 std::chars_format::fixed, 1);
  return {digits.data(), end.ptr};
}

std::string spoken_percentage(std::string shown, const Texts& texts) {
  const std::size_t point = shown.find('.');
  if (point != std::string::npos) shown.replace(point, 1, texts.Wort(text::decimal_sign));
  return shown;
}

Colour scale_colour(double fraction) {
  struct Step {
    double upper;
    Colour colour;
  };
  static constexpr std::array<Step, 4> kSteps{{
      {0.2, scale::under_20},
      {0.4, scale::under_40},
      {0.6, scale::under_60},
      {0.8, scale::under_80},
  }};
  for (const Step& step : kSteps) {
    if (fraction < step.upper - kGrain) return step.colour;
  }
  return scale::from_80;
}

}  // namespace tonarix
