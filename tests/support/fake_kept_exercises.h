#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "protocol/kept_exercise.h"

namespace tonarix {

/// Keeps exercises in memory. `crash` is the end of the program that they belong to.
struct FakeKeptExercises final : KeptExercises {
  bool keep(const KeptExercise& exercise, const std::string& name) override {
    if (refuses) return false;
    for (Left& each : left) {
      if (each.name == name) each.exercise = exercise;
    }
    if (name.empty()) own = exercise;
    return true;
  }
  void use_up(const std::string& name) override {
    if (name.empty()) own.reset();
    std::erase_if(left, [&](const Left& each) { return each.name == name; });
  }
  void leave_behind() override {
    if (!own) return;
    left.insert(left.begin(), {"kept-" + std::to_string(++crashes), *own});
    own.reset();
  }
  std::vector<Left> left_behind() override { return left; }
  void crash() { leave_behind(); }

  using KeptExercises::damaged_;
  bool refuses = false;
  int crashes = 0;
  std::optional<KeptExercise> own;
  std::vector<Left> left;  ///< newest first
};

}  // namespace tonarix
