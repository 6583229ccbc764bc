#include "engine/material/test_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "engine/material/worked_examples.h"
#include "settings/offered_intervals.h"
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
    TestList& list = bed.box.test;
    list.build({to_int16(beat * (invzahl + 2)), 1800, to_int16(abfr_iv == 0 ? 20 : 25)});
    EXPECT_EQ(list.aufg_gesamt, aufg_gesamt) << example.str();
    EXPECT_EQ(list.matboxmax, matboxmax) << example.str();
    EXPECT_EQ(list.aufg_dauer, aufg_dauer) << example.str();
    EXPECT_EQ(list.aufg_rest, aufg_gesamt);
  }
}

TEST(TestList, AsksEachIntervalOnceBeforeAnyByChance) {
  for (const Settings& settings : material_settings()) {
    if (settings.Uebungsmodus != Level::test || settings.Tonart != 0 || settings.E_Oktav != 3)
      continue;
    MaterialBed bed(settings, 11);
    TestList& list = bed.box.test;
    for (int half = 1; half <= 2; ++half) {
      const auto offered = offered_intervals(settings, bed.key);
      const std::size_t all = offered.values().size();
      ASSERT_LE(all, static_cast<std::size_t>(list.matboxmax));
      for (std::size_t i = 0; i < all; ++i) {
        EXPECT_EQ(list.matbox.at(i), offered.values()[i]);
        EXPECT_EQ(statistic(bed, statistic_row(offered.values()[i], settings.abfr_iv), 3), half);
      }
      ASSERT_EQ(static_cast<int>(list.matbox.size()), list.matboxmax);
      for (std::size_t i = all; i < list.matbox.size(); ++i) {
        EXPECT_NE(std::ranges::find(offered.values(), list.matbox[i]), offered.values().end());
      }
      list.TestListeFuellen();
    }
  }
}

TEST(TestList, GivesBackWhatARefusedRowTook) {
  MaterialBed bed(material_of(4, 0, 1), 2);
  TestList& list = bed.box.test;
  const auto entries = list.matbox;
  const auto uses = list.test_haeufgk;
  EXPECT_TRUE(list.take(4));
  EXPECT_EQ(list.test_haeufgk[4], 1);
  EXPECT_TRUE(list.take(-13));
  EXPECT_EQ(list.test_haeufgk[34], 1);
  EXPECT_NE(list.matbox, entries);
  list.give_back();
  EXPECT_EQ(list.matbox, entries);
  EXPECT_EQ(list.test_haeufgk, uses);

  while (list.take(6)) bed.box.begin_task();
  const int taken = list.test_haeufgk[6];
  list.give_back();  // of tasks that are done nothing goes back
  EXPECT_EQ(list.test_haeufgk[6], taken);

  list.take(4);
  list.TestListeFuellen();
  const auto filled = list.matbox;
  list.give_back();
  EXPECT_EQ(list.matbox, filled) << "a list filled meanwhile has all it needs";
}

// An emptied list is filled before it is drawn from.
TEST(TestList, NeverRunsDry) {
  MaterialBed bed(material_of(3, 0, 0), 4);
  for (int i = 0; i < 3 * bed.box.test.matboxmax; ++i) {
    bed.box.begin_task();
    ASSERT_TRUE(bed.box.test.take(bed.box.draw_interval()));
  }
}

// While few intervals have been used, a used one comes only when every try of the draw missed.
TEST(TestList, PrefersWhatItHasNotAskedYet) {
  Settings settings = material_of(3, 1, 1);
  settings.invzahl = 4;
  for (const int used : {20, 33}) {
    MaterialBed bed(settings, 9);
    TestList& list = bed.box.test;
    for (int n = 0; n < used; ++n) {
      list.take(list.matbox.front());
      list.keep_taken();
    }
    const auto fresh = [&](int value) {
      return list.test_haeufgk[place_of(statistic_row(to_int16(value), settings.abfr_iv))] == 0;
    };
    const auto open = static_cast<double>(list.matbox.size());
    const auto unused = static_cast<double>(std::ranges::count_if(list.matbox, fresh));
    const double missed = std::pow(1 - unused / open, bed.box.box_zeilen);
    constexpr int kDraws = 40000;
    const auto stale = [&] {
      int count = 0;
      for (int i = 0; i < kDraws; ++i) count += fresh(list.draw_interval()) ? 0 : 1;
      return static_cast<double>(count) / kDraws;
    };
    EXPECT_NEAR(stale(), missed, 0.01) << used;
    // In the second half an interval used once is as good as a new one.
    list.aufg_rest = to_int16(list.aufg_gesamt / 2);
    EXPECT_GT(stale(), 0.1) << used;
  }
}

}  // namespace
}  // namespace tonarix
