#include <gtest/gtest.h>

#include <algorithm>
#include <map>
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
    if (settings.Uebungsmodus != 3 || settings.Tonart != 0 || settings.E_Oktav != 3) continue;
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
  StatisticRowSet all;
  all.fill(1);
  for (int i = 0; i < 3 * bed.box.matboxmax; ++i) {
    bed.box.begin_task();
    ASSERT_EQ(bed.box.draw_interval(all, 1), 0);
    ASSERT_TRUE(bed.box.take_from_list(bed.box.drawn()));
  }
}

// Only the one used interval leads on, and it comes last: once in 10^50 tries.
TEST(TestList, GivesUpOnAnAllButHopelessDraw) {
  MaterialBed bed(material_of(3, 1, 1), 9);
  bed.box.test_haeufgk[8] = 1;
  StatisticRowSet wanted{};
  wanted[8] = 1;
  for (int i = 0; i < 10; ++i) EXPECT_EQ(bed.box.draw_interval(wanted, 20), 20);
}

// The rule told word for word: up to `box_zeilen` draws of an open entry until one is preferred;
// all of it again until the interval leads on. Returns how many failed.
int draw_word_for_word(const FrequencyBox& box, const StatisticRowSet& wanted, int tries,
                       Chance& chance, std::int16_t& value) {
  const int uses =
      (box.aufg_gesamt - box.aufg_rest) / static_cast<int>(Round(box.aufg_gesamt / 2.0)) + 1;
  for (int failed = 0; failed < tries; ++failed) {
    for (int n = 0; n < box.box_zeilen; ++n) {
      do {
        value = box.matbox[static_cast<std::size_t>(draw(chance, box.matboxmax) + 1)];
      } while (value == 0);
      if (box.test_haeufgk[static_cast<std::size_t>(statistic_row(value, 1))] < uses) break;
    }
    if (wanted[static_cast<std::size_t>(statistic_row(value, 1))] != 0) return failed;
  }
  return tries;
}

TEST(TestList, DrawsWithTheChancesOfTheRule) {
  Settings settings = material_of(3, 1, 1);
  settings.invzahl = 4;
  constexpr int kDraws = 40000;
  constexpr int kTries = 20;
  for (const int used : {0, 20, 33, 38}) {
    MaterialBed bed(settings, 9);
    for (std::size_t place = 1; place <= static_cast<std::size_t>(used); ++place) {
      bed.box.begin_task();
      if (bed.box.matbox[place] != 0) bed.box.take_from_list(bed.box.matbox[place]);
    }
    StatisticRowSet wanted{};
    for (std::size_t row = 1; row < wanted.size(); row += 3) wanted[row] = 1;
    SeededChance chance(77);
    std::map<int, double> share;
    std::map<int, double> told;
    double failures = 0;
    double told_failures = 0;
    for (int i = 0; i < kDraws; ++i) {
      const int failed = bed.box.draw_interval(wanted, kTries);
      share[failed == kTries ? 0 : bed.box.drawn()] += 1.0 / kDraws;
      failures += 1.0 * failed / kDraws;
      std::int16_t value = 0;
      const int told_failed = draw_word_for_word(bed.box, wanted, kTries, chance, value);
      told[told_failed == kTries ? 0 : value] += 1.0 / kDraws;
      told_failures += 1.0 * told_failed / kDraws;
    }
    EXPECT_NEAR(failures, told_failures, 0.25) << used;
    for (const auto& [value, part] : told) EXPECT_NEAR(share[value], part, 0.015) << used << value;
    EXPECT_LE(share.size(), told.size() + 1);
  }
}

}  // namespace
}  // namespace tonarix
