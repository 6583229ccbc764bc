#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "engine/material/frequency_box.h"
#include "engine/material/worked_examples.h"
#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

TEST(TestList, LengthsAreAsWorkedOutByHand) {
  for (std::istringstream& example : worked_examples("length")) {
    int mode = 0, abfr_iv = 0, degree = 0, invzahl = 0, beat = 0;
    int aufg_gesamt = 0, matboxmax = 0, aufg_dauer = 0;
    example >> mode >> abfr_iv >> degree >> invzahl >> beat;
    ASSERT_TRUE(example >> aufg_gesamt >> matboxmax >> aufg_dauer);
    Settings settings = material_of(3, mode, abfr_iv);
    settings.ton_st_wahl = degree >= 0;
    settings.stufe_wahl = to_int16(std::max(degree, 0));
    settings.invzahl = to_int16(invzahl);
    MaterialBed bed(settings, 1);
    bed.box.BoxAufbau({to_int16(beat * (invzahl + 2)), 1800, to_int16(abfr_iv == 0 ? 20 : 25)});
    EXPECT_EQ(bed.box.aufg_gesamt, aufg_gesamt) << example.str();
    EXPECT_EQ(bed.box.matboxmax, matboxmax) << example.str();
    EXPECT_EQ(bed.box.aufg_dauer, aufg_dauer) << example.str();
    EXPECT_EQ(bed.box.aufg_rest, aufg_gesamt);
  }
}

TEST(TestList, AsksEachIntervalOnceBeforeAnyByChance) {
  for (const Settings& settings : material_settings()) {
    if (settings.Uebungsmodus != Level::test || settings.Tonart != 0 || settings.E_Oktav != 3)
      continue;
    MaterialBed bed(settings, 11);
    for (int half = 1; half <= 2; ++half) {
      const auto offered = offered_intervals(settings, bed.key);
      const std::size_t all = offered.values().size();
      ASSERT_LE(all, static_cast<std::size_t>(bed.box.matboxmax));
      for (std::size_t i = 0; i < all; ++i) {
        EXPECT_EQ(bed.box.matbox.at(i + 1), offered.values()[i]);
        EXPECT_EQ(statistic(bed, statistic_row(offered.values()[i], settings.abfr_iv), 3), half);
      }
      ASSERT_EQ(static_cast<int>(bed.box.matbox.size()), bed.box.matboxmax + 1);
      for (std::size_t i = all + 1; i < bed.box.matbox.size(); ++i) {
        EXPECT_NE(std::ranges::find(offered.values(), bed.box.matbox[i]), offered.values().end());
      }
      bed.box.TestListeFuellen();
    }
  }
}

TEST(TestList, GivesBackWhatARefusedRowTook) {
  MaterialBed bed(material_of(4, 0, 1), 2);
  const auto list = bed.box.matbox;
  const auto uses = bed.box.test_haeufgk;
  bed.box.begin_task();
  EXPECT_TRUE(bed.box.take_from_list(4));
  EXPECT_EQ(bed.box.test_haeufgk[4], 1);
  EXPECT_TRUE(bed.box.take_from_list(-13));
  EXPECT_EQ(bed.box.test_haeufgk[34], 1);
  EXPECT_NE(bed.box.matbox, list);
  bed.box.give_back();
  EXPECT_EQ(bed.box.matbox, list);
  EXPECT_EQ(bed.box.test_haeufgk, uses);

  while (bed.box.take_from_list(6)) bed.box.begin_task();
  EXPECT_FALSE(bed.box.take_from_list(6));
  const int taken = bed.box.test_haeufgk[6];
  bed.box.give_back();  // of tasks that are done nothing goes back
  EXPECT_EQ(bed.box.test_haeufgk[6], taken);
}

// An emptied list is filled before it is drawn from.
TEST(TestList, NeverRunsDry) {
  MaterialBed bed(material_of(3, 0, 0), 4);
  for (int i = 0; i < 3 * bed.box.matboxmax; ++i) {
    bed.box.begin_task();
    bed.box.draw_interval();
    ASSERT_TRUE(bed.box.take_from_list(bed.box.drawn()));
  }
}

// While few intervals have been used, a used one comes only when every try of the draw missed.
TEST(TestList, PrefersWhatItHasNotAskedYet) {
  Settings settings = material_of(3, 1, 1);
  settings.invzahl = 4;
  for (const int used : {20, 33}) {
    MaterialBed bed(settings, 9);
    for (std::size_t place = 1; place <= static_cast<std::size_t>(used); ++place) {
      bed.box.begin_task();
      bed.box.take_from_list(bed.box.matbox[place]);
    }
    const auto open = std::ranges::count_if(bed.box.matbox, [](int value) { return value != 0; });
    const auto fresh = [&](int value) {
      const auto row = statistic_row(to_int16(value), settings.abfr_iv);
      return bed.box.test_haeufgk[place_of(row)] == 0;
    };
    const auto unused = std::ranges::count_if(
        bed.box.matbox, [&](int value) { return value != 0 && fresh(value); });
    const double missed = std::pow(1 - static_cast<double>(unused) / static_cast<double>(open),
                                   static_cast<double>(bed.box.box_zeilen));
    constexpr int kDraws = 40000;
    int stale = 0;
    for (int i = 0; i < kDraws; ++i) {
      bed.box.draw_interval();
      ASSERT_NE(bed.box.drawn(), 0);
      if (!fresh(bed.box.drawn())) ++stale;
    }
    EXPECT_NEAR(static_cast<double>(stale) / kDraws, missed, 0.01) << used;
    // In the second half an interval used once is as good as a new one.
    bed.box.aufg_rest = to_int16(bed.box.aufg_gesamt / 2);
    stale = 0;
    for (int i = 0; i < kDraws; ++i) {
      bed.box.draw_interval();
      if (!fresh(bed.box.drawn())) ++stale;
    }
    EXPECT_GT(stale, kDraws / 10) << used;
  }
}

}  // namespace
}  // namespace tonarix
