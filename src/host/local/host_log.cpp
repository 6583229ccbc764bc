#include "host/local/host_log.h"

#include <cstdio>

#include "base/private_file.h"

namespace tonarix {

HostLog::HostLog(const std::filesystem::path& file, const WallClock& clock) : clock_(clock) {
  make_private_file(file);
  file_.open(file, std::ios::app);
}

void HostLog::add(const std::string& entry) {
  const CivilTime time = clock_.now();
  char stamp[80];
  std::snprintf(stamp, sizeof stamp, "%04d-%02d-%02d %02d:%02d:%02d ", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  std::string line = stamp;
  for (const char character : entry) {
    if (character == '\n') {
      line += " | ";
    } else if (character != '\r') {
      line += character;
    }
  }
  line += '\n';
  // A disk that was full may have room again.
  file_.clear();
  file_.write(line.data(), static_cast<std::streamsize>(line.size())).flush();
}

}  // namespace tonarix
