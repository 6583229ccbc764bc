#include "sound/tuning.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/runtime_error.h"
#include "support/scripted_chance.h"

namespace tonarix {
namespace {

constexpr double kCents = 3.125;  // of a bend step
constexpr std::int16_t kPure = 1;
constexpr std::int16_t kKirnberger = 2;

TEST(Tuning, PureFifthsGoFromTheAOfTheTableOnCInEveryKey) {
  // Each fifth is 1.95 cents wider than the equal one.
  const auto pure = [](int place) { return std::lround((place - 18) * 1.95 / kCents); };
  for (int place = 10; place <= 20; ++place) {
    EXPECT_EQ(rein_abw.at(static_cast<std::size_t>(place - 10)), pure(place));
    for (std::int16_t transpos = -10; transpos <= 14; ++transpos) {
      const Tone tone{60, static_cast<std::int16_t>(place + transpos)};
      // The last row is never reached: B (20) sounds by that of D flat (10).
      EXPECT_EQ(tuning_deviation(tone, kPure, transpos), pure(place == 20 ? 10 : place)) << place;
    }
  }
  EXPECT_THROW(tuning_deviation({60, 3}, kPure, 5), RuntimeError) << "below the table";
  EXPECT_EQ(tuning_deviation({60, 3}, 0, 5), 0) << "equal tuning asks for no place";
}

TEST(Tuning, KirnbergerGoesByPitchClassWhateverTheNameAndKey) {
  // His first tuning, from C: fifths and thirds are pure but for the fifth from D to A.
  const double ratios[] = {1.0,       256.0 / 243, 9.0 / 8,    32.0 / 27, 5.0 / 4,  4.0 / 3,
                           45.0 / 32, 3.0 / 2,     128.0 / 81, 5.0 / 3,   16.0 / 9, 15.0 / 8};
  for (std::int16_t note = 0; note < 128; ++note) {
    const int tone = note % 12;
    const double above_a = 1200 * std::log2(ratios[tone] / ratios[9]) - 100 * (tone - 9);
    EXPECT_EQ(tuning_deviation({note, 15}, kKirnberger, 3), std::lround(above_a / kCents)) << tone;
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
