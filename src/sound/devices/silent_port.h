#pragma once

#include "base/scheduler.h"
#include "sound/midi_port.h"

namespace tonarix {

/// An output on a machine that cannot sound: its queues take their time and run out, so that
/// everything else goes on.
class SilentPort final : public MidiPort {
 public:
  explicit SilentPort(Scheduler& scheduler) : scheduler_(scheduler) {}
  ~SilentPort() override { stop_queue(); }
  void send(const MidiMessage&) override {}
  void start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) override;
  void stop_queue() override { scheduler_.cancel(pending_); }
  void set_volume(std::int32_t, std::int32_t) override {}

 private:
  Scheduler& scheduler_;
  Scheduler::TaskId pending_ = 0;
};

}  // namespace tonarix
