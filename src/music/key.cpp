#include "music/key.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "music/degrees.h"

namespace tonarix {
namespace {

// Answer codes per direction of the intervals from tone to tone, by tongeschl.
constexpr std::array<std::int16_t, 3> kDirectCodes{13, 17, 19};

}  // namespace

void build_scale(Key& key, std::int16_t tongeschl, Naming abfr_iv) {
  const std::span<const Degree> scale = degrees(tongeschl);
  key.basis.fill({});
  std::transform(scale.begin(), scale.end(), key.basis.begin(),
                 [](const Degree& degree) { return degree.tone; });
  key.anz_stufen = static_cast<std::int16_t>(scale.size() - 1);
  key.iv_anzahl = abfr_iv == Naming::from_keynote
                      ? key.anz_stufen
                      : kDirectCodes[static_cast<std::size_t>(tongeschl)];
  key.skala = key.basis;
  move_to_key(key, 0);
}

void choose_key(Key& key, std::int16_t tongeschl, Chance& chance) {
  const int sign = draw_sign(chance);
  if (tongeschl != 1) {
    move_to_key(key, (draw(chance, 6) + 1) * sign);
    return;
  }
  // A minor, three fifths above C minor, is the centre of the minor keys.
  int from_centre = 0;
  do {
    from_centre = draw(chance, 7) * sign;
  } while (from_centre == -3);
  move_to_key(key, from_centre + 3);
}

void move_to_key(Key& key, int qz_transpos) {
  key.qz_transpos = to_int16(qz_transpos);
  key.chr_transpos = to_int16(pitch_class(qz_transpos + 15));
  key.tonart_offset = key.chr_transpos > 6 ? to_int16(key.chr_transpos - 12) : key.chr_transpos;
  for (std::size_t row = 0; row <= static_cast<std::size_t>(key.anz_stufen); ++row) {
    key.skala[row] = {to_int16(key.basis[row].chr + key.chr_transpos),
                      to_int16(key.basis[row].qz + key.qz_transpos)};
  }
}

}  // namespace tonarix
