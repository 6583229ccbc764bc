#include "sound/tuning.h"

#include <gtest/gtest.h>

#include <map>

#include "base/runtime_error.h"
#include "support/scripted_chance.h"

namespace tonarix {
namespace {

constexpr std::int16_t kPure = 1;
constexpr std::int16_t kKirnberger = 2;

TEST(Tuning, PureDeviationsFollowTheDegreeOfTheKeyInEveryKey) {
  // By the place on the line of fifths in the table on C, from D flat (10) to B (20).
  const std::map<int, int> by_place{{10, -5}, {11, -4}, {12, -4}, {13, -3}, {14, -2}, {15, -2},
                                    {16, -1}, {17, -1}, {18, 0},  {19, 1},  {20, -5}};
  for (std::int16_t transpos = -10; transpos <= 14; ++transpos) {
    for (const auto& [place, steps] : by_place) {
      const Tone tone{60, static_cast<std::int16_t>(place + transpos)};
      EXPECT_EQ(tuning_deviation(tone, kPure, transpos), steps) << place << " in " << transpos;
    }
  }
}

TEST(Tuning, ATonePlacedBelowTheTableIsAnError) {
  EXPECT_THROW(tuning_deviation({60, 3}, kPure, 5), RuntimeError);
  EXPECT_EQ(tuning_deviation({60, 3}, 0, 5), 0) << "equal tuning asks for no place";
}

TEST(Tuning, KirnbergerGoesByPitchClassWhateverTheNameAndKey) {
  // Major thirds on C, D and G are pure there: 13.7 cents or 4.4 steps narrower than equal ones.
  for (const int root : {0, 2, 7}) {
    const auto at = [](int note) {
      return tuning_deviation({static_cast<std::int16_t>(note), 15}, kKirnberger, 3);
    };
    for (int octave = 0; octave <= 9; ++octave) {
      EXPECT_NEAR(at(12 * octave + root + 4) - at(12 * octave + root), -4.4, 0.7);
    }
  }
}

TEST(Tuning, DetuningReachesSixteenStepsBothWaysAndOnlyWhenItVaries) {
  for (const int sign : {-1, 1}) {
    for (int steps = 0; steps <= 16; ++steps) {
      ScriptedChance chance;
      chance.add_sign(sign);
      chance.add_draw(steps, 17);
      EXPECT_EQ(draw_freq_abw(1, chance), sign * steps);
      EXPECT_EQ(chance.left(), 0u);
    }
  }
  ScriptedChance untouched;
  EXPECT_EQ(draw_freq_abw(0, untouched), 0);
}

TEST(Tuning, BentTonesHaveChannelsOfTheirOwn) {
  EXPECT_EQ(tone_channel(5, 0, 0), 0);
  EXPECT_EQ(tone_channel(0, 0, 1), 2);
  EXPECT_EQ(tone_channel(5, 2, 0), 7);
}

}  // namespace
}  // namespace tonarix
