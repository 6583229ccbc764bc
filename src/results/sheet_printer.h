#pragma once

#include <functional>
#include <string>

#include "results/sheet_picture.h"

namespace tonarix {

struct PrintResult {
  enum class End { printed, cancelled, failed };
  End end = End::printed;
  std::string reason = {};    ///< a plain sentence when it failed
  std::string log_line = {};  ///< and what the system said to it
};

/// Puts the sheet on a landscape page, asking the user where to. The answer comes to `done` once,
/// later; it never blocks.
class SheetPrinter {
 public:
  virtual ~SheetPrinter() = default;
  virtual void print(const SheetPicture& picture, std::function<void(PrintResult)> done) = 0;
};

}  // namespace tonarix
