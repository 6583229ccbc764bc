#include "engine/material/frequency_box.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/arithmetic.h"
#include "settings/offered_intervals.h"

namespace tonarix {
namespace {

// A full box holds the weights of an ordinary training many times over, so that refilling the
// drawing list after a task does not allocate.
constexpr std::size_t kUsualListLength = 1024;

// A right first answer is a reward that repeats and lateness use up, but never turn into a fine.
float settled(const AnsweredInterval& interval) {
  if (interval.rf < 0) {
    return std::min(interval.wdh_gewicht + interval.rf + interval.zeit_gewicht, 0.0F);
  }
  if (interval.rf == 0) return 0;
  return std::min(interval.wdh_gewicht + interval.rf, kErrorCeiling);
}

}  // namespace

FrequencyBox::FrequencyBox(const Settings& settings, const Key& key, Auswertung& statistics,
                           Chance& chance)
    : test(settings, key, statistics, chance),
      settings_(settings),
      key_(key),
      statistics_(statistics),
      chance_(chance) {
  matbox.reserve(kUsualListLength);
}

void FrequencyBox::BoxAufbau(const TestTiming& timing) {
  begin_task();
  matbox.assign(1, 0);
  matboxmax = matbox_vorn = 0;
  box_zeilen = 0;
  if (settings_.Uebungsmodus == Level::free) return;
  const IntervalList offered = offered_intervals(settings_, key_);
  for (const std::int16_t value : offered) mathaeufgk_box[++box_zeilen].value = value;
  start_gewicht = start_gewicht_of(box_zeilen);
  if (training()) {
    build_training();
  } else {
    test.build(timing);
  }
}

void FrequencyBox::build_training() {
  for (BoxRow& row : rows()) {
    row.weight = start_gewicht;
    statistics_.Increment(row_of(row.value), 3);
  }
  matboxmax = to_int16(box_zeilen * start_gewicht);
  MatboxFuellen(0);
  box_summe = matboxmax;
  shown_percentage_ = static_cast<int>(percentage());
}

void FrequencyBox::restore(const std::vector<BoxRow>& saved) {
  box_zeilen = to_int16(static_cast<std::int64_t>(saved.size()));
  start_gewicht = start_gewicht_of(box_zeilen);
  std::copy(saved.begin(), saved.end(), rows().begin());
  sort_and_sum();
  // However near its ceiling a training stands, after a break there is no earlier list to draw
  // from.
  fill_by_weights();
  shown_percentage_ = static_cast<int>(percentage());
}

void FrequencyBox::begin_task() {
  test.keep_taken();
}

void FrequencyBox::MatboxRechnen() {
  sort_and_sum();
  if (box_summe > 0 && box_summe < box_zeilen * 8 - 1) fill_by_weights();
}

void FrequencyBox::sort_and_sum() {
  // The exchange order of equal weights is part of the drawing list, so no other sort will do.
  for (int i = 1; i < box_zeilen; ++i) {
    for (int j = i + 1; j <= box_zeilen; ++j) {
      if (mathaeufgk_box[j].weight > mathaeufgk_box[i].weight) {
        std::swap(mathaeufgk_box[i], mathaeufgk_box[j]);
      }
    }
  }
  int sum = 0;
  for (const BoxRow& row : rows()) {
    if (row.weight <= 0) break;
    sum += row.weight;
  }
  box_summe = to_int16(sum);
}

void FrequencyBox::fill_by_weights() {
  const int smallest = mathaeufgk_box[box_zeilen].weight;
  const int add_wert = smallest >= 1 ? 0 : std::abs(smallest) + 1;
  int entries = 0;
  for (const BoxRow& row : rows()) entries += row.weight + add_wert;
  matboxmax = to_int16(entries);
  MatboxFuellen(add_wert);
}

void FrequencyBox::MatboxFuellen(int add_wert) {
  matbox.assign(1, 0);
  int front = 0;
  for (const BoxRow& row : rows()) {
    const int entries = row.weight + add_wert;
    if (entries < 1) continue;
    matbox.insert(matbox.end(), static_cast<std::size_t>(entries), row.value);
    if (row.weight > 0) front += entries;
  }
  matbox_vorn = to_int16(front);
}

BoxOutcome FrequencyBox::BoxAuswerten(std::span<const AnsweredInterval> answered) {
  for (const AnsweredInterval& interval : answered) {
    float rf = settled(interval);
    if (rf != 0 && training()) add_weight(interval.interval, rf);
    if (rf < 0) rf *= 2;
    StatEintrag(row_of(interval.interval), rf);
    if (rf > 0) count_confusions(interval);
  }
  if (!training()) return {1, 0};
  MatboxRechnen();
  return standing();
}

void FrequencyBox::StatEintrag(StatisticRow row, float rf) {
  const float value = rf - kErrorCeiling;
  if (training()) {
    statistics_.Increment(row, 0);
    statistics_.Add(row, value);
  } else {
    statistics_.SaveBest(row, value);
  }
}

// What was taken for the interval asked was confused with it, so it is asked more often too.
void FrequencyBox::count_confusions(const AnsweredInterval& interval) {
  for (const std::int16_t value : std::span(interval.f_antw_wert).subspan(1)) {
    if (value == 0) return;
    statistics_.Increment(row_of(value), 2);
    if (training()) add_weight(value, 1);
  }
}

void FrequencyBox::add_weight(std::int16_t value, float amount) {
  for (BoxRow& row : rows()) {
    if (row.value != value) continue;
    row.weight = to_int16(static_cast<std::int64_t>(static_cast<float>(row.weight) + amount));
    return;
  }
}

BoxOutcome FrequencyBox::standing() {
  BoxOutcome outcome{1, 0};
  if (box_summe < 1) {
    box_summe = 0;
    outcome = {4, 1};
  } else if (box_summe > ceiling() - 1) {
    box_summe = to_int16(ceiling());
    outcome = {4, 2};
  }
  shown_percentage_ = static_cast<int>(percentage());
  return outcome;
}

double FrequencyBox::percentage() const {
  return ceiling() == 0 ? 0 : 100.0 * box_summe / ceiling();
}

int FrequencyBox::entries() const {
  return is_test(settings_.Uebungsmodus) ? test.matboxmax : matboxmax;
}

// The nearer the training comes to its end, the more of the draws go to what is still unsolved.
std::int16_t FrequencyBox::draw_interval() {
  if (is_test(settings_.Uebungsmodus)) return test.draw_interval();
  constexpr int kStartPercentage = 50;
  constexpr int kNearTheEnd = 30;
  const int p = kStartPercentage - shown_percentage_;
  int last = matboxmax;
  if (p > kNearTheEnd && draw(chance_, 100) <= 2 * p - 20) last = matbox_vorn;
  return matbox[static_cast<std::size_t>(draw(chance_, last)) + 1];
}

}  // namespace tonarix
