#include "sound/tuning.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/scripted_chance.h"

namespace tonarix {
namespace {

constexpr std::int16_t kPure = 1;
constexpr std::int16_t kKirnberger = 2;

TEST(Tuning, PureDeviationsFollowTheDegreeOfTheKeyInEveryKey) {
  // From D flat (place 10 on the line of fifths) to B in the table on C.
  const int steps[] = {-5, -4, -4, -3, -2, -2, -1, -1, 0, 1, -5};
  for (std::int16_t transpos = -10; transpos <= 14; ++transpos) {
    for (int place = 10; place <= 20; ++place) {
      const Tone tone{60, static_cast<std::int16_t>(place + transpos)};
      EXPECT_EQ(tuning_deviation(tone, kPure, transpos), steps[place - 10]) << transpos;
    }
  }
  EXPECT_THROW(tuning_deviation({60, 3}, kPure, 5), RuntimeError) << "below the table";
  EXPECT_EQ(tuning_deviation({60, 3}, 0, 5), 0) << "equal tuning asks for no place";
}

TEST(Tuning, KirnbergerGoesByPitchClassWhateverTheNameAndKey) {
  const auto at = [](int note) {
    return tuning_deviation({static_cast<std::int16_t>(note), 15}, kKirnberger, 3);
  };
  // Major thirds on C, D and G are pure there: 13.7 cents or 4.4 steps narrower than equal ones.
  for (const int root : {0, 2, 7, 60, 62, 67, 108}) {
    EXPECT_NEAR(at(root + 4) - at(root), -4.4, 0.7) << root;
  }
}

TEST(Tuning, DetuningReachesSixteenStepsBothWaysAndOnlyWhenItVaries) {
  ScriptedChance chance;
  EXPECT_EQ(draw_freq_abw(0, chance), 0);
  for (const int sign : {-1, 1}) {
    for (const int steps : {0, 7, 16}) {
      chance.add_sign(sign);
      chance.add_draw(steps, 17);
      EXPECT_EQ(draw_freq_abw(1, chance), sign * steps);
    }
  }
}

}  // namespace
}  // namespace tonarix
