#include <cstdlib>

#include "base/arithmetic.h"
#include "engine/material/material.h"
#include "music/interval.h"

namespace tonarix {

// A tone beyond the range is brought back by changing the melody as little as its interval allows.
// False when the tone must be drawn again.
bool Material::TonraumTest(int i) {
  const int lowest = key_.tonart_offset + settings_.tonraum_min;
  const int highest = key_.tonart_offset + settings_.tonraum_max;
  bool ok = true;
  if (tone(i).chr < lowest || tone(i).chr > highest) {
    const bool wende = i != 2 && Sgn(iv(i - 1)) != Sgn(iv(i - 2));
    if (wende || !is_test(settings_.Uebungsmodus) || !pruef_frei_) {
      turn_round(i);
    } else if (i == 2) {
      shift_row_back();
    } else {
      ok = go_on_in_direction(i);
    }
  }
  // Neither a tone repeated around another nor the octave that would only seem to be one.
  return ok && tone(i).chr != tone(i - 2).chr;
}

void Material::shift_row_back() {
  for (int i = 0; i <= 2; ++i) move(i, -richtung_ * 12);
}

// In a test whose list has lost the interval before, that one may turn instead, so that the drawn
// interval, which the list still needs, stays.
bool Material::go_on_in_direction(int i) {
  if (settings_.abfr_iv == Naming::from_keynote) {
    turn_degree(i);
    return true;
  }
  const bool prime_before = std::abs(iv(i - 2)) == 1;
  if (std::abs(iv(i - 1)) == 1 && prime_before && tone(i - 1).qz != skala(0).qz) return false;
  const int back = -richtung_ * (prime_before ? 24 : 12);
  move(i - 1, back);
  move(i, back);
  iv(i - 2) = static_cast<std::int16_t>(-iv(i - 2));
  return true;
}

void Material::turn_round(int i) {
  if (settings_.abfr_iv == Naming::from_keynote) {
    turn_degree(i);
    return;
  }
  richtung_ = static_cast<std::int16_t>(-richtung_);
  const int octave = std::abs(iv(i - 1)) == 1 ? 24 : 12;
  iv(i - 1) = KomplementaerIv(iv(i - 1));
  move(i, (2 * okt_zusatz_ + octave) * richtung_);
}

// The degree stays, its tone moves to the other side of the one before.
void Material::turn_degree(int i) {
  richtung_ = static_cast<std::int16_t>(-richtung_);
  iv(i - 1) = static_cast<std::int16_t>(-iv(i - 1));
  const int octave = std::abs(iv(i - 1)) == std::abs(iv(i - 2)) ? 24 : 12;
  move(i, (2 * okt_zusatz_ + octave) * richtung_);
}

}  // namespace tonarix
