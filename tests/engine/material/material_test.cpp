#include "engine/material/material.h"

#include <gtest/gtest.h>

#include <map>
#include <numeric>

#include "base/runtime_error.h"
#include "engine/material/worked_examples.h"
#include "sound/tuning.h"
#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

TEST(Material, EveryRowInEverySettingKeepsTheLaws) {
  std::uint64_t seed = 100;
  for (Settings settings : material_settings()) {
    settings.stimm_g = static_cast<std::int16_t>(seed % 3);
    settings.frequenz = static_cast<std::int16_t>(seed % 2);
    MaterialBed bed(settings, seed++);
    for (int n = 0; n < 8; ++n) {
      ASSERT_NO_THROW(bed.material.mat_wahl()) << describe(settings);
      ASSERT_EQ(broken_law(bed), "") << describe(settings);
      for (std::size_t i = 0; i <= static_cast<std::size_t>(settings.invzahl) + 1; ++i) {
        ASSERT_EQ(bed.material.ton_abw[i],
                  tuning_deviation(bed.row.inv_ton[i], settings.stimm_g, bed.key.qz_transpos));
      }
      ASSERT_LE(std::abs(bed.material.freq_abw), settings.frequenz * 16);
      if (!bed.answer(0.4)) bed.begin();
    }
  }
}

TEST(Material, FirstDegreesStandAsOftenAsWorkedOutByHand) {
  for (std::int16_t mode = 0; mode <= 2; ++mode) {
    Key key;
    build_scale(key, mode, 1);
    const std::vector<std::int16_t> list = StufenGewichte(key);
    std::vector<std::int16_t> expected;
    const auto& counts = kStepLists[static_cast<std::size_t>(mode)];
    for (std::size_t row = 0; row < counts.size(); ++row) {
      expected.insert(expected.end(), static_cast<std::size_t>(counts[row]),
                      static_cast<std::int16_t>(row));
    }
    EXPECT_EQ(list, expected) << mode;
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

TEST(Material, NoTaskOfOneIntervalRepeatsTheLast) {
  for (Settings settings : material_settings()) {
    if (settings.invzahl != 1 || settings.Tonart != 0 || settings.E_Oktav != 0) continue;
    MaterialBed bed(settings, 8);
    std::array<Tone, 6> last{};
    for (int n = 0; n < 40; ++n) {
      bed.material.mat_wahl();
      ASSERT_NE(bed.row.inv_ton, last) << describe(settings);
      last = bed.row.inv_ton;
      if (!bed.answer(0.3)) bed.begin();
    }
  }
}

TEST(Material, RemembersTheThirdsOfADurMollRow) {
  Settings settings;
  settings.tongeschl = 2;
  settings.invzahl = 3;
  MaterialBed bed(settings, 6);
  std::map<int, int> seen;
  for (int n = 0; n < 2000; ++n) {
    bed.material.mat_wahl();
    int expected = 0;
    for (std::size_t i = 1; i <= 4; ++i) {
      const int above = (bed.row.inv_ton[i].chr - bed.key.skala[0].chr + 120) % 12;
      if (above == 3) expected |= 1;
      if (above == 4) expected |= 2;
    }
    ASSERT_EQ(bed.material.terz_typ, expected);
    ++seen[expected];
  }
  EXPECT_EQ(seen.size(), 4u);
}

// In a whole test nearly every interval of the list is asked: only the first one of each row is
// drawn without looking at it, and what is not on the list there costs a place.
TEST(Material, ATestAsksItsList) {
  for (const std::int16_t abfr_iv : {std::int16_t{0}, std::int16_t{1}}) {
    Settings settings;
    settings.Uebungsmodus = 3;
    settings.abfr_iv = abfr_iv;
    MaterialBed bed(settings, 12);
    int missing = 0;
    constexpr int kTests = 50;
    for (int test = 0; test < kTests; ++test) {
      bed.begin();
      do {
        const auto before = bed.box.test_haeufgk;
        bed.material.mat_wahl();
        const int taken = std::reduce(bed.box.test_haeufgk.begin(), bed.box.test_haeufgk.end(), 0) -
                          std::reduce(before.begin(), before.end(), 0);
        ASSERT_LE(taken, settings.invzahl + 1);
      } while (bed.answer(0.2));
      for (const std::int16_t value : offered_intervals(settings, bed.key)) {
        if (bed.box.test_haeufgk[static_cast<std::size_t>(statistic_row(value, abfr_iv))] == 0) {
          ++missing;
        }
      }
    }
    EXPECT_LT(missing, kTests * bed.box.box_zeilen / 20) << abfr_iv;
  }
}

TEST(Material, ReportsWhenNoRowCanBeDrawn) {
  Settings settings;
  MaterialBed bed(settings, 1);
  bed.material.begin();
  bed.key.iv_anzahl = 0;  // nothing has a button
  bed.material.begin();
  EXPECT_THROW(bed.material.mat_wahl(), RuntimeError);
}

// No row fits into half an octave: after its strict tries each leaves the range, and keeps all
// other laws.
TEST(Material, OnlyTheRangeGivesWay) {
  Settings settings;
  settings.abfr_iv = 1;
  settings.tonraum_max = to_int16(settings.tonraum_min + 2);
  MaterialBed bed(settings, 3);
  constexpr int kRows = 20;
  for (int n = 0; n < kRows; ++n) {
    bed.material.mat_wahl();
    ASSERT_EQ(broken_law(bed, false), "");
  }
  EXPECT_GT(bed.material.refused()[static_cast<std::size_t>(Refusal::out_of_range)], 100 * kRows);
}

TEST(Acceptance, NamesTheReason) {
  Settings settings;
  settings.abfr_iv = 1;
  Key key;
  build_scale(key, 0, 1);
  const std::bitset<22> codes = offered_codes(settings, key);
  const Tone c{48, 15};
  const Tone g{55, 16};
  const Tone d{62, 17};
  const auto refusal = [&](std::array<Tone, 3> tones, std::int16_t iv0, std::int16_t iv1,
                           const std::bitset<22>& buttons, bool range_may_give_way) {
    TaskRow row;
    std::copy(tones.begin(), tones.end(), row.inv_ton.begin());
    row.iv = {iv0, iv1};
    return refusal_of(settings, key, row, buttons, range_may_give_way);
  };
  EXPECT_EQ(refusal({c, g, d}, 2, 2, codes, false), std::nullopt);
  EXPECT_EQ(refusal({c, g, d}, 2, -3, codes, false), Refusal::not_leading);
  EXPECT_EQ(refusal({c, g, d}, 2, 2, std::bitset<22>{}, false), Refusal::no_button);
  EXPECT_EQ(refusal({c, g, c}, 2, -2, codes, false), Refusal::tone_repeated);
  EXPECT_EQ(refusal({c, g, Tone{74, 17}}, 2, 2, codes, false), Refusal::out_of_range);
  EXPECT_EQ(refusal({c, g, Tone{74, 17}}, 2, 2, codes, true), std::nullopt);
  EXPECT_EQ(refusal({c, g, Tone{110, 17}}, 2, 2, codes, true), Refusal::no_name);
}

}  // namespace
}  // namespace tonarix
