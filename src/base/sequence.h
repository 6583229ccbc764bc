#pragma once

#include <coroutine>
#include <exception>
#include <functional>
#include <list>
#include <memory>
#include <utility>

namespace tonarix {

/// A routine that waits. It begins when it is awaited by another sequence or run by its owner;
/// destroying it ends it wherever it stands, and with it every wait it has pending.
class [[nodiscard]] Sequence {
 public:
  struct promise_type;
  using Handle = std::coroutine_handle<promise_type>;

  struct FinalAwaiter {
    bool await_ready() const noexcept { return false; }
    std::coroutine_handle<> await_suspend(Handle finished) const noexcept;
    void await_resume() const noexcept {}
  };

  struct promise_type {
    Sequence get_return_object() { return Sequence(Handle::from_promise(*this)); }
    std::suspend_always initial_suspend() const noexcept { return {}; }
    FinalAwaiter final_suspend() const noexcept { return {}; }
    void return_void() const noexcept {}
    void unhandled_exception() { error = std::current_exception(); }

    std::coroutine_handle<> continuation;
    std::exception_ptr error;
  };

  Sequence(Sequence&& other) noexcept : handle_(std::exchange(other.handle_, {})) {}
  Sequence& operator=(Sequence&& other) noexcept;
  ~Sequence();

  bool done() const { return !handle_ || handle_.done(); }
  /// Runs to the first wait.
  void start() { handle_.resume(); }
  std::exception_ptr error() const { return handle_ ? handle_.promise().error : nullptr; }

  bool await_ready() const noexcept { return done(); }
  std::coroutine_handle<> await_suspend(std::coroutine_handle<> caller) noexcept {
    handle_.promise().continuation = caller;
    return handle_;
  }
  void await_resume() const {
    if (handle_.promise().error) std::rethrow_exception(handle_.promise().error);
  }

 private:
  explicit Sequence(Handle handle) : handle_(handle) {}
  Handle handle_;
};

inline std::coroutine_handle<> Sequence::FinalAwaiter::await_suspend(
    Handle finished) const noexcept {
  const auto continuation = finished.promise().continuation;
  return continuation ? continuation : std::noop_coroutine();
}

inline Sequence& Sequence::operator=(Sequence&& other) noexcept {
  if (this != &other) {
    if (handle_) handle_.destroy();
    handle_ = std::exchange(other.handle_, {});
  }
  return *this;
}

inline Sequence::~Sequence() {
  if (handle_) handle_.destroy();
}

}  // namespace tonarix
