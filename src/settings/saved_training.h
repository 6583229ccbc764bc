#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "music/key.h"
#include "settings/settings.h"

namespace tonarix {

/// Element 0 of a training state that can be gone on with.
inline constexpr char kValidState[] = "true";

/// True for the record of a state that says it can be gone on with.
inline bool says_valid(const std::vector<std::string>& state) {
  return !state.empty() && state.front() == kValidState;
}

/// True for the record of a state, where there is one, that can't be gone on with.
inline bool is_used_up(const std::vector<std::string>& state) {
  return !state.empty() && !says_valid(state);
}

/// One row of the frequency box.
struct BoxRow {
  std::int16_t value = 0;   ///< signed interval value
  std::int16_t weight = 0;  ///< how often it is asked; may fall below zero
  friend constexpr bool operator==(const BoxRow&, const BoxRow&) = default;
};

/// Weight that each row of a box of this many rows starts with.
constexpr std::int16_t start_gewicht_of(int box_zeilen) {
  return static_cast<std::int16_t>(box_zeilen * 4 < 30 ? 30 / box_zeilen : 4);
}
/// Sum of the weights at which a training has become too hard.
constexpr int weight_ceiling(int box_zeilen) {
  return start_gewicht_of(box_zeilen) * box_zeilen * 2;
}

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

/// The record to store, for n rows 6n + 3 texts: "true", the values, the weights, for each row its
/// statistic row and three columns, then both counters. Numbers have a point in every language.
std::vector<std::string> to_record(const SavedTraining& training, const Settings& settings);

/// Reads a stored record back against the exercise that wants to go on with it. Changes nothing.
std::variant<SavedTraining, SavedTrainingFault> from_record(const std::vector<std::string>& record,
                                                            const Settings& settings,
                                                            const Key& key);

}  // namespace tonarix
