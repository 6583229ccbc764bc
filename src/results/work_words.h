#pragma once

#include <string>

#include "base/texts.h"
#include "statistics/work_done.h"

namespace tonarix {

/// A number and what it counts: "3 von 38" and "Aufgaben".
struct CountWords {
  std::string number;
  std::string name;
  std::string both() const { return number + " " + name; }
};

/// The work of a sitting in the language in force.
struct WorkWords {
  CountWords tasks;
  CountWords right;
  CountWords wrong;
  std::string time;  ///< "in 4 min 12 s"

  /// "3 von 38 Aufgaben in 4 min 12 s · 10 richtig · 2 falsch" with " · " between its parts.
  std::string line(const std::string& between) const;
};

WorkWords work_words(const WorkDone& work, const Texts& texts);

}  // namespace tonarix
