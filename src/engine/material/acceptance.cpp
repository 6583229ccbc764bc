#include "engine/material/acceptance.h"

#include <cstdlib>

#include "base/arithmetic.h"
#include "music/interval.h"
#include "music/tones.h"

namespace tonarix {
namespace {

bool named(Tone tone) {
  const int octave = written_octave(tone);
  return has_name(tone.qz) && octave >= 1 && octave <= kHighestOctaveMark;
}

bool leads(const Settings& settings, const Key& key, std::int16_t iv, Tone from, Tone to) {
  const int direction = Sgn(to.chr - from.chr);
  if (direction == 0 || Sgn(iv) != direction) return false;
  if (settings.abfr_iv == Naming::from_tone_before)
    return direct_code(direction, to.qz, from.qz) == iv;
  const int row = std::abs(iv) - 1;
  return row <= key.anz_stufen && key.skala[static_cast<std::size_t>(row)].qz == to.qz;
}

}  // namespace

std::optional<Refusal> refusal_of(const Settings& settings, const Key& key, const TaskRow& row,
                                  const std::bitset<22>& codes, bool range_may_give_way) {
  const auto last = static_cast<std::size_t>(settings.invzahl + 1);
  for (std::size_t i = 0; i <= last; ++i) {
    if (!named(row.inv_ton[i])) return Refusal::no_name;
  }
  for (std::size_t k = 0; k < last; ++k) {
    if (!leads(settings, key, row.iv[k], row.inv_ton[k], row.inv_ton[k + 1])) {
      return Refusal::not_leading;
    }
    const auto code = static_cast<std::size_t>(std::abs(row.iv[k]));
    if (code >= codes.size() || !codes[code]) return Refusal::no_button;
  }
  for (std::size_t i = 2; i <= last; ++i) {
    if (row.inv_ton[i].chr == row.inv_ton[i - 2].chr) return Refusal::tone_repeated;
  }
  if (range_may_give_way) return std::nullopt;
  const int lowest = key.tonart_offset + settings.tonraum_min;
  const int highest = key.tonart_offset + settings.tonraum_max;
  for (std::size_t i = 0; i <= last; ++i) {
    const int chr = row.inv_ton[i].chr;
    if (chr < lowest || chr > highest) return Refusal::out_of_range;
  }
  return std::nullopt;
}

}  // namespace tonarix
