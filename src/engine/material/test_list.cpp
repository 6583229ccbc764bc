#include <algorithm>
#include <cmath>
#include <utility>

#include "base/arithmetic.h"
#include "engine/material/frequency_box.h"
#include "music/interval.h"

namespace tonarix {
namespace {

constexpr std::int16_t to_even(std::int16_t number) {
  return is_odd(number) ? static_cast<std::int16_t>(number + 1) : number;
}

double power(double base, int exponent) {
  double result = 1;
  for (; exponent > 0; exponent /= 2, base *= base) {
    if (is_odd(exponent)) result *= base;
  }
  return result;
}

}  // namespace

// So many tasks that each interval comes up about four times, kept between three and ten minutes
// where a longer or shorter test allows it. Both halves of a test have the same number of tasks.
void FrequencyBox::build_test(const TestTiming& timing) {
  constexpr int kLongTest = 600;
  constexpr int kShortTest = 180;
  const int wished = box_zeilen * 4;
  const bool one_degree = settings_.ton_st_wahl == 1;
  aufg_gesamt = to_int16(
      one_degree ? wished : wished * 10 / static_cast<int>(Round((settings_.invzahl + 0.5) * 10)));
  aufg_gesamt = to_even(aufg_gesamt);
  aufg_dauer = estimate(timing);
  if (aufg_dauer > kLongTest || one_degree) {
    aufg_gesamt = to_even(to_int16(static_cast<std::int64_t>(Int(aufg_gesamt / 8.0 * 5))));
    aufg_dauer = estimate(timing);
  } else if (aufg_dauer < kShortTest) {
    aufg_gesamt = to_even(round_to_int16(aufg_gesamt / 4.0 * 6));
    aufg_dauer = estimate(timing);
  }
  const int asked = one_degree ? settings_.invzahl : settings_.invzahl + 1;
  matboxmax = round_to_int16(aufg_gesamt * asked / 2.0);
  test_haeufgk.fill(0);
  aufg_rest = aufg_gesamt;
  TestListeFuellen();
}

std::int16_t FrequencyBox::estimate(const TestTiming& timing) const {
  const int asked = settings_.ton_st_wahl == 1 ? settings_.invzahl : settings_.invzahl + 1;
  double x = Int(timing.spieltimer / 1000.0 * aufg_gesamt);
  x = Round(Int(timing.WahlAutomat / 1000.0 * aufg_gesamt) + x);
  x += aufg_gesamt * asked * timing.zeit_grenze / 10.0;
  return round_to_int16((Int((x - 1) / 10) + 1) * 10);
}

void FrequencyBox::TestListeFuellen() {
  matbox.assign(1, 0);
  const IntervalList offered = offered_intervals(settings_, key_);
  for (const std::int16_t value : offered) {
    matbox.push_back(value);
    statistics_.Increment(row_of(value), 3);
  }
  while (matbox.size() <= static_cast<std::size_t>(matboxmax)) {
    const std::int16_t value = draw_offered();
    if (value != 0) matbox.push_back(value);
  }
  open_.fill(0);
  for (std::size_t place = 1; place < matbox.size(); ++place) {
    ++open_[static_cast<std::size_t>(row_of(matbox[place]))];
  }
  open_entries_ = to_int16(static_cast<std::int64_t>(matbox.size()) - 1);
  // A refilled list has no places left to give back to.
  for (std::size_t i = 0; i < taken_count_; ++i) taken_[i].place = 0;
}

// 0 when the draw fell on a row that is not asked beside the chosen degree.
std::int16_t FrequencyBox::draw_offered() {
  const int sign = draw_sign(chance_);
  if (settings_.ton_st_wahl == 1 && settings_.abfr_iv == 1) {
    const auto pair = degree_pair(key_, settings_.stufe_wahl, draw(chance_, key_.anz_stufen));
    if (!pair) return 0;
    return Sgn(pair->interval) == sign ? pair->interval : pair->complement;
  }
  return to_int16(asked_code(draw(chance_, key_.iv_anzahl) + 1) * sign);
}

bool FrequencyBox::take_from_list(std::int16_t value) {
  const auto row = static_cast<std::size_t>(row_of(value));
  if (open_[row] == 0) return false;
  const auto entry = std::ranges::find(matbox, value);
  *entry = 0;
  --open_[row];
  --open_entries_;
  ++test_haeufgk[row];
  taken_.at(taken_count_++) = {static_cast<std::int16_t>(entry - matbox.begin()), value};
  return true;
}

void FrequencyBox::give_back() {
  while (taken_count_ > 0) {
    const Taken taken = taken_[--taken_count_];
    const auto row = static_cast<std::size_t>(row_of(taken.value));
    --test_haeufgk[row];
    if (taken.place == 0) continue;
    matbox[static_cast<std::size_t>(taken.place)] = taken.value;
    ++open_[row];
    ++open_entries_;
  }
}

// In the first half of a test an interval not used yet is preferred, in the second half one used at
// most once: open entries are drawn up to `box_zeilen` times until one is preferred, so a draw ends
// on another interval only when all of them missed. Near the end of a list most such draws don't
// lead on, and there would be hundreds. As all have the same chance, one number tells how many fail
// before the first that does not, and a second one tells what that one finds.
int FrequencyBox::draw_test_place(const StatisticRowSet& wanted, int tries) {
  if (open_entries_ == 0) TestListeFuellen();
  const int half = aufg_gesamt / 2;
  const int uses = (aufg_gesamt - aufg_rest) / half + 1;
  std::int16_t preferred = 0;
  std::int16_t wanted_open = 0;
  std::int16_t wanted_preferred = 0;
  for (std::size_t row = 0; row < kStatisticRows; ++row) {
    const std::int16_t first = test_haeufgk[row] < uses;
    preferred += open_[row] * first;
    wanted_open += open_[row] * wanted[row];
    wanted_preferred += open_[row] * wanted[row] * first;
  }
  const int other = open_entries_ - preferred;
  const int wanted_other = wanted_open - wanted_preferred;
  const double missed = power(static_cast<double>(other) / open_entries_, box_zeilen);
  const double to_preferred =
      wanted_preferred == 0 ? 0 : (1 - missed) * wanted_preferred / preferred;
  const double to_other = wanted_other == 0 ? 0 : missed * wanted_other / other;
  const double chance = to_preferred + to_other;

  if (chance <= 0) return tries;
  int failed = 0;
  const double u = chance_.Rnd();
  if (u >= chance) {
    // A chance may be too small to be told from 0 in 1 - chance.
    const double fails = std::log1p(-u) / std::log1p(-chance);
    if (fails >= tries) return tries;
    failed = static_cast<int>(fails);
  }
  const bool first = wanted_other == 0 || chance_.Rnd() * chance < to_preferred;
  int entry = draw(chance_, first ? wanted_preferred : wanted_other);
  for (std::size_t row = 0; row < kStatisticRows; ++row) {
    if ((test_haeufgk[row] < uses) == first) entry -= open_[row] * wanted[row];
    if (entry >= 0) continue;
    matbox_pos = place_of(row);
    break;
  }
  return failed;
}

std::int16_t FrequencyBox::place_of(std::size_t row) const {
  const auto directions = settings_.abfr_iv == 0 ? 11 : 21;
  const int number = static_cast<int>(row);
  const int value = number > directions ? directions - number : number;
  return static_cast<std::int16_t>(std::ranges::find(matbox, value) - matbox.begin());
}

}  // namespace tonarix
