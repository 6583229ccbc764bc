#include "engine/task_tuning.h"

#include "sound/tuning.h"

namespace tonarix {

TaskTuning tune_row(const Settings& settings, const Key& key, const TaskRow& row, Chance& chance) {
  TaskTuning tuning;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(settings.invzahl) + 1; ++i) {
    tuning.ton_abw[i] = tuning_deviation(row.inv_ton[i], settings.stimm_g, key.qz_transpos);
  }
  tuning.freq_abw = draw_freq_abw(settings.frequenz, chance);
  return tuning;
}

}  // namespace tonarix
