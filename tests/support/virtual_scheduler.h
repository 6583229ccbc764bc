#pragma once

#include "base/scheduler.h"

namespace tonarix {

/// Virtual time: due work runs in order, only when the test says so.
class VirtualScheduler final : public Scheduler {
 public:
  using Scheduler::post;
  Time now() const override { return now_; }
  TaskId post(Time delay, Task task) override { return queue_.add(now_ + delay, std::move(task)); }
  void cancel(TaskId id) override { queue_.remove(id); }

  /// Runs everything that falls due within the span, then stands at its end.
  void advance_ms(double ms) {
    const Time end = now_ + milliseconds(ms);
    while (!queue_.empty() && queue_.next_due() <= end) {
      now_ = std::max(now_, queue_.next_due());
      queue_.take()();
    }
    now_ = end;
  }
  /// Runs what is due now, without letting time pass.
  void settle() { advance_ms(0); }

  bool idle() const { return queue_.empty(); }

 private:
  TaskQueue queue_;
  Time now_{1'000'000};
};

}  // namespace tonarix
