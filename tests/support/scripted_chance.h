#pragma once

#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

#include "base/chance.h"

namespace tonarix {

/// Chance that gives the listed values in their order and throws std::out_of_range once they are
/// used up.
class ScriptedChance final : public Chance {
 public:
  ScriptedChance() = default;
  explicit ScriptedChance(std::vector<double> values) : values_(std::move(values)) {}

  double Rnd() override {
    if (used_ == values_.size()) throw std::out_of_range("ScriptedChance: no value left");
    return values_[used_++];
  }

  void add(double value) { values_.push_back(value); }
  /// Adds a value that makes `draw(chance, n)` give `index`.
  void add_draw(int index, int n) { values_.push_back((index + 0.5) / n); }
  /// Adds a value that makes `draw_sign(chance)` give `sign`.
  void add_sign(int sign) { add_draw(sign < 0 ? 0 : 1, 2); }

  std::size_t used() const { return used_; }
  std::size_t left() const { return values_.size() - used_; }

 private:
  std::vector<double> values_;
  std::size_t used_ = 0;
};

}  // namespace tonarix
