#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
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
  enum class Kind { opened, closed, sent, queue_started, played, queue_stopped, volume_set };
  struct Entry {
    double at_ms = 0;
    Kind kind = Kind::sent;
    MidiMessage message;     ///< of what was sent at once or played by the queue
    int number = 0;          ///< of the device that was opened
    std::int32_t left = 0;   ///< of a volume
    std::int32_t right = 0;  ///< of a volume
  };
  /// A note that began, sent at once or played.
  struct Note {
    double at_ms = 0;
    int channel = 0;
    int note = 0;
    int velocity = 0;
    friend bool operator==(const Note&, const Note&) = default;
  };

  explicit RecordingDevices(Scheduler& scheduler)
      : scheduler_(scheduler), started_(scheduler.now()) {}

  std::vector<MidiDeviceInfo> list() override { return devices; }
  std::unique_ptr<MidiPort> open(int number) override {
    if (refuses) {
      throw RuntimeError(RuntimeError::kDeviceError, "The MIDI device is gone", "RecordingDevices");
    }
    log.push_back({now_ms(), Kind::opened, {}, number, 0, 0});
    return std::make_unique<Port>(*this);
  }

  double now_ms() const { return seconds(scheduler_.now() - started_) * 1000.0; }

  /// All messages in the order in which they reached the device.
  std::vector<MidiMessage> messages() const {
    std::vector<MidiMessage> found;
    for (const Entry& entry : log) {
      if (is_message(entry)) found.push_back(entry.message);
    }
    return found;
  }
  /// The notes that began, in order.
  std::vector<Note> notes() const {
    std::vector<Note> found;
    for (const Entry& entry : log) {
      if (!is_message(entry) || (entry.message.status & 0xF0) != 0x90) continue;
      found.push_back(
          {entry.at_ms, entry.message.status & 0x0F, entry.message.data1, entry.message.data2});
    }
    return found;
  }
  /// The last bend sent to the channel, 64 when there was none.
  int bend(int channel) const { return last_data(0xE0 | channel, &MidiMessage::data2, 64); }
  /// The last program sent to the channel, -1 when there was none.
  int program(int channel) const { return last_data(0xC0 | channel, &MidiMessage::data1, -1); }
  int count(Kind kind) const {
    return static_cast<int>(std::count_if(log.begin(), log.end(),
                                          [&](const Entry& entry) { return entry.kind == kind; }));
  }

  std::vector<MidiDeviceInfo> devices{{1, "Recorder"}};
  bool refuses = false;  ///< opening raises RuntimeError 57
  std::vector<Entry> log;
  std::vector<MidiMessage> queue;  ///< as it was last started

 private:
  class Port final : public MidiPort {
   public:
    explicit Port(RecordingDevices& owner) : owner_(owner) {}
    ~Port() override {
      forget();
      owner_.add(Kind::closed);
    }
    void send(const MidiMessage& message) override { owner_.add(Kind::sent, message); }
    void start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) override {
      forget();
      owner_.add(Kind::queue_started);
      owner_.queue = queue;
      std::stable_sort(
          queue.begin(), queue.end(),
          [](const MidiMessage& one, const MidiMessage& two) { return one.time < two.time; });
      for (const MidiMessage& message : queue) {
        post(message.time, [this, message] { owner_.add(Kind::played, message); });
      }
      post(queue.empty() ? 0 : queue.back().time, std::move(ran_out));
    }
    void stop_queue() override {
      forget();
      owner_.add(Kind::queue_stopped);
    }
    void set_volume(std::int32_t left, std::int32_t right) override {
      owner_.log.push_back({owner_.now_ms(), Kind::volume_set, {}, 0, left, right});
    }

   private:
    void post(std::int32_t ms, Scheduler::Task task) {
      pending_.push_back(owner_.scheduler_.post(milliseconds(ms), std::move(task)));
    }
    void forget() {
      for (const Scheduler::TaskId id : pending_) owner_.scheduler_.cancel(id);
      pending_.clear();
    }

    RecordingDevices& owner_;
    std::vector<Scheduler::TaskId> pending_;
  };

  static bool is_message(const Entry& entry) {
    return entry.kind == Kind::sent || entry.kind == Kind::played;
  }
  void add(Kind kind, const MidiMessage& message = {}) {
    log.push_back({now_ms(), kind, message, 0, 0, 0});
  }
  int last_data(int status, std::uint8_t MidiMessage::*data, int none) const {
    const auto found = std::find_if(log.rbegin(), log.rend(), [&](const Entry& entry) {
      return is_message(entry) && entry.message.status == status;
    });
    return found == log.rend() ? none : found->message.*data;
  }

  Scheduler& scheduler_;
  Scheduler::Time started_;
};

}  // namespace tonarix
