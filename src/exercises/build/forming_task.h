#pragma once

#include <cstdint>

#include "base/chance.h"
#include "engine/task_tuning.h"

namespace tonarix {

/// Number of the tone that is formed in its row, counted from 0.
inline constexpr std::size_t kFormedTone = 2;

/// How the tones of a row are tuned whose third is to be formed. The common detuning leads against
/// the temperament's deviation of the third tone, so that its pitch stays near the equal one. In
/// the pure tuning a tone outside Fbb to C has no place in the table: RuntimeError 9.
TaskTuning tune_forming(const Settings& settings, const TaskRow& row, Chance& chance);

/// Where the pitch slider may go and where it starts, in bend values from 1 to 127.
struct SliderRange {
  std::int16_t low = 1;
  std::int16_t high = 127;
  std::int16_t start = 64;  ///< the middle, and never the right pitch
};

/// The bend value of the right pitch.
std::int16_t target_of(const TaskTuning& tuning);

/// Draws where the slider starts: 9, 7, 5, 3 or 1 to 30 steps beside the right pitch by the
/// accuracy `genau` 0 to 4, on the side of the equal pitch where the tone is detuned.
SliderRange draw_slider(const TaskTuning& tuning, std::int16_t genau, Chance& chance);

}  // namespace tonarix
