#include "base/scheduler.h"

#include <cmath>

namespace tonarix {

Scheduler::Time milliseconds(double ms) {
  return Scheduler::Time(ms > 0 ? std::llround(ms * 1000.0) : 0);
}

double seconds(Scheduler::Time time) {
  return static_cast<double>(time.count()) / 1e6;
}

Scheduler::TaskId TaskQueue::add(Scheduler::Time due, Scheduler::Task task) {
  const Scheduler::TaskId id = ++last_id_;
  tasks_.emplace(std::pair{due, id}, std::move(task));
  due_by_id_.emplace(id, due);
  return id;
}

void TaskQueue::remove(Scheduler::TaskId id) {
  const auto found = due_by_id_.find(id);
  if (found == due_by_id_.end()) return;
  tasks_.erase({found->second, id});
  due_by_id_.erase(found);
}

Scheduler::Task TaskQueue::take() {
  auto first = tasks_.begin();
  Scheduler::Task task = std::move(first->second);
  due_by_id_.erase(first->first.second);
  tasks_.erase(first);
  return task;
}

void Timer::enable() {
  disable();
  pending_ = scheduler_.post(milliseconds(interval_ms_), [this] {
    pending_ = 0;
    handler_();
  });
}

void Timer::disable() {
  if (pending_ != 0) scheduler_.cancel(pending_);
  pending_ = 0;
}

}  // namespace tonarix
