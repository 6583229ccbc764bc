#pragma once

#include <string>

namespace tonarix {

/// A moment of the civil calendar in the user's time zone.
struct CivilTime {
  int year = 1970;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// The date and time of day, for what people read. Spans are measured by the scheduler instead.
class WallClock {
 public:
  virtual ~WallClock() = default;
  virtual CivilTime now() const = 0;
};

/// Two digits each: year, month, day, hour, minute, second ("261121090532"), the stamp of file
/// names.
std::string file_stamp(const CivilTime& time);
/// "21.11.2026 09:05"
std::string date_and_time(const CivilTime& time);
/// "09:05"
std::string time_of_day(const CivilTime& time);

}  // namespace tonarix
