#pragma once

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <functional>
#include <optional>

namespace tonarix {

/// Hears the signals that end a program (SIGTERM, SIGHUP, SIGINT) and calls back on the thread of
/// the windows. Each is heard once: a second one ends a program that does not react. A signal that
/// whoever started the program has switched off stays off. One for the process.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> asked_to_end);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  static constexpr std::array<int, 3> kSignals{SIGTERM, SIGHUP, SIGINT};
  std::array<int, 2> pipe_{-1, -1};
  std::array<struct sigaction, kSignals.size()> former_{};
  std::optional<QSocketNotifier> notifier_;
};

}  // namespace tonarix
