#include "statistics/records.h"

#include <algorithm>
#include <utility>

#include "base/arithmetic.h"
#include "base/runtime_error.h"

namespace tonarix {

std::size_t Auswertung::cell(StatisticRow statistic, std::int64_t column) const {
  const auto row = static_cast<std::int64_t>(statistic);
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
    throw RuntimeError::index_out_of_range("Auswertung");
  }
  return static_cast<std::size_t>(row * columns_ + column);
}

void Auswertung::Clear() {
  std::fill(cells_.begin(), cells_.end(), 0.0F);
  std::fill(asked_.begin(), asked_.end(), false);
}

void Auswertung::init_arr(float x, float y) {
  const std::int64_t columns = round_to_int16(x) + 1;
  const std::int64_t rows = round_to_int16(y) + 1;
  if (columns < 1 || rows < 1) throw RuntimeError::index_out_of_range("Auswertung");
  columns_ = columns;
  rows_ = rows;
  cells_.assign(static_cast<std::size_t>(rows_ * columns_), 0.0F);
  asked_.assign(static_cast<std::size_t>(rows_), false);
}

void Auswertung::Save(StatisticRow row, std::int16_t column, float value) {
  cells_[cell(row, column)] = value;
}

void Auswertung::read(StatisticRow row, float column, float& value) const {
  value = cells_[cell(row, round_to_int16(column))];
}

void Auswertung::Increment(StatisticRow row, std::int16_t column) {
  cells_[cell(row, column)] += 1.0F;
}

void Auswertung::Add(StatisticRow row, float value) {
  cells_[cell(row, 1)] += value;
}

void Auswertung::SaveBest(StatisticRow row, float value) {
  float& best = cells_[cell(row, 0)];
  float& second = cells_[cell(row, 1)];
  asked_[place_of(row)] = true;
  if (value < best) best = value;
  if (best < second) std::swap(best, second);
}

bool Auswertung::asked(StatisticRow row) const {
  cell(row, 0);
  return asked_[place_of(row)];
}

std::size_t Ergebnis::cell(std::int16_t index) const {
  if (index < 1 || static_cast<std::size_t>(index) > cells_.size()) {
    throw RuntimeError::index_out_of_range("ergebnis");
  }
  return static_cast<std::size_t>(index - 1);
}

void Ergebnis::init_arr(std::int16_t n) {
  if (n < 1) throw RuntimeError::index_out_of_range("ergebnis");
  cells_.assign(static_cast<std::size_t>(n), 0);
}

void Ergebnis::SaveBest(std::int16_t index, std::int16_t value) {
  std::int16_t& best = cells_[cell(index)];
  if (value > best) best = value;
}

void Ergebnis::read(std::int16_t index, std::int16_t& value) const {
  value = cells_[cell(index)];
}

void Ergebnis::Clear() {
  std::fill(cells_.begin(), cells_.end(), std::int16_t{0});
}

}  // namespace tonarix
