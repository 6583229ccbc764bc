#include "engine/material/range_repair.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <vector>

namespace tonarix {
namespace {

constexpr Naming kDegree = Naming::from_keynote;
constexpr Naming kStep = Naming::from_tone_before;

struct Case {
  Naming naming;
  bool pruef_frei;
  std::int16_t okt_zusatz;
  std::vector<std::int16_t> chr, iv;     // as drawn, the last interval rising
  std::vector<std::int16_t> to_chr, to;  // repaired; none when it must be drawn again
};

// In C major from 48 to 72.
const Case kCases[] = {
    {kStep, false, 0, {60, 64, 67}, {8, 7}, {60, 64, 67}, {8, 7}},  // inside
    {kStep, false, 0, {60, 67, 60}, {2, -2}, {}, {}},               // as two before
    {kDegree, false, 0, {60, 67, 74}, {5, 2}, {60, 67, 62}, {5, -2}},
    {kDegree, false, 0, {60, 67, 79}, {5, 5}, {60, 67, 55}, {5, -5}},
    {kStep, false, 0, {60, 67, 74}, {2, 2}, {60, 67, 62}, {2, -3}},
    {kStep, false, 12, {60, 67, 86}, {2, 2}, {60, 67, 50}, {2, -3}},
    {kStep, false, 0, {60, 67, 79}, {2, 1}, {60, 67, 55}, {2, -1}},  // a prime
    {kStep, true, 0, {62, 69, 76}, {2, 2}, {50, 57, 64}, {2, 2}},    // the row shifts
    {kStep, true, 0, {60, 64, 71, 78}, {8, 2, 2}, {60, 64, 59, 66}, {8, -2, 2}},
    {kStep, true, 0, {60, 64, 76, 83}, {8, 1, 2}, {60, 64, 52, 59}, {8, -1, 2}},
    {kStep, true, 0, {60, 64, 76, 88}, {8, 1, 1}, {}, {}},  // two primes
    {kStep, true, 0, {60, 64, 67, 74}, {8, -2, 2}, {60, 64, 67, 62}, {8, -2, -3}},
    {kDegree, true, 0, {60, 67, 71, 76}, {5, 7, 3}, {60, 67, 71, 64}, {5, 7, -3}},
};

TEST(RangeRepair, ChangesTheMelodyAsWorkedOutByHand) {
  for (const Case& one : kCases) {
    SCOPED_TRACE(&one - kCases);
    Settings settings;
    settings.abfr_iv = one.naming;
    settings.tonraum_min = 48;
    settings.tonraum_max = 72;
    Key key;
    build_scale(key, 0, one.naming);
    TaskRow row;
    for (std::size_t i = 0; i < one.chr.size(); ++i) row.inv_ton[i] = {one.chr[i], 19};
    std::ranges::copy(one.iv, row.iv.begin());
    RowUnderWay built{row, 1, one.okt_zusatz, one.pruef_frei};
    const int last = static_cast<int>(one.iv.size());
    ASSERT_EQ(TonraumTest(built, last, settings, key), !one.to_chr.empty());
    EXPECT_TRUE(std::ranges::equal(one.to, std::span(row.iv).first(one.to.size())));
    for (std::size_t i = 0; i < one.to_chr.size(); ++i) {
      EXPECT_EQ(row.inv_ton[i].chr, one.to_chr[i]) << i;
    }
  }
}

}  // namespace
}  // namespace tonarix
