#pragma once

#include <cstdint>
#include <vector>

#include "statistics/statistic_row.h"

namespace tonarix {

/// Statistics per interval: 32-bit floats by row and column. Rows are statistic rows, 0 to 42.
/// Columns: 0 times answered (training) or best value (test); 1 sum of the values or second best; 2
/// times given as a wrong answer; 3 occurrences entered in the box or list. An index outside is
/// RuntimeError 9.
class Auswertung {
 public:
  void Clear();
  /// Resizes to rows 0 to y and columns 0 to x, both rounded.
  void init_arr(float x, float y);
  void Save(StatisticRow row, std::int16_t column, float value);
  /// The column is rounded.
  void read(StatisticRow row, float column, float& value) const;
  void Increment(StatisticRow row, std::int16_t column);
  /// Adds to column 1.
  void Add(StatisticRow row, float value);
  /// Keeps the two smallest values: a value below column 0 replaces it, then the smaller of both
  /// moves to column 1.
  void SaveBest(StatisticRow row, float value);
  /// True once SaveBest was called for the row, whatever the value: a test has asked for the
  /// interval, perhaps without a single right answer. `Clear` and `init_arr` forget it.
  bool asked(StatisticRow row) const;
  void store() const {}

 private:
  std::size_t cell(StatisticRow row, std::int64_t column) const;
  std::vector<bool> asked_;  ///< by row, as long as `rows_`
  std::int64_t rows_ = 0;
  std::int64_t columns_ = 0;
  std::vector<float> cells_;
};

/// Best values, indices 1 to n. An index outside is RuntimeError 9.
class Ergebnis {
 public:
  void init_arr(std::int16_t n);
  void SaveBest(std::int16_t index, std::int16_t value);
  void read(std::int16_t index, std::int16_t& value) const;
  void Clear();
  void store() const {}

 private:
  std::size_t cell(std::int16_t index) const;
  std::vector<std::int16_t> cells_;
};

}  // namespace tonarix
