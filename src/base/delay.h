#pragma once

#include <coroutine>
#include <functional>
#include <set>

#include "base/scheduler.h"

namespace tonarix {

/// The waits of one owner. `co_await waits.Delay(50)` resumes after that many milliseconds, or as
/// soon as the owner closes. `on_resumed` runs after each resumption, when the routine waits again
/// or has ended; a routine that only yields is in the midst of one step, and is not told.
class Waits {
 public:
  explicit Waits(Scheduler& scheduler, std::function<void()> on_resumed = {})
      : scheduler_(scheduler), on_resumed_(std::move(on_resumed)) {}
  Waits(const Waits&) = delete;
  Waits& operator=(const Waits&) = delete;

  class Awaitable {
   public:
    Awaitable(Waits& waits, Scheduler::Time span, bool cut_short, bool yields = false)
        : waits_(waits), span_(span), cut_short_(cut_short), yields_(yields) {}
    Awaitable(const Awaitable&) = delete;
    Awaitable& operator=(const Awaitable&) = delete;
    ~Awaitable();
    bool await_ready() const noexcept { return cut_short_ && waits_.closed_; }
    void await_suspend(std::coroutine_handle<> routine);
    void await_resume() const noexcept {}

   private:
    friend class Waits;
    void arm(Scheduler::Time span);
    Waits& waits_;
    Scheduler::Time span_;
    bool cut_short_;
    bool yields_;
    std::coroutine_handle<> routine_;
    Scheduler::TaskId pending_ = 0;
  };

  Awaitable Delay(double ms) { return {*this, milliseconds(ms), true}; }
  /// A wait that closing does not cut short, for what is done on the way out.
  Awaitable FullDelay(double ms) { return {*this, milliseconds(ms), false}; }
  /// Lets everything that is due run first. Cheap enough for the 131 steps of a fade, which come
  /// before each row of a timed exam: what the owner shows is not drawn anew between two of them.
  Awaitable Yield() { return {*this, Scheduler::Time::zero(), true, true}; }

  /// Ends all waits at once; later waits do not wait.
  void close();
  bool closed() const { return closed_; }

  /// To be called by whatever else resumes a routine of this owner.
  void resumed() {
    if (on_resumed_) on_resumed_();
  }

 private:
  Scheduler& scheduler_;
  std::function<void()> on_resumed_;
  std::set<Awaitable*> waiting_;
  bool yielded_ = false;
  bool closed_ = false;
};

}  // namespace tonarix
