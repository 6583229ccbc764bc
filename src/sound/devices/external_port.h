#pragma once

#include <array>
#include <bitset>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include "sound/devices/external_connection.h"
#include "sound/devices/queue_end.h"
#include "sound/midi_port.h"

namespace tonarix {

/// An open output to an external device, with a player of its own. It begins with all bends at the
/// centre. The volume is sent as the channel volume of the channels 0 to 7, since few devices know
/// the master volume message, and at most every 20 ms, since a fade would fill a MIDI cable. A
/// device that vanishes raises RuntimeError 57 with the next message sent at once; a queue that is
/// playing runs out in its time.
class ExternalPort final : public MidiPort {
 public:
  ExternalPort(std::shared_ptr<MidiSink> sink, PostToMain post_to_main);
  ~ExternalPort() override;
  void send(const MidiMessage& message) override;
  void start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) override;
  void stop_queue() override;
  void set_volume(std::int32_t left, std::int32_t right) override;

 private:
  using Clock = std::chrono::steady_clock;

  void play();
  std::optional<Clock::time_point> next_due() const;
  void play_due(Clock::time_point now);
  void send_volume(Clock::time_point now);
  void silence();
  void transmit(const MidiMessage& message);

  PostToMain post_to_main_;
  std::shared_ptr<MidiSink> sink_;

  std::mutex mutex_;  // guards all below
  std::condition_variable wake_;
  std::vector<MidiMessage> queue_;
  std::size_t next_ = 0;
  Clock::time_point started_;
  std::optional<QueueEnd> end_;
  bool announced_ = false;
  int volume_ = -1;         ///< channel volume last sent, 0 to 127
  int wanted_volume_ = -1;  ///< channel volume to be sent
  Clock::time_point volume_sent_;
  std::array<std::bitset<128>, 16> sounding_;
  std::bitset<16> used_;
  bool gone_ = false;
  bool leaving_ = false;
  std::thread player_;
};

}  // namespace tonarix
