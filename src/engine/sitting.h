#pragma once

#include <chrono>
#include <optional>

#include "base/scheduler.h"
#include "engine/task_answers.h"
#include "statistics/work_done.h"

namespace tonarix {

/// Follows the work of one sitting. Its time begins with the first task and ends with the last row
/// of a training or test or with its time, or else when the student leaves: reading the end takes
/// no working time.
class Sitting {
 public:
  explicit Sitting(const Scheduler& scheduler) : scheduler_(scheduler) {}

  /// Wrong answers that a resumed training brings along belong to its earlier sittings.
  void begin_with(int wrong) { wrong_before_ = wrong; }
  void begin_task() {
    if (!begun_) begun_ = scheduler_.now();
  }
  void finish_task() { ++tasks_; }
  void end() {
    if (!ended_) ended_ = scheduler_.now();
  }

  int tasks() const { return tasks_; }
  /// `tasks_in_all` is given in a test.
  WorkDone work(const TaskAnswers::Counts& counts, std::optional<int> tasks_in_all) const {
    const Scheduler::Time until = ended_.value_or(scheduler_.now());
    const auto time = std::chrono::floor<std::chrono::seconds>(until - begun_.value_or(until));
    return {tasks_, tasks_in_all, static_cast<int>(time.count()), counts.right,
            counts.wrong - wrong_before_};
  }

 private:
  const Scheduler& scheduler_;
  std::optional<Scheduler::Time> begun_;
  std::optional<Scheduler::Time> ended_;
  int tasks_ = 0;
  int wrong_before_ = 0;
};

}  // namespace tonarix
