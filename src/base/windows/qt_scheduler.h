#pragma once

#include <QTimer>
#include <optional>

#include "base/scheduler.h"

namespace tonarix {

/// The clock of the running program: steady time, and one timer of the event loop set to the
/// earliest task that waits. It belongs to the thread of the windows.
class QtScheduler final : public Scheduler {
 public:
  QtScheduler();

  using Scheduler::post;
  Time now() const override;
  TaskId post(Time delay, Task task) override;
  void cancel(TaskId id) override;

  /// The one member that other threads may call: `task` runs soon on the windows' thread, in the
  /// order of the calls. Stop such threads before the scheduler goes.
  void post_from_thread(Task task);

 private:
  void run_due();
  void arm();

  TaskQueue queue_;
  std::optional<Time> armed_for_;
  QTimer timer_;
};

}  // namespace tonarix
