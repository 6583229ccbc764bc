#include "base/input_guard.h"

namespace tonarix {

void InputGuard::seen(Scheduler::Time now) {
  if (state_ != State::unseen) return;
  state_ = State::new_window;
  seen_at_ = now;
}

void InputGuard::uncovered(Scheduler::Time now) {
  state_ = State::new_window;
  seen_at_ = now;
}

bool InputGuard::settled(Scheduler::Time now) {
  if (state_ == State::new_window && now - seen_at_ >= milliseconds(kNewlyShown)) {
    state_ = State::settled;
  }
  return state_ == State::settled;
}

bool InputGuard::admits(const void* button, Scheduler::Time now) {
  const bool again = button == last_ && now - last_at_ < milliseconds(kSamePress);
  last_ = button;
  last_at_ = now;
  return settled(now) && !again;
}

}  // namespace tonarix
