#include "results/percentage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace tonarix {
namespace {

struct Example {
  std::int16_t level;
  RowStatistics row;
  const char* percent;  // "" for a field that stays empty
  std::optional<RowStatistics> falling = {};
};

// Worked by hand from the rule: training (c1 + p) / Int((c0 + f) x -16), test (c0 + c1 + p) / -32
// or -48 with wrong entries; a degree with both directions together -64 or -96.
const Example kExamples[] = {
    {2, {1, 0, 0}, "0.0"},                   // failed every time: -0 is shown without its sign
    {1, {0, 0, 0}, ""},                      // never came up
    {1, {0, 0, 1}, "37.5"},                  // given as a wrong answer only: -6 / -16
    {2, {3, -29.8F, 2}, "52.8"},             // -33.8 / -64
    {1, {1, -16, 3}, "56.3"},                // -18 / -32 = 56.25, half away from zero
    {1, {1, -16, 9}, "50.0"},                // p is used up
    {1, {1, -24, 0}, "150.0"},               // not clipped
    {1, {1, 0.5F, 0}, "-3.1"},               // 0.5 / -16 = -3.125
    {3, {-16, -16, 1, true}, "79.2"},        // -38 / -48
    {4, {-9.4F, -14.2F, 0, true}, "73.8"},   // 23.6 / 32 = 73.75
    {4, {0, 0, 0, true}, "0.0"},             // asked and failed every time
    {4, {0, 0, 1, false}, ""},               // only mistaken for another
    {0, {5, -50, 0, true}, ""},              // no level, no percentage
    {1, {2, -20, 1}, "48.4", {{1, -4, 0}}},  // p = 1 - 8: -31 / -64
    {1, {2, -20, 0}, "46.9", {{1, -4, 1}}},  // p = 2 - 8: -30 / -64
    {1, {0, 0, 0}, "", {{0, 0, 0}}},
    {2, {0, 0, 0}, "37.5", {{0, 0, 1}}},  // -6 / -16
    {3, {-16, -16, 0, true}, "50.0", {{0, 0, 0, false}}},
    {3, {-16, -16, 1, true}, "40.6", {{0, 0, 0, false}}},  // -39 / -96
    {3, {0, 0, 0, false}, "", {{0, 0, 0, false}}},
};

TEST(Fractions, WorkedExamples) {
  for (const auto& [number, row, percent, falling] : kExamples) {
    const Level level{number};
    const auto fraction =
        falling ? degree_fraction(row, *falling, level) : interval_fraction(row, level);
    EXPECT_EQ(fraction ? percent_number(*fraction) : "", percent)
        << "level " << number << ": " << row.c0 << ", " << row.c1 << ", " << row.c2;
  }
}

TEST(ScaleColour, EachStepBeginsAtItsExactFraction) {
  const Colour steps[] = {RGB(255, 128, 128), RGB(255, 192, 192), RGB(255, 255, 192),
                          RGB(192, 255, 192), RGB(128, 255, 128)};  // red, yellow, green
  for (int step = 1; step < 5; ++step) {
    EXPECT_EQ(scale_colour(step * 0.2 - 0.0001), steps[step - 1]) << "shown as the next one";
    EXPECT_EQ(scale_colour(step * 0.2), steps[step]);
  }
  EXPECT_EQ(scale_colour(9.6 / 48), scale::under_40) << "a trifle under a fifth in binary";
  EXPECT_EQ(scale_colour(-0.5), scale::under_20);
  EXPECT_EQ(scale_colour(1.5), scale::from_80);
}

TEST(Fractions, SumsOfTenthsKeptInThirtyTwoBitsFallOnTheRightSide) {
  float sum = 0;
  for (int answer = 0; answer < 32; ++answer) sum += -3.2F;
  const double fraction = interval_fraction({32, sum, 0}, Level::training).value();
  EXPECT_NE(static_cast<double>(sum), -102.4) << "the sum is not exact";
  EXPECT_EQ(scale_colour(fraction), scale::under_40);
  EXPECT_EQ(percent_number(fraction), "20.0");
}

TEST(Fractions, AnyStatisticsGiveANumberOrNothing) {
  using Limits = std::numeric_limits<float>;
  const float hard[] = {
      0, -1, 16384, -1e30F, Limits::max(), Limits::infinity(), Limits::quiet_NaN()};
  for (int i = 0; i < 7 * 7 * 7 * 5; ++i) {
    const RowStatistics row{hard[i % 7], hard[i / 7 % 7], hard[i / 49 % 7], true};
    const auto level = static_cast<Level>(i / 343);
    for (const auto& fraction :
         {interval_fraction(row, level), degree_fraction(row, {1, 1, 1, true}, level)}) {
      EXPECT_TRUE(!fraction || std::isfinite(*fraction));
      EXPECT_TRUE(!fraction || percent_number(*fraction) != "-0.0");
    }
  }
}

TEST(Fractions, ABetterAnswerNeverLowersThePercentage) {
  std::mt19937 generator(7);
  std::uniform_int_distribution<int> tenths(-160, 0), count(0, 12), levels(1, 4);
  for (int round = 0; round < 20000; ++round) {
    const auto level = static_cast<Level>(levels(generator));
    const float worse = static_cast<float>(tenths(generator)) / 10.0F;
    const auto answers = static_cast<float>(count(generator) + 1);
    const auto wrong = static_cast<float>(count(generator));
    const RowStatistics low{is_test(level) ? worse : answers, worse, wrong, true};
    const RowStatistics high{low.c0, worse - 1.0F, wrong, true};
    EXPECT_GT(*interval_fraction(high, level), *interval_fraction(low, level));
    EXPECT_GT(*degree_fraction(high, low, level), *degree_fraction(low, low, level));
  }
}

}  // namespace
}  // namespace tonarix
