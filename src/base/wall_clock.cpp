#include "base/wall_clock.h"

#include <cstdio>

namespace tonarix {

namespace {

template <typename... Parts>
std::string formatted(const char* pattern, Parts... parts) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, pattern, parts...);
  return buffer;
}

}  // namespace

std::string file_stamp(const CivilTime& time) {
  return formatted("%02d%02d%02d%02d%02d%02d", time.year % 100, time.month, time.day, time.hour,
                   time.minute, time.second);
}

std::string date_and_time(const CivilTime& time) {
  return formatted("%02d.%02d.%04d %02d:%02d", time.day, time.month, time.year, time.hour,
                   time.minute);
}

std::string time_of_day(const CivilTime& time) {
  return formatted("%02d:%02d", time.hour, time.minute);
}

}  // namespace tonarix
