#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <span>

#include "music/key.h"
#include "settings/settings.h"
#include "statistics/statistic_row.h"

namespace tonarix {

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

}  // namespace tonarix
