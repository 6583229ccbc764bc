#pragma once

#include <cstddef>
#include <cstdint>

#include "music/naming.h"

namespace tonarix {

/// Statistic rows: 0 unused, then up to 21 codes upward and 21 downward.
inline constexpr int kStatisticRows = 43;

/// The row of an interval in the statistics, 1 to 42. Not to be taken for the interval's own value.
enum class StatisticRow : std::int16_t {};

constexpr std::size_t place_of(StatisticRow row) {
  return static_cast<std::size_t>(row);
}

/// Number of codes per direction.
constexpr std::int16_t rows_upward(Naming naming) {
  return naming == Naming::from_keynote ? 11 : 21;
}

/// Distance of an interval value's row from its |value|: 0 upward, downward the number of codes per
/// direction.
constexpr std::int16_t BoxIndex(std::int16_t value, Naming naming) {
  return value >= 0 ? std::int16_t{0} : rows_upward(naming);
}

constexpr StatisticRow statistic_row(std::int16_t value, Naming naming) {
  const int size = value < 0 ? -value : value;
  return static_cast<StatisticRow>(size + BoxIndex(value, naming));
}

}  // namespace tonarix
