#include "exercises/play/key_range.h"

#include <algorithm>

namespace tonarix {
namespace {

constexpr int kLowestOffset = -5;
constexpr int kHighestOffset = 6;

}  // namespace

KeyRange key_range(const Settings& settings, const Key& key, const TaskRow& row) {
  const bool changes = settings.Tonart == 1;
  const std::int16_t tasteBasis = settings.tonraum_min;
  KeyRange keys{
      key_of(settings.tonraum_min + (changes ? kLowestOffset : key.tonart_offset), tasteBasis),
      key_of(settings.tonraum_max + (changes ? kHighestOffset : key.tonart_offset), tasteBasis)};
  // A row that found no room in the range is still to be played.
  for (int i = 0; i <= settings.invzahl + 1; ++i) {
    const int tone = key_of(row.inv_ton[static_cast<std::size_t>(i)].chr, tasteBasis);
    keys.lowest = std::min(keys.lowest, tone);
    keys.highest = std::max(keys.highest, tone);
  }
  keys = {std::max(keys.lowest, 0), std::min(keys.highest, kLastKey)};
  if (is_black(keys.lowest)) --keys.lowest;
  if (is_black(keys.highest)) ++keys.highest;
  return keys;
}

}  // namespace tonarix
