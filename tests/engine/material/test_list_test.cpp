#include "engine/material/test_list.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/material/worked_examples.h"
#include "settings/offered_intervals.h"
#include "support/material_bed.h"
#include "support/material_settings.h"

namespace tonarix {
namespace {

TEST(TestList, LengthsAreAsWorkedOutByHand) {
  for (const std::vector<double>& example : worked_examples("length")) {
    const double degree = example.at(2), invzahl = example.at(3), beat = example.at(4);
    Settings settings = material_of(3, example[0], example[1]);
    settings.ton_st_wahl = degree >= 0;
    settings.stufe_wahl = to_int16(std::max(degree, 0.0));
    settings.invzahl = to_int16(invzahl);
    MaterialBed bed(settings, 1);
    TestList& list = bed.box.test;
    list.build({to_int16(beat * (invzahl + 2)), 1800, to_int16(example[1] == 0 ? 20 : 25)});
    EXPECT_THAT((std::array{list.aufg_gesamt, list.matboxmax, list.aufg_dauer}),
                testing::ElementsAre(example.at(5), example.at(6), example.at(7)));
    EXPECT_EQ(list.aufg_rest, list.aufg_gesamt);
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
      ASSERT_EQ(std::ssize(list.matbox), list.matboxmax);
      const auto chance = std::ranges::mismatch(offered, list.matbox);
      ASSERT_EQ(chance.in1, offered.end());
      for (const std::int16_t value : offered) {
        EXPECT_EQ(statistic(bed, statistic_row(value, settings.abfr_iv), 3), half);
      }
      EXPECT_TRUE(std::all_of(chance.in2, list.matbox.end(), [&](std::int16_t value) {
        return std::ranges::find(offered, value) != offered.end();
      }));
      list.TestListeFuellen();
    }
  }
}

TEST(TestList, GivesBackWhatARefusedRowTook) {
  MaterialBed bed(material_of(4, 0, 1), 2);
  TestList& list = bed.box.test;
  const auto entries = list.matbox;
  const auto uses = list.test_haeufgk;
  EXPECT_TRUE(list.take(4) && list.take(-13));
  EXPECT_TRUE(list.test_haeufgk[4] == 1 && list.test_haeufgk[34] == 1);
  EXPECT_NE(list.matbox, entries);
  list.give_back();
  EXPECT_TRUE(list.matbox == entries && list.test_haeufgk == uses);

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

TEST(TestList, IsFilledBeforeAnEmptyOneIsDrawnFrom) {
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
    const auto stale = [&] {
      double count = 0;
      for (int i = 0; i < 40000; ++i) count += fresh(list.draw_interval()) ? 0 : 1;
      return count / 40000;
    };
    EXPECT_NEAR(stale(), missed, 0.01) << used;
    // In the second half an interval used once is as good as a new one.
    list.aufg_rest = to_int16(list.aufg_gesamt / 2);
    EXPECT_GT(stale(), 0.1) << used;
  }
}

}  // namespace
}  // namespace tonarix
