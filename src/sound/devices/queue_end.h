#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace tonarix {

/// Hands work to the main thread; callable from any thread.
using PostToMain = std::function<void(std::function<void()>)>;

/// Tells the main thread that a queue has run out. What was announced is forgotten when this object
/// goes, so it must go on the main thread.
class QueueEnd {
 public:
  QueueEnd(PostToMain post_to_main, std::function<void()> ran_out)
      : post_to_main_(std::move(post_to_main)),
        ran_out_(std::make_shared<std::function<void()>>(std::move(ran_out))) {}

  /// To be called once, from any thread.
  void announce() const {
    post_to_main_([forgotten = std::weak_ptr(ran_out_)] {
      if (const auto ran_out = forgotten.lock()) (*ran_out)();
    });
  }

 private:
  PostToMain post_to_main_;
  std::shared_ptr<std::function<void()>> ran_out_;
};

}  // namespace tonarix
