#pragma once

#include <optional>

namespace tonarix {

/// The work of one sitting at an exercise, told on the result sheet beside the percentages: these
/// say how good the answers were, but not how many there were.
struct WorkDone {
  int tasks = 0;                    ///< rows answered to their end
  std::optional<int> tasks_in_all;  ///< the length of a test; nothing elsewhere
  int seconds = 0;                  ///< from the begin of the first task to the end of the work
  int right = 0;                    ///< answers
  int wrong = 0;                    ///< answers
  friend bool operator==(const WorkDone&, const WorkDone&) = default;
};

}  // namespace tonarix
