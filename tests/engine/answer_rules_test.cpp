#include "engine/answer_rules.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "settings/offered_intervals.h"

namespace tonarix {
namespace {

TEST(ZeitStrafe, IsFreeUpToTheLimitAndThenOneAndATenthPerTwoTenths) {
  struct Row {
    float tenths;
    std::int16_t limit;
    float expected;
  };
  const Row rows[] = {{0, 20, 0},     {20, 20, 0},     {21, 20, 1.0F}, {22, 20, 1.1F},
                      {23, 20, 1.1F}, {30, 20, 1.5F},  {25, 25, 0},    {26, 25, 1.0F},
                      {45, 25, 2.0F}, {600, 20, 30.0F}};
  for (const Row& row : rows) {
    EXPECT_FLOAT_EQ(ZeitStrafe(row.tenths, row.limit), row.expected) << row.tenths;
  }
  EXPECT_EQ(answer_tenths(2.049), 20);
  EXPECT_EQ(answer_tenths(2.05), 21) << "half up";
}

TEST(WrongAnswer, HasTheDirectionAskedAndBesideAChosenDegreeIsAMemberOfTheBox) {
  for (std::int16_t tongeschl = 0; tongeschl <= 2; ++tongeschl) {
    Key key;
    build_scale(key, tongeschl, Naming::from_tone_before);
    EXPECT_EQ(signed_wrong_answer(key, Naming::from_tone_before, 0, 0, 5, -8), -5)
        << "no degree: the direction asked";
    EXPECT_EQ(signed_wrong_answer(key, Naming::from_keynote, 1, 2, 4, 3), 4);
    for (std::int16_t degree = 0; degree < key.anz_stufen; ++degree) {
      Settings settings;
      settings.tongeschl = tongeschl;
      settings.abfr_iv = Naming::from_tone_before;
      settings.ton_st_wahl = 1;
      settings.stufe_wahl = degree;
      const IntervalList offered = offered_intervals(settings, key);
      const auto members = offered.values();
      const auto contains = [&](int value) {
        return std::find(members.begin(), members.end(), value) != members.end();
      };
      for (const std::int16_t asked : members) {
        for (const std::int16_t member : members) {
          const auto code = static_cast<std::int16_t>(std::abs(member));
          const std::int16_t stored =
              signed_wrong_answer(key, Naming::from_tone_before, 1, degree, code, asked);
          EXPECT_EQ(std::abs(stored), code);
          EXPECT_TRUE(contains(stored)) << tongeschl << ' ' << degree << ' ' << stored;
          const int in_direction = asked > 0 ? code : -code;
          if (contains(in_direction)) {
            EXPECT_EQ(stored, in_direction);
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace tonarix
