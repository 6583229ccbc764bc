#include "exercises/build/forming_task.h"

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "settings/accuracy.h"
#include "sound/tuning.h"

namespace tonarix {

namespace {

constexpr int kFurthestStart = 30;  // bend steps
constexpr int kDetunings = 17;      // 0 to 16 bend steps
constexpr std::int16_t kHighest = 127;

// The place on the line of fifths itself is the row of the table, not the place within the key.
std::int16_t deviation_of(const Tone& tone, std::int16_t stimm_g) {
  if (stimm_g != 1) return tuning_deviation(tone, stimm_g, 0);
  if (tone.qz < 0 || tone.qz >= static_cast<int>(rein_abw.size())) {
    throw RuntimeError::index_out_of_range("rein_abw");
  }
  return rein_abw[static_cast<std::size_t>(tone.qz)];
}

std::int16_t deviation_of_target(const TaskTuning& tuning) {
  return to_int16(tuning.freq_abw + tuning.ton_abw[kFormedTone]);
}

// Away from where the tone lies already; by chance where it lies at the middle.
int opposite_sign(std::int16_t deviation, Chance& chance) {
  return deviation == 0 ? draw_sign(chance) : -Sgn(deviation);
}

}  // namespace

TaskTuning tune_forming(const Settings& settings, const TaskRow& row, Chance& chance) {
  TaskTuning tuning;
  for (std::size_t i = 0; i <= kFormedTone; ++i) {
    tuning.ton_abw[i] = deviation_of(row.inv_ton[i], settings.stimm_g);
  }
  if (settings.frequenz == 1) {
    const int sign = opposite_sign(tuning.ton_abw[kFormedTone], chance);
    tuning.freq_abw = to_int16(draw(chance, kDetunings) * sign);
  }
  return tuning;
}

std::int16_t target_of(const TaskTuning& tuning) {
  return to_int16(kBendCentre + deviation_of_target(tuning));
}

SliderRange draw_slider(const TaskTuning& tuning, std::int16_t genau, Chance& chance) {
  const std::int16_t deviation = deviation_of_target(tuning);
  const int nearest = genauGrenze.at(static_cast<std::size_t>(genau));
  const int pbRicht = opposite_sign(deviation, chance);
  const int pbStart = (draw(chance, kFurthestStart + 1 - nearest) + nearest) * pbRicht;
  const int d = pbStart + deviation;
  SliderRange range;
  range.low = to_int16(d > 0 ? 2 * d : 1);
  range.high = to_int16(d > 0 ? kHighest : 2 * d + kHighest);
  range.start = to_int16(kBendCentre + d);
  return range;
}

}  // namespace tonarix
