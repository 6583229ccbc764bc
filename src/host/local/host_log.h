#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "base/wall_clock.h"

namespace tonarix {

/// A text file that only grows: each entry is one line behind its date and time.
class HostLog {
 public:
  /// Opens the file, or makes it.
  HostLog(const std::filesystem::path& file, const WallClock& clock);

  /// Writes an entry through to the file. Line feeds become " | ".
  void add(const std::string& entry);
  /// False when the file can't be written.
  bool writable() const { return file_.good(); }

 private:
  std::ofstream file_;
  const WallClock& clock_;
};

}  // namespace tonarix
