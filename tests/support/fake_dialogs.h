#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "base/dialogs.h"
#include "base/scheduler.h"

namespace tonarix {

/// Message boxes that log themselves. The script answers the boxes in their order; without a
/// scripted answer a plain box or a warning is closed at once and a question stays open until the
/// test answers it. Answers come as they do from a user: later, as a posted task.
class RecordingDialogs final : public Dialogs {
 public:
  explicit RecordingDialogs(Scheduler& scheduler) : scheduler_(scheduler) {}

  void show(const Message& message, std::function<void(Reply)> done) override {
    shown.push_back(message);
    open_.push_back(std::move(done));
    if (!script.empty()) {
      const Reply reply = script.front();
      script.pop_front();
      post_answer(reply);
    } else if (!hold && message.style != MessageStyle::yes_no) {
      post_answer(Reply::ok);
    }
  }

  /// Answers the newest box that is open, here and now.
  void answer(Reply reply) {
    const std::function<void(Reply)> done = std::move(open_.back());
    open_.pop_back();
    if (done) done(reply);
  }
  /// True while a box waits for its answer.
  bool open() const { return !open_.empty(); }

  std::vector<Message> shown;
  std::deque<Reply> script;
  bool hold = false;  ///< every box without a scripted answer stays open

 private:
  void post_answer(Reply reply) {
    std::function<void(Reply)> done = std::move(open_.back());
    open_.pop_back();
    scheduler_.post([done = std::move(done), reply] {
      if (done) done(reply);
    });
  }

  Scheduler& scheduler_;
  std::vector<std::function<void(Reply)>> open_;
};

}  // namespace tonarix
