#pragma once

#include <RtMidi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <mutex>
#include <vector>

#include "figure.h"

namespace tonarix {

// From something a hand does to its message at a MIDI port.

using Moment = std::chrono::steady_clock::time_point;
inline Moment now() {
  return std::chrono::steady_clock::now();
}

/// A port of the JACK server that a program can play to, and when messages of one kind arrived.
class Port {
 public:
  /// `kind`: upper half of the status byte; `channel`: -1 for any.
  explicit Port(unsigned char kind, int channel = -1)
      : kind_(kind), channel_(channel), in_(RtMidi::UNIX_JACK, "tonarix-port") {
    in_.setCallback([](double, std::vector<unsigned char>* message,
                       void* self) { static_cast<Port*>(self)->take(now(), message->at(0)); },
                    this);
    in_.openVirtualPort("in");
  }
  std::vector<Moment> arrived() {
    const std::lock_guard lock(mutex_);
    return arrived_;
  }
  /// What comes while it doesn't listen is none of the hand's doing.
  void listen(bool listens) {
    const std::lock_guard lock(mutex_);
    listens_ = listens;
  }

 private:
  void take(Moment moment, unsigned char status) {
    const std::lock_guard lock(mutex_);
    if (!listens_ || (status & 0xF0) != kind_ || (channel_ >= 0 && (status & 0x0F) != channel_))
      return;
    arrived_.push_back(moment);
  }

  unsigned char kind_;
  int channel_;
  bool listens_ = false;
  std::mutex mutex_;
  std::vector<Moment> arrived_;
  RtMidiIn in_;
};

/// Prints what 99 % of the messages stay under, beyond the server's period. 1 when any is missing.
inline int print_delays(const char* name, const std::vector<Moment>& done,
                        const std::vector<Moment>& arrived, double period_ms, const char* goal) {
  if (done.empty() || done.size() != arrived.size()) {
    std::fprintf(stderr, "%s: %zu done, %zu arrived\n", name, done.size(), arrived.size());
    return 1;
  }
  std::vector<double> delays;
  for (std::size_t i = 0; i < done.size(); ++i) {
    delays.push_back(std::chrono::duration<double, std::milli>(arrived[i] - done[i]).count());
  }
  std::sort(delays.begin(), delays.end());
  const double most = delays[delays.size() * 99 / 100];
  print_figure(name, std::max(most - period_ms, 0.0), "ms", goal);
  return 0;
}

}  // namespace tonarix
