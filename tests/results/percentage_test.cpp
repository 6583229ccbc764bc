#include "results/percentage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace tonarix {
namespace {

struct IntervalExample {
  std::int16_t level;
  RowStatistics row;
  const char* percent;  // "" for a field that stays empty
};

// Worked by hand from the rule: training (c1 + p) / Int((c0 + f) x -16), test (c0 + c1 + p) / -32
// or -48 with wrong entries.
constexpr IntervalExample kIntervals[] = {
    {1, {1, -16, 0}, "100.0"},
    {1, {2, -16, 0}, "50.0"},
    {2, {1, 0, 0}, "0.0"},        // failed every time: -0 is shown without its sign
    {1, {0, 0, 0}, ""},           // never came up
    {1, {0, 0, 1}, "37.5"},       // given as a wrong answer only: -6 / -16
    {2, {3, -29.8F, 2}, "52.8"},  // -33.8 / -64
    {1, {1, -16, 3}, "56.3"},     // -18 / -32 = 56.25, half away from zero
    {1, {1, -16, 4}, "50.0"},     // p is used up
    {1, {1, -16, 9}, "50.0"},     // and stays so
    {1, {1, -0.2F, 0}, "1.3"},    // 1.25
    {1, {1, -24, 0}, "150.0"},    // not clipped
    {1, {1, 0.5F, 0}, "-3.1"},    // 0.5 / -16 = -3.125
    {1, {1, 0.004F, 0}, "0.0"},   // -0.025
    {3, {-16, -16, 0, true}, "100.0"},
    {3, {-16, -16, 1, true}, "79.2"},       // -38 / -48
    {4, {-9.4F, -14.2F, 0, true}, "73.8"},  // 23.6 / 32 = 73.75
    {4, {0, 0, 0, true}, "0.0"},            // asked and failed every time
    {4, {0, 0, 0, false}, ""},              // never asked
    {4, {0, 0, 1, false}, ""},              // only mistaken for another
    {0, {5, -50, 0, true}, ""},             // no level, no percentage
};

TEST(IntervalFraction, WorkedExamples) {
  for (const auto& [level, row, percent] : kIntervals) {
    const auto fraction = interval_fraction(row, level);
    EXPECT_EQ(fraction ? percent_number(*fraction) : "", percent)
        << "level " << level << ": " << row.c0 << ", " << row.c1 << ", " << row.c2;
  }
}

struct DegreeExample {
  std::int16_t level;
  RowStatistics rising, falling;
  const char* percent;
};

constexpr DegreeExample kDegrees[] = {
    {1, {2, -20, 0}, {1, -4, 0}, "50.0"},
    {1, {2, -20, 1}, {1, -4, 0}, "48.4"},  // p = 1 - 8: -31 / -64
    {1, {2, -20, 0}, {1, -4, 1}, "46.9"},  // p = 2 - 8: -30 / -64
    {1, {2, -20, 2}, {1, -4, 3}, "37.5"},  // p = 8 - 8: -24 / -64
    {1, {0, 0, 0}, {0, 0, 0}, ""},
    {2, {0, 0, 0}, {0, 0, 1}, "37.5"},  // -6 / -16
    {2, {0, 0, 0}, {1, -16, 0}, "100.0"},
    {3, {-16, -16, 0, true}, {-16, -16, 0, true}, "100.0"},
    {3, {-16, -16, 0, true}, {0, 0, 0, false}, "50.0"},
    {3, {-16, -16, 1, true}, {0, 0, 0, false}, "40.6"},  // -39 / -96
    {3, {0, 0, 0, false}, {0, 0, 0, false}, ""},
    {0, {1, -16, 0}, {1, -16, 0}, ""},
};

TEST(DegreeFraction, WorkedExamples) {
  for (const auto& [level, rising, falling, percent] : kDegrees) {
    const auto fraction = degree_fraction(rising, falling, level);
    EXPECT_EQ(fraction ? percent_number(*fraction) : "", percent)
        << "level " << level << ": " << rising.c1 << ", " << falling.c1;
  }
}

TEST(ScaleColour, EachStepBeginsAtItsExactFraction) {
  EXPECT_EQ(scale_colour(-0.5), RGB(255, 128, 128));
  EXPECT_EQ(scale_colour(0.1999), RGB(255, 128, 128)) << "although it is shown as 20.0";
  EXPECT_EQ(scale_colour(9.6 / 48), RGB(255, 192, 192));
  EXPECT_EQ(scale_colour(0.4), RGB(255, 255, 192));
  EXPECT_EQ(scale_colour(3 * 0.2), RGB(192, 255, 192));
  EXPECT_EQ(scale_colour(0.7999), RGB(192, 255, 192));
  EXPECT_EQ(scale_colour(0.8), RGB(128, 255, 128));
  EXPECT_EQ(scale_colour(1.5), RGB(128, 255, 128));
}

TEST(IntervalFraction, SumsOfTenthsKeptInThirtyTwoBitsFallOnTheRightSide) {
  float sum = 0;
  for (int answer = 0; answer < 32; ++answer) sum += -3.2F;
  const auto fraction = interval_fraction({32, sum, 0}, 1);
  ASSERT_TRUE(fraction);
  EXPECT_NE(static_cast<double>(sum), -102.4) << "the sum is not exact";
  EXPECT_EQ(scale_colour(*fraction), scale::under_40);
  EXPECT_EQ(percent_number(*fraction), "20.0");
}

TEST(Fractions, AnyStatisticsGiveANumberOrNothing) {
  using Limits = std::numeric_limits<float>;
  const float hard[] = {0,
                        -0.0F,
                        1,
                        -1,
                        16384,
                        1e30F,
                        -1e30F,
                        Limits::max(),
                        Limits::infinity(),
                        Limits::quiet_NaN()};
  for (const float c0 : hard) {
    for (const float c1 : hard) {
      for (const float c2 : hard) {
        for (std::int16_t level = 0; level <= 4; ++level) {
          const RowStatistics row{c0, c1, c2, true};
          for (const auto& fraction :
               {interval_fraction(row, level), degree_fraction(row, {1, 1, 1, true}, level)}) {
            if (!fraction) continue;
            EXPECT_TRUE(std::isfinite(*fraction));
            EXPECT_NE(percent_number(*fraction), "-0.0");
          }
        }
      }
    }
  }
}

TEST(Fractions, ABetterAnswerNeverLowersThePercentage) {
  std::mt19937 generator(7);
  std::uniform_int_distribution<int> tenths(-160, 0), count(0, 12);
  for (int round = 0; round < 5000; ++round) {
    const float worse = static_cast<float>(tenths(generator)) / 10.0F;
    const float better = worse - 1.0F;
    const auto answers = static_cast<float>(count(generator) + 1);
    const auto wrong = static_cast<float>(count(generator));
    for (std::int16_t level = 1; level <= 4; ++level) {
      const RowStatistics low{level > 2 ? worse : answers, worse, wrong, true};
      RowStatistics high = low;
      high.c1 = better;
      EXPECT_GT(*interval_fraction(high, level), *interval_fraction(low, level));
      EXPECT_GT(*degree_fraction(high, low, level), *degree_fraction(low, low, level));
    }
  }
}

}  // namespace
}  // namespace tonarix
