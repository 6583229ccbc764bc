#include "engine/material/test_list.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "music/interval.h"
#include "settings/offered_intervals.h"

namespace tonarix {
namespace {

constexpr std::int16_t to_even(std::int16_t number) {
  return is_odd(number) ? static_cast<std::int16_t>(number + 1) : number;
}

}  // namespace

std::int16_t five_eighths(std::int16_t tasks) {
  return to_int16(static_cast<std::int64_t>(Int(tasks / 8.0 * 5)));
}

std::int16_t three_quarters(std::int16_t tasks) {
  return round_to_int16(Round(tasks / 4.0 * 3));
}

TestList::TestList(const Settings& settings, const Key& key, Auswertung& statistics, Chance& chance)
    : settings_(settings), key_(key), statistics_(statistics), chance_(chance) {}

// So many tasks that each interval comes up about four times, kept between three and ten minutes
// where a longer or shorter test allows it. Both halves of a test have the same number of tasks.
void TestList::build(const TestTiming& timing) {
  constexpr int kLongTest = 600;
  constexpr int kShortTest = 180;
  const IntervalList offered = offered_intervals(settings_, key_);
  box_zeilen_ = static_cast<int>(offered.values().size());
  const int wished = box_zeilen_ * 4;
  const bool one_degree = settings_.ton_st_wahl == 1;
  aufg_gesamt = to_int16(
      one_degree ? wished : wished * 10 / static_cast<int>(Round((settings_.invzahl + 0.5) * 10)));
  aufg_gesamt = to_even(aufg_gesamt);
  aufg_dauer = estimate(timing);
  if (aufg_dauer > kLongTest || (one_degree && timing.one_degree_is_long)) {
    aufg_gesamt = to_even(timing.shortened(aufg_gesamt));
    aufg_dauer = estimate(timing);
  } else if (aufg_dauer < kShortTest) {
    aufg_gesamt = to_even(round_to_int16(aufg_gesamt / 4.0 * 6));
    aufg_dauer = estimate(timing);
  }
  matboxmax = round_to_int16(aufg_gesamt * asked_per_task() / 2.0);
  test_haeufgk.fill(0);
  aufg_rest = aufg_gesamt;
  TestListeFuellen();
}

std::int16_t TestList::estimate(const TestTiming& timing) const {
  double x = Int(timing.spieltimer / 1000.0 * aufg_gesamt);
  x = Round(Int(timing.WahlAutomat / 1000.0 * aufg_gesamt) + x);
  x += aufg_gesamt * asked_per_task() * timing.zeit_grenze / 10.0;
  return round_to_int16((Int((x - 1) / 10) + 1) * 10);
}

void TestList::TestListeFuellen() {
  matbox.clear();
  const IntervalList offered = offered_intervals(settings_, key_);
  for (const std::int16_t value : offered) {
    matbox.push_back(value);
    statistics_.Increment(row_of(value), 3);
  }
  while (matbox.size() < static_cast<std::size_t>(matboxmax)) {
    const std::int16_t value = draw_offered();
    if (value != 0) matbox.push_back(value);
  }
  for (std::size_t i = 0; i < taken_count_; ++i) taken_[i].place = kFilledAgain;
}

bool TestList::finish_task() {
  if (--aufg_rest == 0) return true;
  if (aufg_rest * 2 == aufg_gesamt) TestListeFuellen();
  return false;
}

bool TestList::pass_time(std::int16_t seconds) {
  aufg_dauer = to_int16(aufg_dauer - seconds);
  return aufg_dauer <= 0;
}

// 0 when the draw fell on a row that is not asked beside the chosen degree.
std::int16_t TestList::draw_offered() {
  const int sign = draw_sign(chance_);
  if (settings_.ton_st_wahl == 1 && settings_.abfr_iv == Naming::from_tone_before) {
    const auto pair = degree_pair(key_, settings_.stufe_wahl, draw(chance_, key_.anz_stufen));
    if (!pair) return 0;
    return Sgn(pair->interval) == sign ? pair->interval : pair->complement;
  }
  return to_int16(asked_code(draw(chance_, key_.iv_anzahl) + 1) * sign);
}

// In the first half of a test an interval not used yet is preferred, in the second half one used at
// most once.
std::int16_t TestList::draw_interval() {
  if (matbox.empty()) TestListeFuellen();
  const int half = static_cast<int>(Round(aufg_gesamt / 2.0));
  const int enough = (aufg_gesamt - aufg_rest) / half + 1;
  std::int16_t value = 0;
  for (int n = 0; n < box_zeilen_; ++n) {
    value = matbox[static_cast<std::size_t>(draw(chance_, static_cast<int>(matbox.size())))];
    if (uses(value) < enough) break;
  }
  return value;
}

bool TestList::take(std::int16_t value) {
  const auto entry = std::ranges::find(matbox, value);
  if (entry == matbox.end()) return false;
  taken_.at(taken_count_++) = {to_int16(entry - matbox.begin()), value};
  matbox.erase(entry);
  ++uses(value);
  return true;
}

void TestList::give_back() {
  while (taken_count_ > 0) {
    const Taken taken = taken_[--taken_count_];
    --uses(taken.value);
    if (taken.place != kFilledAgain) matbox.insert(matbox.begin() + taken.place, taken.value);
  }
}

}  // namespace tonarix
