#include "statistics/records.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"

namespace tonarix {
namespace {

float cell(const Auswertung& statistics, std::int16_t row, float column) {
  float value = -1000.0F;
  statistics.read(StatisticRow(row), column, value);
  return value;
}

TEST(Auswertung, CountsAndSumsByRow) {
  Auswertung statistics;
  statistics.init_arr(3.0F, 42.0F);
  for (const float value : {-16.0F, 2.5F}) {
    statistics.Increment(StatisticRow(42), 0);
    statistics.Add(StatisticRow(42), value);
  }
  statistics.Save(StatisticRow(0), 3, 7.0F);
  EXPECT_EQ(cell(statistics, 42, 0.0F), 2.0F);
  EXPECT_EQ(cell(statistics, 42, 1.0F), -13.5F);
  EXPECT_EQ(cell(statistics, 0, 2.5F), 0.0F) << "half to even: column 2";
  EXPECT_EQ(cell(statistics, 0, 2.6F), 7.0F);
  EXPECT_THROW(cell(statistics, 43, 0.0F), RuntimeError);
  EXPECT_THROW(cell(statistics, 0, 4.0F), RuntimeError);
  EXPECT_THROW(statistics.Increment(StatisticRow(-1), 0), RuntimeError);
}

TEST(Auswertung, BestValueMovesToTheSecondColumn) {
  Auswertung statistics;
  statistics.init_arr(3.0F, 1.0F);
  // value given, then columns 0 and 1 afterwards; nothing above zero enters
  const float steps[][3] = {{2, 0, 0}, {-8, 0, -8}, {-4, -4, -8}, {-16, -8, -16}, {-2, -8, -16}};
  for (const auto& step : steps) {
    statistics.SaveBest(StatisticRow(1), step[0]);
    EXPECT_EQ(cell(statistics, 1, 0.0F), step[1]);
    EXPECT_EQ(cell(statistics, 1, 1.0F), step[2]);
  }
}

TEST(Ergebnis, KeepsTheLargestFromIndexOne) {
  Ergebnis best;
  best.init_arr(3);
  for (const std::int16_t given : {5, 4}) best.SaveBest(3, given);
  std::int16_t value = 0;
  best.read(3, value);
  EXPECT_EQ(value, 5);
  EXPECT_THROW(best.read(0, value), RuntimeError);
  EXPECT_THROW(best.SaveBest(4, 1), RuntimeError);
}

}  // namespace
}  // namespace tonarix
