#include "base/arithmetic.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"

namespace tonarix {
namespace {

TEST(Arithmetic, TheRoundingsDiffer) {
  struct Row {
    double value, down, half_even;
  };
  const Row rows[] = {{2.5, 2, 2},   {3.5, 3, 4},  {-2.5, -3, -2},  {-3.5, -4, -4}, {0.5, 0, 0},
                      {-0.5, -1, 0}, {2.51, 2, 3}, {-2.51, -3, -3}, {1.49, 1, 1}};
  for (const Row& row : rows) {
    EXPECT_EQ(Int(row.value), row.down) << row.value;
    EXPECT_EQ(Round(row.value), row.half_even) << row.value;
    EXPECT_EQ(round_to_int16(row.value), row.half_even) << row.value;
  }
}

TEST(Arithmetic, SixteenBitsNeverWrap) {
  EXPECT_EQ(to_int16(32767), 32767);
  EXPECT_EQ(round_to_int16(-32768.4), -32768);
  for (const int value : {32768, -32769}) EXPECT_THROW(to_int16(value), RuntimeError);
  for (const double value : {32767.5, 0.0 / 0.0}) {
    EXPECT_THROW(round_to_int16(value), RuntimeError);
  }
  EXPECT_TRUE(is_odd(-3));
}

}  // namespace
}  // namespace tonarix
