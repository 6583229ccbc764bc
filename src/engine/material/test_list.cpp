#include <algorithm>
#include <numeric>

#include "base/arithmetic.h"
#include "engine/material/frequency_box.h"
#include "music/interval.h"

namespace tonarix {
namespace {

constexpr std::int16_t to_even(std::int16_t number) {
  return is_odd(number) ? static_cast<std::int16_t>(number + 1) : number;
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
  open_places_.resize(matbox.size() - 1);
  std::iota(open_places_.begin(), open_places_.end(), std::int16_t{1});
  // A refilled list has no places left to give back to.
  for (std::size_t i = 0; i < taken_count_; ++i) taken_[i].place = 0;
}

// 0 when the draw fell on a row that is not asked beside the chosen degree.
std::int16_t FrequencyBox::draw_offered() {
  const int sign = draw_sign(chance_);
  if (settings_.ton_st_wahl == 1 && settings_.abfr_iv == Naming::from_tone_before) {
    const auto pair = degree_pair(key_, settings_.stufe_wahl, draw(chance_, key_.anz_stufen));
    if (!pair) return 0;
    return Sgn(pair->interval) == sign ? pair->interval : pair->complement;
  }
  return to_int16(asked_code(draw(chance_, key_.iv_anzahl) + 1) * sign);
}

bool FrequencyBox::take_from_list(std::int16_t value) {
  const auto entry = std::ranges::find(matbox, value);
  if (entry == matbox.end()) return false;
  const auto place = to_int16(entry - matbox.begin());
  *entry = 0;
  std::erase(open_places_, place);
  ++test_haeufgk[place_of(row_of(value))];
  taken_.at(taken_count_++) = {place, value};
  return true;
}

void FrequencyBox::give_back() {
  while (taken_count_ > 0) {
    const Taken taken = taken_[--taken_count_];
    --test_haeufgk[place_of(row_of(taken.value))];
    if (taken.place == 0) continue;
    matbox[static_cast<std::size_t>(taken.place)] = taken.value;
    open_places_.push_back(taken.place);
  }
}

// In the first half of a test an interval not used yet is preferred, in the second half one used at
// most once.
void FrequencyBox::draw_test_place() {
  if (open_places_.empty()) TestListeFuellen();
  const int half = static_cast<int>(Round(aufg_gesamt / 2.0));
  const int uses = (aufg_gesamt - aufg_rest) / half + 1;
  for (int n = 0; n < box_zeilen; ++n) {
    const int open = draw(chance_, static_cast<int>(open_places_.size()));
    matbox_pos = open_places_[static_cast<std::size_t>(open)];
    if (test_haeufgk[place_of(row_of(drawn()))] < uses) break;
  }
}

}  // namespace tonarix
