#include "engine/answer_rules.h"

#include <cstdlib>

#include "base/arithmetic.h"

namespace tonarix {

float ZeitStrafe(float dauer, std::int16_t grenze) {
  if (dauer <= static_cast<float>(grenze)) return 0;
  const int late = static_cast<int>(Round(static_cast<double>(dauer) - grenze)) / 2;
  return static_cast<float>(late) / 10.0F + 1.0F;
}

float answer_tenths(double seconds) {
  return static_cast<float>(Int(seconds * 10 + 0.5));
}

std::int16_t signed_wrong_answer(const Key& key, Naming abfr_iv, std::int16_t ton_st_wahl,
                                 std::int16_t stufe_wahl, std::int16_t code, std::int16_t asked) {
  const std::int16_t asked_direction = Sgn(asked);
  const std::int16_t plain = to_int16(code * asked_direction);
  if (ton_st_wahl != 1 || abfr_iv != Naming::from_tone_before) return plain;

  std::int16_t other_direction = 0;
  const int degree_qz = key.basis[static_cast<std::size_t>(stufe_wahl)].qz;
  for (int r = 0; r < key.anz_stufen; ++r) {
    const int fifths = key.basis[static_cast<std::size_t>(r)].qz - degree_qz;
    if (std::abs(fifths) == 7) continue;
    const int x = fifths == 0 ? 1 : 2 * fifths;
    const int complement = x == 1 ? -1 : -(std::abs(x) + 1) * Sgn(x);
    for (const int member : {x, complement}) {
      if (std::abs(member) != code) continue;
      if (Sgn(member) == asked_direction) return to_int16(member);
      other_direction = to_int16(member);
    }
  }
  return other_direction != 0 ? other_direction : plain;
}

}  // namespace tonarix
