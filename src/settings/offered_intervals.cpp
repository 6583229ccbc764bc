#include "settings/offered_intervals.h"

#include <cstdlib>

#include "base/arithmetic.h"
#include "music/interval.h"

namespace tonarix {

std::optional<DegreePair> degree_pair(const Key& key, std::int16_t stufe_wahl, int row) {
  constexpr int kAugmentedPrime = 7;
  const int fifths = key.basis.at(static_cast<std::size_t>(row)).qz -
                     key.basis.at(static_cast<std::size_t>(stufe_wahl)).qz;
  if (std::abs(fifths) == kAugmentedPrime) return std::nullopt;
  const std::int16_t interval = fifths == 0 ? std::int16_t{1} : to_int16(2 * fifths);
  return DegreePair{interval, KomplementaerIv(interval)};
}

IntervalList offered_intervals(const Settings& settings, const Key& key) {
  IntervalList list;
  if (settings.ton_st_wahl == 1 && settings.abfr_iv == Naming::from_tone_before) {
    for (int row = 0; row < key.anz_stufen; ++row) {
      const std::optional<DegreePair> pair = degree_pair(key, settings.stufe_wahl, row);
      if (!pair) continue;
      list.add(pair->interval);
      list.add(pair->complement);
    }
    return list;
  }
  for (int number = 1; number <= key.iv_anzahl; ++number) {
    const std::int16_t code = asked_code(number);
    list.add(code);
    list.add(to_int16(-code));
  }
  return list;
}

std::bitset<22> offered_codes(const Settings& settings, const Key& key) {
  std::bitset<22> codes;
  for (const std::int16_t value : offered_intervals(settings, key)) {
    codes.set(static_cast<std::size_t>(std::abs(value)));
  }
  return codes;
}

}  // namespace tonarix
