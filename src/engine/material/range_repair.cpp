#include "engine/material/range_repair.h"

#include <cstdlib>

#include "base/arithmetic.h"
#include "music/interval.h"

namespace tonarix {
namespace {

// The degree stays, its tone moves to the other side of the one before.
void turn_degree(RowUnderWay& built, int i) {
  built.richtung = static_cast<std::int16_t>(-built.richtung);
  built.iv(i - 1) = static_cast<std::int16_t>(-built.iv(i - 1));
  const int octave = std::abs(built.iv(i - 1)) == std::abs(built.iv(i - 2)) ? 24 : 12;
  built.move(i, (2 * built.okt_zusatz + octave) * built.richtung);
}

void turn_interval(RowUnderWay& built, int i) {
  built.richtung = static_cast<std::int16_t>(-built.richtung);
  const int octave = std::abs(built.iv(i - 1)) == 1 ? 24 : 12;
  built.iv(i - 1) = KomplementaerIv(built.iv(i - 1));
  built.move(i, (2 * built.okt_zusatz + octave) * built.richtung);
}

void shift_row_back(RowUnderWay& built) {
  for (int i = 0; i <= 2; ++i) built.move(i, -built.richtung * 12);
}

// The interval before turns, so that the drawn one, which the list still needs, stays.
bool turn_interval_before(RowUnderWay& built, int i, const Key& key) {
  const bool prime_before = std::abs(built.iv(i - 2)) == 1;
  const bool prime = std::abs(built.iv(i - 1)) == 1;
  if (prime && prime_before && built.tone(i - 1).qz != key.skala[0].qz) return false;
  const int back = -built.richtung * (prime_before ? 24 : 12);
  built.move(i - 1, back);
  built.move(i, back);
  built.iv(i - 2) = static_cast<std::int16_t>(-built.iv(i - 2));
  return true;
}

bool bring_back(RowUnderWay& built, int i, const Settings& settings, const Key& key) {
  const bool wende = i != 2 && Sgn(built.iv(i - 1)) != Sgn(built.iv(i - 2));
  const bool may_turn_before = !wende && built.pruef_frei;
  if (may_turn_before && i == 2) {
    shift_row_back(built);
  } else if (settings.abfr_iv == Naming::from_keynote) {
    turn_degree(built, i);
  } else if (may_turn_before) {
    return turn_interval_before(built, i, key);
  } else {
    turn_interval(built, i);
  }
  return true;
}

}  // namespace

bool TonraumTest(RowUnderWay& built, int i, const Settings& settings, const Key& key) {
  const int above_offset = built.tone(i).chr - key.tonart_offset;
  const bool inside = above_offset >= settings.tonraum_min && above_offset <= settings.tonraum_max;
  const TaskRow before = built.row;
  if (!inside && !bring_back(built, i, settings, key)) return false;
  // Neither a tone repeated around another nor the octave that would only seem to be one.
  const bool repeated = built.tone(i).chr == built.tone(i - 2).chr;
  if (!inside) {
    const auto turned = static_cast<std::size_t>(
        before.iv[static_cast<std::size_t>(i - 2)] != built.iv(i - 2) ? i - 2 : i - 1);
    built.moves.push_back(
        {i, built.tone(i).chr, before.iv[turned], built.row.iv[turned], repeated});
  }
  return !repeated;
}

}  // namespace tonarix
