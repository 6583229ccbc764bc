#include "base/windows/qt_scheduler.h"

#include <algorithm>

namespace tonarix {

QtScheduler::QtScheduler() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { run_due(); });
}

Scheduler::Time QtScheduler::now() const {
  return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

Scheduler::TaskId QtScheduler::post(Time delay, Task task) {
  const TaskId id = queue_.add(now() + std::max(delay, Time::zero()), std::move(task));
  arm();
  return id;
}

void QtScheduler::cancel(TaskId id) {
  queue_.remove(id);
  arm();
}

void QtScheduler::post_from_thread(Task task) {
  QMetaObject::invokeMethod(&timer_, std::move(task), Qt::QueuedConnection);
}

void QtScheduler::run_due() {
  // Tasks posted meanwhile wait for the next round, so that input is never starved.
  armed_for_.reset();
  const Time moment = now();
  while (!queue_.empty() && queue_.next_due() <= moment) queue_.take()();
  arm();
}

void QtScheduler::arm() {
  if (queue_.empty()) {
    armed_for_.reset();
    timer_.stop();
    return;
  }
  if (armed_for_ == queue_.next_due()) return;
  armed_for_ = queue_.next_due();
  const Time left = std::max(*armed_for_ - now(), Time::zero());
  timer_.start(std::chrono::ceil<std::chrono::milliseconds>(left));
}

}  // namespace tonarix
