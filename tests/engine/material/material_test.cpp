#include "engine/material/material.h"

#include <gtest/gtest.h>

#include <set>
#include <span>

#include "base/runtime_error.h"
#include "engine/material/range_repair.h"
#include "engine/material/worked_examples.h"
#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

TEST(Material, EveryRowInEverySettingKeepsTheLaws) {
  std::uint64_t seed = 100;
  for (const Settings& settings : material_settings()) {
    MaterialBed bed(settings, seed++);
    std::array<Tone, 6> last{};
    for (int n = 0; n < 8; ++n) {
      ASSERT_NO_THROW(bed.material.mat_wahl()) << describe(settings);
      ASSERT_EQ(broken_law(bed), "") << describe(settings);
      ASSERT_TRUE(settings.invzahl > 1 || bed.row.inv_ton != last) << describe(settings);
      last = bed.row.inv_ton;
      if (!bed.answer(0.4)) bed.begin();
    }
  }
}

TEST(Material, FirstDegreesStandAsOftenAsWorkedOutByHand) {
  for (const std::vector<double>& example : worked_examples("steps")) {
    Key key;
    build_scale(key, to_int16(example.at(0)), Naming::from_tone_before);
    std::vector<std::int16_t> expected;
    for (std::size_t row = 1; row < example.size(); ++row) {
      expected.insert(expected.end(), static_cast<std::size_t>(example[row]), to_int16(row - 1));
    }
    EXPECT_EQ(StufenGewichte(key), expected) << example[0];
  }
}

TEST(Material, KeyStaysOrChangesWithEachTask) {
  for (const bool changing : {false, true}) {
    Settings settings;
    settings.Tonart = changing;
    MaterialBed bed(settings, 5);
    std::set<int> keys;
    for (int n = 0; n < 300; ++n) {
      EXPECT_EQ(bed.material.mat_wahl(), n == 0 || changing);
      keys.insert(bed.key.qz_transpos);
    }
    EXPECT_EQ(keys.size(), changing ? 12U : 1U);
    bed.begin();
    EXPECT_TRUE(bed.material.mat_wahl());
  }
}

TEST(Material, ReportsWhenNoRowCanBeDrawn) {
  MaterialBed bed(Settings(), 1);
  bed.key.iv_anzahl = 0;  // nothing has a button
  bed.material.begin();
  EXPECT_THROW(bed.material.mat_wahl(), RuntimeError);
}

// No row fits into half an octave: after its strict tries each leaves the range, and keeps all
// other laws.
TEST(Material, OnlyTheRangeGivesWay) {
  Settings settings;
  settings.abfr_iv = Naming::from_tone_before;
  settings.tonraum_max = to_int16(settings.tonraum_min + 2);
  MaterialBed bed(settings, 3);
  constexpr int kRows = 20;
  for (int n = 0; n < kRows; ++n) {
    bed.material.mat_wahl();
    ASSERT_EQ(broken_law(bed, false), "");
  }
  EXPECT_GT(bed.material.refused()[static_cast<std::size_t>(Refusal::out_of_range)], 100 * kRows);
}

constexpr Naming kDegree = Naming::from_keynote;
constexpr Naming kStep = Naming::from_tone_before;

struct Repair {
  Naming naming;
  bool pruef_frei;
  std::int16_t okt_zusatz;
  std::vector<std::int16_t> chr, iv;     // as drawn, the last interval rising
  std::vector<std::int16_t> to_chr, to;  // repaired; none when it must be drawn again
};

// In C major from 48 to 72.
const Repair kRepairs[] = {
    {kStep, false, 0, {60, 64, 67}, {8, 7}, {60, 64, 67}, {8, 7}},  // inside
    {kStep, false, 0, {60, 67, 60}, {2, -2}, {}, {}},               // as two before
    {kDegree, false, 0, {60, 67, 74}, {5, 2}, {60, 67, 62}, {5, -2}},
    {kDegree, false, 0, {60, 67, 79}, {5, 5}, {60, 67, 55}, {5, -5}},
    {kStep, false, 0, {60, 67, 74}, {2, 2}, {60, 67, 62}, {2, -3}},
    {kStep, false, 12, {60, 67, 86}, {2, 2}, {60, 67, 50}, {2, -3}},
    {kStep, false, 0, {60, 67, 79}, {2, 1}, {60, 67, 55}, {2, -1}},  // a prime
    {kStep, true, 0, {62, 69, 76}, {2, 2}, {50, 57, 64}, {2, 2}},    // the row shifts
    {kStep, true, 0, {60, 64, 71, 78}, {8, 2, 2}, {60, 64, 59, 66}, {8, -2, 2}},
    {kStep, true, 0, {60, 64, 76, 83}, {8, 1, 2}, {60, 64, 52, 59}, {8, -1, 2}},
    {kStep, true, 0, {60, 64, 76, 88}, {8, 1, 1}, {}, {}},  // two primes
    {kStep, true, 0, {60, 64, 67, 74}, {8, -2, 2}, {60, 64, 67, 62}, {8, -2, -3}},
    {kDegree, true, 0, {60, 67, 71, 76}, {5, 7, 3}, {60, 67, 71, 64}, {5, 7, -3}},
};

TEST(RangeRepair, ChangesTheMelodyAsWorkedOutByHand) {
  for (const Repair& one : kRepairs) {
    SCOPED_TRACE(&one - kRepairs);
    Settings settings;
    settings.abfr_iv = one.naming;
    settings.tonraum_min = 48;
    settings.tonraum_max = 72;
    Key key;
    build_scale(key, 0, one.naming);
    TaskRow row;
    for (std::size_t i = 0; i < one.chr.size(); ++i) row.inv_ton[i] = {one.chr[i], 19};
    std::ranges::copy(one.iv, row.iv.begin());
    RowUnderWay built{row, 1, one.okt_zusatz, one.pruef_frei};
    const int last = static_cast<int>(one.iv.size());
    ASSERT_EQ(TonraumTest(built, last, settings, key), !one.to_chr.empty());
    EXPECT_TRUE(std::ranges::equal(one.to, std::span(row.iv).first(one.to.size())));
    const auto tones = std::span(row.inv_ton).first(one.to_chr.size());
    EXPECT_TRUE(std::ranges::equal(one.to_chr, tones, {}, {}, &Tone::chr));
  }
}

}  // namespace
}  // namespace tonarix
