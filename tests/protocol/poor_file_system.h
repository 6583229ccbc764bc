#pragma once

#include <string>

namespace tonarix {

/// The file system of this test program: what it refuses, and what was asked of it.
struct PoorFileSystem {
  static inline bool moves = true;    ///< to a name that must be free
  static inline bool links = true;    ///< a second name
  static inline bool removes = true;  ///< lets a file go
  static inline std::string asked;    ///< s sync, n a file gets a name
};

}  // namespace tonarix
