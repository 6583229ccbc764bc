#pragma once

#include <array>
#include <cstdint>

#include "base/chance.h"
#include "music/key.h"
#include "settings/settings.h"

namespace tonarix {

/// How far the tones of a task lie from equal temperament, in bend steps.
struct TaskTuning {
  std::array<std::int16_t, 6> ton_abw{};  ///< by temperament, for each tone of the row
  std::int16_t freq_abw = 0;              ///< common to all
};

/// The tuning of a row that is played as a row: each tone by the temperament, and the common
/// detuning of the task drawn where the pitch is variable.
TaskTuning tune_row(const Settings& settings, const Key& key, const TaskRow& row, Chance& chance);

}  // namespace tonarix
