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
    if (!done) done = [](Reply) {};
    if (script.empty() && (hold || message.style == MessageStyle::yes_no)) {
      open_.push_back(std::move(done));
      return;
    }
    const Reply reply = script.empty() ? Reply::ok : script.front();
    if (!script.empty()) script.pop_front();
    scheduler_.post([done = std::move(done), reply] { done(reply); });
  }

  /// Answers the newest box that is open, here and now.
  void answer(Reply reply) {
    const std::function<void(Reply)> done = std::move(open_.back());
    open_.pop_back();
    done(reply);
  }
  /// True while a box waits for its answer.
  bool open() const { return !open_.empty(); }

  std::vector<Message> shown;
  std::deque<Reply> script;
  bool hold = false;  ///< every box without a scripted answer stays open

 private:
  Scheduler& scheduler_;
  std::vector<std::function<void(Reply)>> open_;
};

}  // namespace tonarix
