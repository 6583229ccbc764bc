#pragma once

#include <coroutine>
#include <functional>
#include <memory>
#include <utility>

#include "base/delay.h"

namespace tonarix {

/// Something that ends once, whenever it likes. `co_await` goes on when it has ended, at once if it
/// has already. The signal may be given after the routine is gone.
class Completion {
 public:
  explicit Completion(Waits& waits) : state_(std::make_shared<State>(State{waits, false, {}})) {}
  Completion(const Completion&) = delete;
  Completion& operator=(const Completion&) = delete;
  ~Completion() { state_->routine = {}; }

  std::function<void()> signal() const {
    return [state = state_] {
      if (std::exchange(state->ended, true) || !state->routine) return;
      Waits& waits = state->waits;  // this completion is gone once the routine has gone on
      std::exchange(state->routine, {}).resume();
      waits.resumed();
    };
  }

  bool await_ready() const noexcept { return state_->ended; }
  void await_suspend(std::coroutine_handle<> routine) noexcept { state_->routine = routine; }
  void await_resume() const noexcept {}

 private:
  struct State {
    Waits& waits;
    bool ended;
    std::coroutine_handle<> routine;
  };
  std::shared_ptr<State> state_;
};

}  // namespace tonarix
