#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "config/settings.h"
#include "engine/material/frequency_box.h"
#include "engine/records/records.h"
#include "music/key.h"

namespace tonarix {

/// A training as it was left: the box by rows, the statistics of each row, and what the counters
/// showed.
struct SavedTraining {
  struct Row {
    BoxRow box;
    std::array<float, 3> statistics{};  ///< columns 0 to 2
    friend bool operator==(const Row&, const Row&) = default;
  };
  std::vector<Row> rows;
  std::int16_t zaehler = 0;      ///< wrong answers so far
  std::int16_t whlgzaehler = 0;  ///< repeats so far
  friend bool operator==(const SavedTraining&, const SavedTraining&) = default;
};

/// Why a stored record is no training to go on with.
enum class SavedTrainingFault : std::uint8_t {
  not_valid,     ///< does not begin with "true"
  wrong_length,  ///< cut off, or from a box of another size
  not_a_number,  ///< text, an empty place, or a number that a 16-bit field or a count can't hold
  foreign_row,   ///< an interval or a statistic row that this exercise doesn't have
  impossible,    ///< statistics or weights that no running training has
};

/// The training as it stands, with its statistics.
SavedTraining training_state(const FrequencyBox& box, const Settings& settings,
                             const Auswertung& statistics, std::int16_t zaehler,
                             std::int16_t whlgzaehler);

/// The record to store, for n rows 6n + 3 texts: "true", the values, the weights, for each row its
/// statistic row and three columns, then both counters. Numbers have a point in every language.
std::vector<std::string> to_record(const SavedTraining& training, const Settings& settings);

/// Reads a stored record back against the exercise that wants to go on with it. Changes nothing.
std::variant<SavedTraining, SavedTrainingFault> from_record(const std::vector<std::string>& record,
                                                            const Settings& settings,
                                                            const Key& key);

/// Goes on with a training at the start of a window, after `BoxAufbau`: each row gets its weight,
/// its statistics and its occurrence.
void resume(const SavedTraining& training, const Settings& settings, FrequencyBox& box,
            Auswertung& statistics);

}  // namespace tonarix
