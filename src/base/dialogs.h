#pragma once

#include <coroutine>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "base/delay.h"

namespace tonarix {

enum class MessageStyle { plain, warning, yes_no };
enum class Reply { ok, yes, no };

struct Message {
  std::string title;
  std::string text;  ///< lines parted by line feeds
  MessageStyle style = MessageStyle::plain;
  std::string yes_caption;  ///< own words for the two buttons of a question; empty: the usual ones
  std::string no_caption;
  Reply usual = Reply::yes;  ///< the answer of a question that Return gives
};

/// A warning under the program's name.
inline Message warning(std::string text) {
  return {"Tonarix 2000", std::move(text), MessageStyle::warning, {}, {}};
}

/// Message boxes. They never block: the answer comes to `done` once the user has given it.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual void show(const Message& message, std::function<void(Reply)> done) = 0;
};

/// `const Reply reply = co_await ask(waits, dialogs, message);` The routine may be destroyed while
/// the box stands open; the answer is then forgotten. Name the message before the wait: g++ 12
/// releases an aggregate built inside a co_await expression twice.
class ask {
 public:
  ask(Waits& waits, Dialogs& dialogs, const Message& message)
      : waits_(waits), dialogs_(dialogs), message_(message) {}
  ask(const ask&) = delete;
  ask& operator=(const ask&) = delete;

  bool await_ready() const noexcept { return false; }
  void await_suspend(std::coroutine_handle<> routine) {
    dialogs_.show(message_, [this, routine, alive = std::weak_ptr<bool>(alive_)](Reply reply) {
      if (alive.expired()) return;
      reply_ = reply;
      Waits& waits = waits_;  // this awaitable is gone once the routine goes on
      routine.resume();
      waits.resumed();
    });
  }
  Reply await_resume() const noexcept { return reply_; }

 private:
  Waits& waits_;
  Dialogs& dialogs_;
  Message message_;
  Reply reply_ = Reply::ok;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tonarix
