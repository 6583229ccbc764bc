#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tonarix {

/// One short MIDI message. `time` counts milliseconds from the start of its queue; messages sent at
/// once have 0.
struct MidiMessage {
  std::uint8_t status = 0;  ///< kind in the upper four bits, channel in the lower
  std::uint8_t data1 = 0;
  std::uint8_t data2 = 0;
  std::int32_t time = 0;
  std::int32_t tag = 0;  ///< the caller's number of the message
  friend bool operator==(const MidiMessage&, const MidiMessage&) = default;
};

/// An open MIDI output. Destroying it silences and closes it. A device that fails raises
/// RuntimeError 57.
class MidiPort {
 public:
  virtual ~MidiPort() = default;
  virtual void send(const MidiMessage& message) = 0;
  /// Plays the messages by their times, equal times in the order given, beginning now. `ran_out` is
  /// called once on the main thread when the last one has been sent; a queue that is stopped does
  /// not call it.
  virtual void start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) = 0;
  /// Forgets what has not been sent and silences what sounds. Never raises.
  virtual void stop_queue() = 0;
  /// Master volume, 0 to 65535 for each side. Never raises.
  virtual void set_volume(std::int32_t left, std::int32_t right) = 0;
};

struct MidiDeviceInfo {
  std::int32_t id = 0;
  std::string name;
};

/// The MIDI outputs of this machine, numbered from 0; -1 is the default mapper.
class MidiDevices {
 public:
  virtual ~MidiDevices() = default;
  virtual std::vector<MidiDeviceInfo> list() = 0;
  /// Raises RuntimeError 57 with a plain sentence when the device is gone or refuses.
  virtual std::unique_ptr<MidiPort> open(int number) = 0;
};

}  // namespace tonarix
