#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <span>

#include "config/settings.h"
#include "music/key.h"

namespace tonarix {

/// Statistic rows: 0 unused, then up to 21 codes upward and 21 downward.
inline constexpr int kStatisticRows = 43;

/// A set of statistic rows as factors: 1 for a row that is in it, 0 for the others.
using StatisticRowSet = std::array<std::int16_t, kStatisticRows>;

/// An interval from the chosen degree to another row of the scale, and the interval that reaches
/// the same tone name in the opposite direction: a fifth up, a fourth down.
struct DegreePair {
  std::int16_t interval;
  std::int16_t complement;
};

/// The pair from degree `stufe_wahl` to `row`, 0 to `anz_stufen` - 1. Nothing when both are seven
/// fifths apart: the augmented prime and the diminished octave are never asked.
std::optional<DegreePair> degree_pair(const Key& key, std::int16_t stufe_wahl, int row);

/// Signed interval values that an exercise asks, without allocation.
class IntervalList {
 public:
  void add(std::int16_t value) { values_.at(count_++) = value; }
  std::span<const std::int16_t> values() const& { return {values_.data(), count_}; }
  std::span<const std::int16_t> values() && = delete;  // would outlive the list
  const std::int16_t* begin() const { return values_.data(); }
  const std::int16_t* end() const { return values_.data() + count_; }

 private:
  std::array<std::int16_t, kStatisticRows - 1> values_{};
  std::size_t count_ = 0;
};

/// What these settings ask, each value once, in the order of the box. All codes of the scale up and
/// down; beside a chosen degree, named from tone to tone, only what leads from it to a row of the
/// scale, the row of the keynote too.
IntervalList offered_intervals(const Settings& settings, const Key& key);

/// The |codes| among them, 1 to 21: the answer buttons that show.
std::bitset<22> offered_codes(const Settings& settings, const Key& key);

/// Distance of a value's statistic row from its |code|: 0 for rising intervals, for falling ones
/// the number of codes per direction (11 named from the keynote, 21 from tone to tone).
std::int16_t BoxIndex(std::int16_t code, std::int16_t abfr_iv);

/// The statistic row of a value, 1 to 42.
std::int16_t statistic_row(std::int16_t value, std::int16_t abfr_iv);

}  // namespace tonarix
