#pragma once

#include <cstdint>

#include "engine/material/frequency_box.h"
#include "settings/saved_training.h"
#include "settings/settings.h"
#include "statistics/records.h"

namespace tonarix {

/// The training as it stands, with its statistics.
SavedTraining training_state(const FrequencyBox& box, const Settings& settings,
                             const Auswertung& statistics, std::int16_t zaehler,
                             std::int16_t whlgzaehler);

/// Goes on with a training at the start of a window, after `BoxAufbau`: each row gets its weight,
/// its statistics and its occurrence.
void resume(const SavedTraining& training, const Settings& settings, FrequencyBox& box,
            Auswertung& statistics);

}  // namespace tonarix
