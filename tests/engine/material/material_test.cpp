#include "engine/material/material.h"

#include <gtest/gtest.h>

#include <map>

#include "base/runtime_error.h"
#include "engine/material/worked_examples.h"
#include "settings/offered_intervals.h"
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
  for (std::istringstream& example : worked_examples("steps")) {
    int mode = 0;
    example >> mode;
    Key key;
    build_scale(key, to_int16(mode), Naming::from_tone_before);
    std::vector<std::int16_t> expected;
    std::int16_t row = 0;
    for (std::size_t count = 0; example >> count; ++row) {
      expected.insert(expected.end(), count, row);
    }
    EXPECT_EQ(StufenGewichte(key), expected) << mode;
  }
}

TEST(Material, KeyStaysOrChangesWithEachTask) {
  for (const std::int16_t changing : {std::int16_t{0}, std::int16_t{1}}) {
    Settings settings;
    settings.Tonart = changing;
    MaterialBed bed(settings, 5);
    EXPECT_TRUE(bed.material.mat_wahl());
    std::map<int, int> keys;
    for (int n = 0; n < 300; ++n) {
      EXPECT_EQ(bed.material.mat_wahl(), changing == 1);
      ++keys[bed.key.qz_transpos];
    }
    EXPECT_EQ(keys.size(), changing == 1 ? 12u : 1u);
    bed.begin();
    EXPECT_TRUE(bed.material.mat_wahl());
  }
}

// In a whole test nearly every interval of the list is asked: only the first one of each row is
// drawn without looking at it, and what is not on the list there costs a place.
TEST(Material, ATestAsksItsList) {
  for (const Naming abfr_iv : {Naming::from_keynote, Naming::from_tone_before}) {
    const Settings settings = material_of(3, 0, static_cast<int>(abfr_iv));
    MaterialBed bed(settings, 12);
    int missing = 0;
    constexpr int kTests = 50;
    for (int test = 0; test < kTests; ++test) {
      bed.begin();
      do {
        bed.material.mat_wahl();
      } while (bed.answer(0.2));
      for (const std::int16_t value : offered_intervals(settings, bed.key)) {
        if (bed.box.test.test_haeufgk[place_of(statistic_row(value, abfr_iv))] == 0) {
          ++missing;
        }
      }
    }
    EXPECT_LT(missing, kTests * bed.box.box_zeilen / 20) << static_cast<int>(abfr_iv);
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

}  // namespace
}  // namespace tonarix
