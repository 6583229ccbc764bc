#include "engine/material/material.h"

#include <algorithm>
#include <cstdlib>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "music/interval.h"
#include "music/tones.h"
#include "settings/offered_intervals.h"

namespace tonarix {

std::vector<std::int16_t> StufenGewichte(const Key& key) {
  const int rows = key.anz_stufen;
  std::array<int, 12> weights{};
  for (int number = 2; number <= key.iv_anzahl; ++number) {
    const int step = fifth_steps(asked_code(number));
    std::array<bool, 12> marked{};
    int n = 0;
    for (int r = 0; r < rows; ++r) {
      for (int t = 0; t < rows; ++t) {
        if (key.basis[static_cast<std::size_t>(t)].qz !=
            key.basis[static_cast<std::size_t>(r)].qz + step) {
          continue;
        }
        ++n;
        marked[static_cast<std::size_t>(r)] = true;
      }
    }
    for (int r = 0; r < rows; ++r) {
      if (marked[static_cast<std::size_t>(r)]) weights[static_cast<std::size_t>(r)] += rows / n;
    }
  }
  const int smallest = std::min(100, *std::min_element(weights.begin(), weights.begin() + rows));
  const int a = 1 - smallest;
  std::vector<std::int16_t> list;
  for (int r = 0; r < rows; ++r) {
    list.insert(list.end(), static_cast<std::size_t>(weights[static_cast<std::size_t>(r)] + a),
                to_int16(r));
  }
  return list;
}

Material::Material(const Settings& settings, Key& key, TaskRow& row, FrequencyBox& box,
                   Chance& chance)
    : settings_(settings), key_(key), built_{row}, box_(box), chance_(chance) {}

void Material::begin() {
  erster_lauf = true;
  letzte_reihe_.fill(0);
  built_.pruef_frei = false;
  terz_typ = 0;
  const int octaves = settings_.E_Oktav + 2;
  anz_okt_lage_ = to_int16(octaves - (settings_.ivg == 0 ? 1 : 2));
  stufen_liste_.clear();
  if (settings_.abfr_iv == Naming::from_tone_before) stufen_liste_ = StufenGewichte(key_);
  codes_ = offered_codes(settings_, key_);
}

bool Material::mat_wahl() {
  const bool new_key = erster_lauf || settings_.Tonart == 1;
  if (new_key) choose_key(key_, settings_.tongeschl, chance_);
  box_.begin_task();
  draw_acceptable_row();
  if (settings_.tongeschl == 2) find_thirds();
  for (int i = 0; i < 3; ++i) letzte_reihe_[static_cast<std::size_t>(i)] = tone(i).chr;
  erster_lauf = false;
  return new_key;
}

// A refused row leaves no trace: what it took goes back, and the next one starts from the same
// place.
void Material::draw_acceptable_row() {
  const bool pruef_frei = built_.pruef_frei;
  for (int attempt = 1; attempt <= kLastAttempt; ++attempt) {
    draw_row();
    const auto refusal = refusal_of(settings_, key_, built_.row, codes_, attempt > kStrictAttempts);
    if (!refusal) return;
    ++refused_[static_cast<std::size_t>(*refusal)];
    box_.test.give_back();
    built_.pruef_frei = pruef_frei;
  }
  throw RuntimeError(RuntimeError::kOther, "These settings allow no row of tones", "mat_wahl");
}

void Material::draw_row() {
  built_.moves.clear();
  for (int i = 1; i <= settings_.invzahl + 1; ++i) {
    draw_tone(i);
    if (is_test(settings_.Uebungsmodus) && (settings_.ton_st_wahl == 0 || i == 2)) {
      built_.pruef_frei = !box_.test.take(iv(i - 1));
    }
  }
}

// A box whose intervals do not lead on from here is left after as many failures as its list has
// entries; then chance alone decides.
void Material::draw_tone(int i) {
  const bool box = i != 1 && settings_.Uebungsmodus != Level::free;
  bool ok = false;
  for (int versuch = 1; !ok; ++versuch) {
    if (box && versuch < box_.entries()) {
      if (!draw_from_box(i)) continue;
    } else {
      draw_freely(i);
    }
    if (settings_.abfr_iv == Naming::from_keynote) {
      OktavLage(i);
    } else {
      tone(i).chr = static_cast<std::int16_t>(tone(i - 1).chr + DirektSchritt(i));
      iv(i - 1) = direct_code(built_.richtung, tone(i).qz, tone(i - 1).qz);
    }
    ok = i == 1 || (TonraumTest(built_, i, settings_, key_) && !repeats_last_task());
  }
}

// False when the interval leads to no tone of the scale.
bool Material::draw_from_box(int i) {
  iv(i - 1) = box_.draw_interval();
  built_.richtung = Sgn(iv(i - 1));
  if (settings_.abfr_iv == Naming::from_tone_before) return NaechsterTon(i);
  tone(i) = skala(std::abs(iv(i - 1) - built_.richtung));
  return true;
}

void Material::draw_freely(int i) {
  built_.richtung = static_cast<std::int16_t>(draw_sign(chance_));
  if (i == 1) {
    tone(0) = skala(0);
    ErsterTon(i);
  } else if (settings_.abfr_iv == Naming::from_keynote) {
    const int r = draw(chance_, key_.anz_stufen);
    tone(i) = skala(r);
    iv(i - 1) = static_cast<std::int16_t>((r + 1) * built_.richtung);
  } else {
    // Seven fifths would be an augmented prime or a diminished octave.
    do {
      const int place = draw(chance_, static_cast<int>(stufen_liste_.size()));
      tone(i) = skala(stufen_liste_[static_cast<std::size_t>(place)]);
    } while (std::abs(tone(i - 1).qz - tone(i).qz) == 7);
  }
}

// The keynote opens the row, low in the range when the melody rises from it and high when it falls,
// with room left for octaves in between.
void Material::ErsterTon(int i) {
  int r = settings_.stufe_wahl;
  if (settings_.ton_st_wahl == 0) {
    r = settings_.abfr_iv == Naming::from_keynote
            ? draw(chance_, key_.anz_stufen)
            : stufen_liste_[static_cast<std::size_t>(
                  draw(chance_, static_cast<int>(stufen_liste_.size())))];
  }
  tone(i) = skala(r);
  if (settings_.abfr_iv == Naming::from_keynote)
    iv(i - 1) = static_cast<std::int16_t>((r + 1) * built_.richtung);

  const int o = draw(chance_, anz_okt_lage_ + 1);
  int t = tone(i - 1).chr;
  if (built_.richtung == 1) {
    do {
      t += 12;
    } while (t < key_.tonart_offset + settings_.tonraum_min);
  } else {
    t += 84;
    while (t > key_.tonart_offset + settings_.tonraum_max) t -= 12;
  }
  tone(i - 1).chr = to_int16(t + built_.richtung * o * 12);
}

void Material::draw_okt_zusatz() {
  built_.okt_zusatz =
      static_cast<std::int16_t>((settings_.ivg == 2 ? draw(chance_, 2) : settings_.ivg) * 12);
}

void Material::OktavLage(int i) {
  draw_okt_zusatz();
  if (built_.richtung == 1) {
    do {
      built_.move(i, 12);
    } while (tone(i).chr <= tone(i - 1).chr + built_.okt_zusatz);
  } else {
    built_.move(i, 84);
    do {
      built_.move(i, -12);
    } while (tone(i).chr >= tone(i - 1).chr - built_.okt_zusatz);
  }
}

int Material::DirektSchritt(int i) {
  int x = tone(i).chr % 12 - tone(i - 1).chr % 12;
  if (Sgn(x) != built_.richtung) x += built_.richtung * 12;
  draw_okt_zusatz();
  return built_.okt_zusatz * built_.richtung + x;
}

bool Material::NaechsterTon(int i) {
  const auto row = skala_row(key_, next_qz(tone(i - 1).qz, iv(i - 1)));
  if (row) tone(i) = skala(*row);
  return row.has_value();
}

// Only with one interval to name would a row that begins like the last one give it away.
bool Material::repeats_last_task() const {
  if (settings_.ton_st_wahl != 1 && settings_.invzahl != 1) return false;
  return built_.row.inv_ton[0].chr == letzte_reihe_[0] &&
         built_.row.inv_ton[1].chr == letzte_reihe_[1] &&
         built_.row.inv_ton[2].chr == letzte_reihe_[2];
}

void Material::find_thirds() {
  terz_typ = 0;
  for (int i = 1; i <= settings_.invzahl + 1; ++i) {
    if (tone(i).qz == skala(3).qz) terz_typ |= 1;
    if (tone(i).qz == skala(4).qz) terz_typ |= 2;
  }
}

}  // namespace tonarix
