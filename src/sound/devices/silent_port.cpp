#include "sound/devices/silent_port.h"

#include <algorithm>
#include <utility>

namespace tonarix {

void SilentPort::start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) {
  stop_queue();
  std::int32_t length = 0;
  for (const MidiMessage& message : queue) length = std::max(length, message.time);
  pending_ = scheduler_.post(milliseconds(length), std::move(ran_out));
}

}  // namespace tonarix
