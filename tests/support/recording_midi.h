#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "base/runtime_error.h"
#include "base/scheduler.h"
#include "sound/midi_port.h"

namespace tonarix {

/// MIDI outputs that play into a log, on virtual time. Times count milliseconds from the making of
/// this object.
class RecordingDevices final : public MidiDevices {
 public:
  /// A message that reached the device, sent at once or played by its queue.
  struct Entry {
    double at_ms = 0;
    MidiMessage message;
  };
  /// A note that began.
  struct Note {
    double at_ms = 0;
    int channel = 0, note = 0, velocity = 0;
    friend bool operator==(const Note&, const Note&) = default;
  };

  explicit RecordingDevices(Scheduler& scheduler)
      : scheduler_(scheduler), started_(scheduler.now()) {}

  std::vector<MidiDeviceInfo> list() override { return devices; }
  std::unique_ptr<MidiPort> open(int number) override {
    if (refuses) throw RuntimeError(RuntimeError::kDeviceError, "The MIDI device is gone", "test");
    opened = number;
    return std::make_unique<Port>(*this);
  }

  std::vector<Note> notes() const {
    std::vector<Note> found;
    for (const auto& [at_ms, message] : log) {
      if ((message.status & 0xF0) != 0x90) continue;
      found.push_back({at_ms, message.status & 0x0F, message.data1, message.data2});
    }
    return found;
  }
  /// The last program sent to the channel, -1 when there was none.
  int program(int channel) const {
    int last = -1;
    for (const auto& [at_ms, message] : log) {
      if (message.status == (0xC0 | channel)) last = message.data1;
    }
    return last;
  }

  std::vector<MidiDeviceInfo> devices{{1, "Recorder"}};
  bool refuses = false;  ///< opening raises RuntimeError 57
  bool deaf = false;     ///< each message raises it
  int opened = -2;       ///< number of the device opened last
  std::vector<Entry> log;
  std::vector<std::pair<std::int32_t, std::int32_t>> volumes;  ///< left and right, as they were set
  std::vector<MidiMessage> queue;                              ///< as it was last started
  int queues_started = 0;

 private:
  struct Port final : MidiPort {
    explicit Port(RecordingDevices& devices) : owner(devices) {}
    ~Port() override { stop_queue(); }
    void send(const MidiMessage& message) override {
      if (owner.deaf) throw RuntimeError(RuntimeError::kDeviceError, "It takes nothing", "test");
      owner.log.push_back({seconds(owner.scheduler_.now() - owner.started_) * 1000.0, message});
    }
    void start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) override {
      stop_queue();
      owner.queue = queue;
      ++owner.queues_started;
      std::int32_t end = 0;
      for (const MidiMessage& message : queue) {
        post(message.time, [this, message] { send(message); });
        end = std::max(end, message.time);
      }
      post(end, std::move(ran_out));
    }
    void stop_queue() override {
      for (const Scheduler::TaskId id : pending) owner.scheduler_.cancel(id);
      pending.clear();
    }
    void set_volume(std::int32_t left, std::int32_t right) override {
      owner.volumes.emplace_back(left, right);
    }
    void post(std::int32_t ms, Scheduler::Task task) {
      pending.push_back(owner.scheduler_.post(milliseconds(ms), std::move(task)));
    }

    RecordingDevices& owner;
    std::vector<Scheduler::TaskId> pending;
  };

  Scheduler& scheduler_;
  Scheduler::Time started_;
};

}  // namespace tonarix
