#include "exercises/build/forming_task.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "settings/settings.h"

namespace tonarix {
namespace {

/// Bend steps from D flat to E sharp by their place on the line of fifths, and by pitch class from
/// C.
constexpr int kPure[] = {-5, -4, -4, -3, -2, -2, -1, -1, 0, 1, 1};
constexpr int kKirnberger[] = {5, 2, 6, 3, 1, 4, 2, 6, 3, 0, 4, 1};

TaskRow row_of(int chr, int qz) {
  TaskRow row;
  for (int i = 0; i < 3; ++i) {
    row.inv_ton[static_cast<std::size_t>(i)] = {to_int16(chr + i), to_int16(qz + i)};
  }
  return row;
}

TEST(FormingTask, TheThirdToneIsDetunedTowardsTheEqualPitch) {
  SeededChance chance(5);
  Settings settings;
  for (int number = 0; number < 6000; ++number) {
    settings.stimm_g = to_int16(number % 3);
    settings.frequenz = to_int16(number / 3 % 2);
    const int chr = 48 + number % 24, qz = number % 9;
    const TaskTuning tuning = tune_forming(settings, row_of(chr, qz), chance);
    for (int i = 0; i < 3; ++i) {
      const int told = settings.stimm_g == 1   ? kPure[qz + i]
                       : settings.stimm_g == 2 ? kKirnberger[(chr + i) % 12]
                                               : 0;
      EXPECT_EQ(tuning.ton_abw[static_cast<std::size_t>(i)], told);
    }
    EXPECT_LE(std::abs(tuning.freq_abw), settings.frequenz * 16);
    EXPECT_LE(tuning.freq_abw * tuning.ton_abw[kFormedTone], 0);
    EXPECT_EQ(target_of(tuning), 64 + tuning.freq_abw + tuning.ton_abw[kFormedTone]);
  }
}

TEST(FormingTask, ThePureTuningHasElevenRowsAndFailsBesideThem) {
  SeededChance chance(5);
  Settings settings;
  settings.stimm_g = 1;
  for (int qz = -2; qz < 14; ++qz) {
    const bool fits = qz >= 0 && qz + 2 <= 10;
    int failed = 0;
    try {
      tune_forming(settings, row_of(60, qz), chance);
    } catch (const RuntimeError& error) {
      failed = error.number();
    }
    EXPECT_EQ(failed, fits ? 0 : 9) << qz;
  }
}

TEST(FormingTask, TheSliderStartsInItsMiddleAndBesideThePitch) {
  SeededChance chance(5);
  for (std::int16_t genau = 0; genau < 5; ++genau) {
    std::set<int> distances, sides;
    const int nearest = 9 - 2 * genau;
    for (int number = 0; number < 8000; ++number) {
      TaskTuning tuning;
      tuning.freq_abw = to_int16(number % 33 - 16);
      tuning.ton_abw[kFormedTone] = to_int16(number / 33 % 7);
      const int deviation = tuning.freq_abw + tuning.ton_abw[kFormedTone];
      const int target = target_of(tuning);
      const SliderRange range = draw_slider(tuning, genau, chance);
      const int start = range.start - target;
      distances.insert(std::abs(start));
      if (deviation == 0) sides.insert(Sgn(start));
      EXPECT_TRUE(deviation == 0 || Sgn(start) == -Sgn(deviation));
      EXPECT_NEAR(range.start - range.low, range.high - range.start, 1);
      EXPECT_TRUE(range.low == 1 || range.high == 127);
      EXPECT_TRUE(range.low >= 1 && range.high <= 127);
      EXPECT_TRUE(range.low <= target && target <= range.high);
    }
    std::set<int> told;
    for (int distance = nearest; distance <= 30; ++distance) told.insert(distance);
    EXPECT_EQ(distances, told);
    EXPECT_EQ(sides.size(), 2U);
  }
}

}  // namespace
}  // namespace tonarix
