#include "engine/material/training_state.h"

namespace tonarix {

SavedTraining training_state(const FrequencyBox& box, const Settings& settings,
                             const Auswertung& statistics, std::int16_t zaehler,
                             std::int16_t whlgzaehler) {
  SavedTraining training{{}, zaehler, whlgzaehler};
  for (int i = 1; i <= box.box_zeilen; ++i) {
    SavedTraining::Row row{box.mathaeufgk_box.at(static_cast<std::size_t>(i)), {}};
    const StatisticRow place = statistic_row(row.box.value, settings.abfr_iv);
    float column = 0;
    for (float& value : row.statistics) statistics.read(place, column++, value);
    training.rows.push_back(row);
  }
  return training;
}

void resume(const SavedTraining& training, const Settings& settings, FrequencyBox& box,
            Auswertung& statistics) {
  std::vector<BoxRow> rows;
  for (const SavedTraining::Row& row : training.rows) {
    rows.push_back(row.box);
    const StatisticRow place = statistic_row(row.box.value, settings.abfr_iv);
    std::int16_t column = 0;
    for (const float value : row.statistics) statistics.Save(place, column++, value);
    statistics.Save(place, 3, 1);
  }
  box.restore(rows);
}

}  // namespace tonarix
