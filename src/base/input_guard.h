#pragma once

#include "base/scheduler.h"

namespace tonarix {

/// Keeps presses apart that were not meant: the second of a double click, and one that hits what
/// has only just come up under the pointer.
class InputGuard {
 public:
  static constexpr double kSamePress = 250;   ///< ms between two presses of one button
  static constexpr double kNewlyShown = 300;  ///< ms in which a new window takes nothing

  /// The window comes up: nothing counts until it has been seen for a while. However long a busy
  /// machine takes to draw it, the time begins only then.
  void shown() { state_ = State::unseen; }
  /// It has been drawn.
  void seen(Scheduler::Time now);
  /// What stood before the window has gone: a press meant for that may still come.
  void uncovered(Scheduler::Time now);

  /// Whether input counts at all by now.
  bool settled(Scheduler::Time now);
  /// Whether a press of the button (any address that stands for it) counts. Every press begins the
  /// time between two presses anew, so hammering counts once.
  bool admits(const void* button, Scheduler::Time now);

 private:
  enum class State { unseen, new_window, settled };
  State state_ = State::settled;
  Scheduler::Time seen_at_{};
  const void* last_ = nullptr;
  Scheduler::Time last_at_{};
};

}  // namespace tonarix
