#include "engine/material/frequency_box.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>

#include "engine/material/worked_examples.h"
#include "settings/offered_intervals.h"
#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

// The drawing list is what the sorted rows ask for: each value weight + offset times, those of
// positive weight first.
void expect_list_matches_weights(const FrequencyBox& box) {
  const std::span rows(&box.mathaeufgk_box[1], static_cast<std::size_t>(box.box_zeilen));
  EXPECT_TRUE(std::ranges::is_sorted(rows, std::greater(), &BoxRow::weight));
  const int offset = std::max(0, 1 - rows.back().weight);
  std::map<int, int> expected, found;
  int front = 0;
  for (const BoxRow& row : rows) {
    expected[row.value] = row.weight + offset;
    if (row.weight > 0) front += row.weight + offset;
  }
  for (int i = 1; i <= box.matboxmax; ++i) ++found[box.matbox.at(static_cast<std::size_t>(i))];
  EXPECT_EQ(found, expected);
  EXPECT_EQ(box.matbox_vorn, front);
  EXPECT_EQ(static_cast<int>(box.matbox.size()), box.matboxmax + 1);
}

TEST(FrequencyBox, AsksWhatHasAButtonAndHasTheRowsOfItsScale) {
  for (const Settings& settings : material_settings()) {
    if (settings.Uebungsmodus != Level::training || settings.Tonart != 0 || settings.E_Oktav != 3)
      continue;
    SCOPED_TRACE(describe(settings));
    const MaterialBed bed(settings, 1);
    const IntervalList offered = offered_intervals(settings, bed.key);
    const std::set<int> values(offered.begin(), offered.end());
    EXPECT_EQ(std::ssize(values), bed.box.box_zeilen);
    EXPECT_TRUE(settings.ton_st_wahl == 1 || bed.box.box_zeilen == bed.key.iv_anzahl * 2);
    EXPECT_EQ(bed.box.percentage(), 50);
    const std::bitset<22> codes = offered_codes(settings, bed.key);
    EXPECT_FALSE(codes[0] || codes[14] || codes[15]);
    const int half = settings.abfr_iv == Naming::from_keynote ? 11 : 21;
    for (int row = 1; row < kStatisticRows; ++row) {
      const int value = row > half ? half - row : row;
      EXPECT_EQ(statistic(bed, StatisticRow(row), 3), values.contains(value)) << value;
      EXPECT_TRUE(!values.contains(value) || codes[static_cast<std::size_t>(std::abs(value))]);
    }
    expect_list_matches_weights(bed.box);
  }
}

TEST(FrequencyBox, MovesAsWorkedOutByHand) {
  std::optional<MaterialBed> bed;
  for (const std::vector<double>& cells : worked_examples("answer")) {
    if (cells.at(2) == 0) bed.emplace(material_of(1, cells[0], cells[1]), 1);
    AnsweredInterval interval{
        to_int16(cells.at(3)), -4, static_cast<float>(cells.at(9)), to_int16(cells.at(8)), {}};
    std::size_t wrong = 0;
    for (std::size_t i = 4; i <= 7; ++i) {
      if (cells[i] != 0) interval.f_antw_wert[++wrong] = to_int16(cells[i]);
    }
    if (wrong > 0) interval.rf = 2.0F * static_cast<float>(wrong);
    FrequencyBox& box = bed->box;
    box.begin_task();
    const StatisticRow row = statistic_row(interval.interval, bed->settings.abfr_iv);
    const float before = statistic(*bed, row, 1);
    const BoxOutcome outcome = box.BoxAuswerten({&interval, 1});
    EXPECT_EQ(outcome.ergebnis_anz, outcome.zustand == 1 ? 0 : box.box_summe == 0 ? 1 : 2);
    const bool at_end = cells.at(14) == 0;  // there the list is left as it is
    std::vector<double> found{statistic(*bed, row, 1) - before,
                              box.box_summe * 1.0,
                              outcome.zustand * 1.0,
                              std::trunc(box.percentage()),
                              at_end ? 0.0 : box.matboxmax,
                              at_end ? 0.0 : box.matbox_vorn};
    for (const int place : {1, 2, 3, int{box.box_zeilen}}) {
      found.push_back(box.mathaeufgk_box[static_cast<std::size_t>(place)].weight);
    }
    const std::vector<double> expected(cells.begin() + 10, cells.end());
    EXPECT_THAT(found, testing::Pointwise(testing::DoubleNear(1e-4), expected));
    if (!at_end) expect_list_matches_weights(box);
  }
}

TEST(FrequencyBox, AnEmptySlotEndsTheWrongAnswers) {
  Settings settings = material_of(1, 0, 1);
  settings.ton_st_wahl = 1;
  settings.stufe_wahl = 4;
  MaterialBed bed(settings, 1);
  const AnsweredInterval wrong{4, 8, 0, 0, {0, 2, -3, 0, 6}};
  bed.box.BoxAuswerten({&wrong, 1});
  for (const auto& [value, weight] : {std::pair{4, 12}, {2, 5}, {-3, 5}, {6, 4}}) {
    EXPECT_EQ(std::ranges::find(bed.box.mathaeufgk_box, value, &BoxRow::value)->weight, weight);
  }
  EXPECT_EQ(statistic(bed, StatisticRow{2}, 0), 0);
}

// Near the end of a training most draws go to what still has weight.
TEST(FrequencyBox, DrawsTheUnsolvedNearTheEnd) {
  MaterialBed bed(material_of(1, 0, 0), 5);
  std::vector<BoxRow> rows;
  for (const std::int16_t value : offered_intervals(bed.settings, bed.key)) {
    rows.push_back({value, to_int16(value == 3 ? 6 : -6)});
  }
  bed.box.restore(rows);
  ASSERT_TRUE(bed.box.matbox_vorn == 13 && bed.box.matboxmax == 26);
  int hits = 0;
  constexpr int kDraws = 100000;
  for (int i = 0; i < kDraws; ++i) hits += bed.box.draw_interval() == 3 ? 1 : 0;
  // 5 of 100: p = 45 and t = 70, so 71 of 100 draws are of the unsolved, the others of all.
  EXPECT_NEAR(static_cast<double>(hits) / kDraws, 0.71 + 0.29 * 0.5, 0.006);
}

}  // namespace
}  // namespace tonarix
