#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace tonarix {

/// The one clock of the program. Everything that waits or asks for the time does it here.
class Scheduler {
 public:
  using Time = std::chrono::microseconds;
  using Task = std::function<void()>;
  using TaskId = std::uint64_t;

  virtual ~Scheduler() = default;

  /// Steady time since an arbitrary start.
  virtual Time now() const = 0;

  /// Runs `task` once, `delay` from now; tasks due at the same moment run in the order they were
  /// posted.
  virtual TaskId post(Time delay, Task task) = 0;

  /// Forgets a task that has not run yet; unknown ids are passed over.
  virtual void cancel(TaskId id) = 0;

  TaskId post(Task task) { return post(Time::zero(), std::move(task)); }
};

/// Converts milliseconds, fractions included, to scheduler time; values below 0 count as 0.
Scheduler::Time milliseconds(double ms);

/// Seconds of steady time as a real number, the unit of the answer clock.
double seconds(Scheduler::Time time);

/// Waiting tasks ordered by due time, then by the order of posting: the common core of the
/// schedulers.
class TaskQueue {
 public:
  Scheduler::TaskId add(Scheduler::Time due, Scheduler::Task task);
  void remove(Scheduler::TaskId id);
  bool empty() const { return tasks_.empty(); }
  /// Due time of the earliest task; the queue must not be empty.
  Scheduler::Time next_due() const { return tasks_.begin()->first.first; }
  /// Takes the earliest task out.
  Scheduler::Task take();

 private:
  std::map<std::pair<Scheduler::Time, Scheduler::TaskId>, Scheduler::Task> tasks_;
  std::map<Scheduler::TaskId, Scheduler::Time> due_by_id_;
  Scheduler::TaskId last_id_ = 0;
};

/// A one-shot timer with an interval. Firing disables it before its handler runs.
class Timer {
 public:
  Timer(Scheduler& scheduler, Scheduler::Task handler)
      : scheduler_(scheduler), handler_(std::move(handler)) {}
  ~Timer() { disable(); }
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  void set_interval(double ms) { interval_ms_ = ms; }
  double interval() const { return interval_ms_; }  ///< milliseconds
  bool enabled() const { return pending_ != 0; }
  /// Starts the interval anew.
  void enable();
  void disable();

 private:
  Scheduler& scheduler_;
  Scheduler::Task handler_;
  double interval_ms_ = 0;
  Scheduler::TaskId pending_ = 0;
};

}  // namespace tonarix
