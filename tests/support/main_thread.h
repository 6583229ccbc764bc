#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace tonarix {

/// The test's thread as the main thread of real devices: takes work from their threads and runs it
/// when the test waits for it. Every wait ends after ten seconds at the latest.
class MainThread {
 public:
  /// What the devices post with; must not outlive this object.
  std::function<void(std::function<void()>)> poster() {
    return [this](std::function<void()> task) {
      const std::lock_guard lock(mutex_);
      tasks_.push_back(std::move(task));
      arrived_.notify_one();
    };
  }

  /// Waits until something is posted, without running it.
  bool wait_for_post() {
    std::unique_lock lock(mutex_);
    return arrived_.wait_for(lock, std::chrono::seconds(10), [this] { return !tasks_.empty(); });
  }
  void run_posted() {
    std::unique_lock lock(mutex_);
    const auto due = std::exchange(tasks_, {});
    lock.unlock();
    for (const auto& task : due) task();
  }
  /// Runs what is posted until the condition holds; false when it never does.
  bool run_until(const std::function<bool()>& condition) {
    while (!condition()) {
      if (!wait_for_post()) return false;
      run_posted();
    }
    return true;
  }

 private:
  std::mutex mutex_;
  std::condition_variable arrived_;
  std::vector<std::function<void()>> tasks_;
};

}  // namespace tonarix
