#pragma once

#include <deque>
#include <stdexcept>

#include "base/chance.h"

namespace tonarix {

/// Chance that gives the values added in their order and throws std::out_of_range once they are
/// used up.
class ScriptedChance final : public Chance {
 public:
  double Rnd() override {
    if (values_.empty()) throw std::out_of_range("ScriptedChance: no value left");
    const double value = values_.front();
    values_.pop_front();
    return value;
  }

  /// Adds a value that makes `draw(chance, n)` give `index`.
  void add_draw(int index, int n) { values_.push_back((index + 0.5) / n); }
  /// Adds a value that makes `draw_sign(chance)` give `sign`.
  void add_sign(int sign) { add_draw(sign < 0 ? 0 : 1, 2); }

  std::size_t left() const { return values_.size(); }

 private:
  std::deque<double> values_;
};

}  // namespace tonarix
