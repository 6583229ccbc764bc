#pragma once

#include <cstdio>

namespace tonarix {

/// One line of the measurement: name, value, unit, goal.
inline void print_figure(const char* name, double value, const char* unit, const char* goal) {
  std::printf("%-28s %10.1f %-6s goal %s\n", name, value, unit, goal);
  std::fflush(stdout);
}

}  // namespace tonarix
