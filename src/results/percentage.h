#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/colour.h"
#include "base/texts.h"
#include "settings/settings.h"

namespace tonarix {

/// Columns 0 to 2 of one row of the statistics.
struct RowStatistics {
  float c0 = 0;        ///< times answered (training) or best value (test)
  float c1 = 0;        ///< sum of the values or second best
  float c2 = 0;        ///< times given as a wrong answer
  bool asked = false;  ///< a test has asked for it at least once
};

/// Share of right answers in one interval as a fraction, 1 for 100 %; above 1 where quick answers
/// earned more than is reckoned with. Nothing when it never came up: at the training levels
/// without an answer, in a test when it was not asked. Level 0 has none.
std::optional<double> interval_fraction(const RowStatistics& row, Level Uebungsmodus);

/// The same for a degree over both its directions. A wrong entry weighs twice in the second.
std::optional<double> degree_fraction(const RowStatistics& rising, const RowStatistics& falling,
                                      Level Uebungsmodus);

/// "72.5": the fraction in per cent with one decimal and a decimal point, halves away from zero,
/// never "-0.0".
std::string percent_number(double fraction);

/// A percentage of the sheet, "72.5%", with the decimal sign of the language, to be spoken.
std::string spoken_percentage(std::string shown, const Texts& texts);

/// Background of a field, by its exact fraction in five steps of 20 %.
Colour scale_colour(double fraction);

namespace scale {
inline constexpr Colour under_20 = RGB(255, 128, 128);
inline constexpr Colour under_40 = RGB(255, 192, 192);
inline constexpr Colour under_60 = RGB(255, 255, 192);
inline constexpr Colour under_80 = RGB(192, 255, 192);
inline constexpr Colour from_80 = RGB(128, 255, 128);
}  // namespace scale

}  // namespace tonarix
