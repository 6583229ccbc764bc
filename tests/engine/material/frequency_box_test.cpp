#include "engine/material/frequency_box.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "engine/material/worked_examples.h"
#include "music/degrees.h"
#include "settings/offered_intervals.h"
#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

// The drawing list is what the sorted rows ask for: each value weight + offset times, those of
// positive weight first.
void expect_list_matches_weights(const FrequencyBox& box) {
  const BoxRow* const first = &box.mathaeufgk_box[1];
  const BoxRow* const end = first + box.box_zeilen;
  EXPECT_TRUE(std::is_sorted(first, end, [](auto a, auto b) { return a.weight > b.weight; }));
  const int offset = std::max(0, 1 - end[-1].weight);
  std::map<int, int> expected;
  int front = 0;
  for (const BoxRow* row = first; row != end; ++row) {
    expected[row->value] = row->weight + offset;
    if (row->weight > 0) front += row->weight + offset;
  }
  std::map<int, int> found;
  for (int i = 1; i <= box.matboxmax; ++i) ++found[box.matbox.at(static_cast<std::size_t>(i))];
  EXPECT_EQ(found, expected);
  EXPECT_EQ(box.matbox_vorn, front);
  EXPECT_EQ(static_cast<int>(box.matbox.size()), box.matboxmax + 1);
}

TEST(FrequencyBox, AsksWhatHasAButtonAndHasTheRowsOfItsScale) {
  std::set<std::string> seen;
  for (Settings settings : material_settings()) {
    if (settings.Uebungsmodus != Level::training || settings.Tonart != 0 || settings.E_Oktav != 3)
      continue;
    const MaterialBed bed(settings, 1);
    const IntervalList offered = offered_intervals(settings, bed.key);
    const std::set<int> values(offered.values().begin(), offered.values().end());
    int rows = bed.key.iv_anzahl * 2;
    if (settings.ton_st_wahl == 1 && settings.abfr_iv == Naming::from_tone_before) {
      const int own = bed.key.basis[static_cast<std::size_t>(settings.stufe_wahl)].qz;
      bool seven_fifths = false;
      for (int r = 0; r < bed.key.anz_stufen; ++r) {
        const int other = bed.key.basis[static_cast<std::size_t>(r)].qz;
        seven_fifths = seven_fifths || std::abs(other - own) == 7;
      }
      rows = (bed.key.anz_stufen - (seven_fifths ? 1 : 0)) * 2;
    }
    EXPECT_EQ(bed.box.box_zeilen, rows) << describe(settings);
    EXPECT_EQ(static_cast<int>(values.size()), rows) << describe(settings);
    EXPECT_EQ(bed.box.percentage(), 50) << describe(settings);
    const std::bitset<22> codes = offered_codes(settings, bed.key);
    EXPECT_FALSE(codes[0] || codes[14] || codes[15]);
    for (int row = 1; row < kStatisticRows; ++row) {
      const int half = settings.abfr_iv == Naming::from_keynote ? 11 : 21;
      const int value = row > half ? half - row : row;
      EXPECT_EQ(statistic(bed, StatisticRow(row), 3), values.contains(value))
          << describe(settings) << value;
      EXPECT_TRUE(!values.contains(value) || codes[static_cast<std::size_t>(std::abs(value))]);
    }
    expect_list_matches_weights(bed.box);
  }
}

// The list of degrees to choose from names the rows of the scale in their order, so its index is
// the row.
TEST(FrequencyBox, ChosenDegreeIsTheRowOfTheScale) {
  const std::vector<std::vector<int>> listed{
      {1, 4, 8, 3, 2, 6, 10}, {1, 4, 7, 3, 2, 9, 6, 5, 10}, {1, 11, 4, 7, 8, 3, 2, 9, 6, 5, 10}};
  for (std::int16_t mode = 0; mode <= 2; ++mode) {
    Key key;
    build_scale(key, mode, Naming::from_keynote);
    ASSERT_EQ(static_cast<int>(listed[static_cast<std::size_t>(mode)].size()), key.anz_stufen);
    for (int row = 0; row < key.anz_stufen; ++row) {
      EXPECT_EQ(static_cast<int>(direct_code_of_degree(key, degree_in(row))),
                listed[static_cast<std::size_t>(mode)][static_cast<std::size_t>(row)]);
    }
  }
}

TEST(FrequencyBox, MovesAsWorkedOutByHand) {
  std::optional<MaterialBed> bed;
  for (std::istringstream& example : worked_examples("answer")) {
    SCOPED_TRACE(example.str());
    const auto next = [&example] {
      double cell = 0;
      EXPECT_TRUE(example >> cell);
      return cell;
    };
    const auto mode = next();
    const auto abfr_iv = next();
    if (next() == 0) bed.emplace(material_of(1, mode, abfr_iv), 1);
    FrequencyBox& box = bed->box;
    box.begin_task();
    AnsweredInterval interval;
    interval.interval = to_int16(next());
    int wrong = 0;
    for (int i = 0; i < 4; ++i) {
      const std::int16_t value = to_int16(next());
      if (value != 0) interval.f_antw_wert[static_cast<std::size_t>(++wrong)] = value;
    }
    interval.rf = wrong == 0 ? -4.0F : 2.0F * static_cast<float>(wrong);
    interval.wdh_gewicht = to_int16(next());
    interval.zeit_gewicht = static_cast<float>(next());
    const StatisticRow row = statistic_row(interval.interval, bed->settings.abfr_iv);
    const float before = statistic(*bed, row, 1);
    const BoxOutcome outcome = box.BoxAuswerten({&interval, 1});

    EXPECT_NEAR(statistic(*bed, row, 1) - before, next(), 1e-4);
    EXPECT_EQ(box.box_summe, next());
    EXPECT_EQ(outcome.zustand, next());
    EXPECT_EQ(outcome.ergebnis_anz, outcome.zustand == 1 ? 0 : box.box_summe == 0 ? 1 : 2);
    EXPECT_EQ(static_cast<int>(box.percentage()), next());
    const double entries = next();
    const double entries_in_front = next();
    for (const int place : {1, 2, 3, int{box.box_zeilen}}) {
      EXPECT_EQ(box.mathaeufgk_box[static_cast<std::size_t>(place)].weight, next());
    }
    if (entries == 0) continue;  // at its ends the list is left as it is
    EXPECT_EQ(box.matboxmax, entries);
    EXPECT_EQ(box.matbox_vorn, entries_in_front);
    expect_list_matches_weights(box);
  }
}

TEST(FrequencyBox, AnEmptySlotEndsTheWrongAnswers) {
  Settings settings = material_of(1, 0, 1);
  settings.ton_st_wahl = 1;
  settings.stufe_wahl = 4;
  MaterialBed bed(settings, 1);
  const AnsweredInterval wrong{4, 8, 0, 0, {0, 2, -3, 0, 6}};
  bed.box.BoxAuswerten({&wrong, 1});
  const auto weight = [&](int value) {
    return std::ranges::find(bed.box.mathaeufgk_box, value, &BoxRow::value)->weight;
  };
  EXPECT_EQ(weight(4), 12);
  EXPECT_EQ(weight(2), 5);
  EXPECT_EQ(weight(-3), 5);
  EXPECT_EQ(weight(6), 4);
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
  ASSERT_EQ(bed.box.matbox_vorn, 13);
  ASSERT_EQ(bed.box.matboxmax, 26);
  int hits = 0;
  constexpr int kDraws = 100000;
  for (int i = 0; i < kDraws; ++i) {
    if (bed.box.draw_interval() == 3) ++hits;
  }
  // 5 of 100: p = 45 and t = 70, so 71 of 100 draws are of the unsolved, the others of all.
  EXPECT_NEAR(static_cast<double>(hits) / kDraws, 0.71 + 0.29 * 0.5, 0.006);
}

}  // namespace
}  // namespace tonarix
