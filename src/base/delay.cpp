#include "base/delay.h"

namespace tonarix {

Waits::Awaitable::~Awaitable() {
  if (pending_ != 0) waits_.scheduler_.cancel(pending_);
  waits_.waiting_.erase(this);
}

void Waits::Awaitable::await_suspend(std::coroutine_handle<> routine) {
  routine_ = routine;
  waits_.waiting_.insert(this);
  waits_.yielded_ = yields_;
  arm(span_);
}

void Waits::Awaitable::arm(Scheduler::Time span) {
  if (pending_ != 0) waits_.scheduler_.cancel(pending_);
  pending_ = waits_.scheduler_.post(span, [this] {
    pending_ = 0;
    Waits& waits = waits_;  // the awaitable is gone once the routine goes on
    waits.waiting_.erase(this);
    waits.yielded_ = false;
    routine_.resume();
    if (!waits.yielded_) waits.resumed();
  });
}

void Waits::close() {
  closed_ = true;
  for (Awaitable* waiting : waiting_) {
    if (waiting->cut_short_) waiting->arm(Scheduler::Time::zero());
  }
}

}  // namespace tonarix
