#include "sound/devices/external_port.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr std::uint8_t kChannels = 8;
constexpr auto kVolumePause = std::chrono::milliseconds(20);

MidiMessage channel_message(int kind, int channel, int data1, int data2) {
  return {static_cast<std::uint8_t>(kind | channel), static_cast<std::uint8_t>(data1),
          static_cast<std::uint8_t>(data2), 0, 0};
}

}  // namespace

ExternalPort::ExternalPort(std::shared_ptr<MidiSink> sink, PostToMain post_to_main)
    : post_to_main_(std::move(post_to_main)), sink_(std::move(sink)) {
  for (int channel = 0; channel < kChannels; ++channel) {
    transmit(channel_message(0xE0, channel, 0, 64));
  }
  player_ = std::thread([this] { play(); });
}

ExternalPort::~ExternalPort() {
  {
    const std::lock_guard lock(mutex_);
    leaving_ = true;
    silence();
  }
  wake_.notify_one();
  player_.join();
}

void ExternalPort::send(const MidiMessage& message) {
  const std::lock_guard lock(mutex_);
  send_volume(Clock::now());
  transmit(message);
  if (gone_) {
    throw RuntimeError(RuntimeError::kDeviceError, "The MIDI device is not connected any more",
                       "ExternalPort");
  }
}

void ExternalPort::start_queue(std::vector<MidiMessage> queue, std::function<void()> ran_out) {
  std::stable_sort(queue.begin(), queue.end(), [](const MidiMessage& one, const MidiMessage& two) {
    return one.time < two.time;
  });
  {
    const std::lock_guard lock(mutex_);
    queue_ = std::move(queue);
    next_ = 0;
    started_ = Clock::now();
    end_.emplace(post_to_main_, std::move(ran_out));
    announced_ = false;
  }
  wake_.notify_one();
}

void ExternalPort::stop_queue() {
  const std::lock_guard lock(mutex_);
  queue_.clear();
  next_ = 0;
  end_.reset();
  silence();
}

void ExternalPort::set_volume(std::int32_t left, std::int32_t right) {
  const double level = std::clamp((static_cast<double>(left) + right) / (2 * 65535.0), 0.0, 1.0);
  {
    const std::lock_guard lock(mutex_);
    // Receivers take the square of the channel volume for the amplitude.
    wanted_volume_ = static_cast<int>(std::lround(127 * std::sqrt(level)));
  }
  wake_.notify_one();
}

void ExternalPort::play() {
  std::unique_lock lock(mutex_);
  while (!leaving_) {
    const auto due = next_due();
    if (!due) {
      wake_.wait(lock);
    } else if (*due > Clock::now()) {
      wake_.wait_until(lock, *due);
    } else {
      play_due(Clock::now());
    }
  }
}

std::optional<ExternalPort::Clock::time_point> ExternalPort::next_due() const {
  std::optional<Clock::time_point> due;
  if (wanted_volume_ != volume_) due = volume_sent_ + kVolumePause;
  if (end_ && !announced_) {
    const auto time =
        next_ < queue_.size() ? started_ + std::chrono::milliseconds(queue_[next_].time) : started_;
    if (!due || time < *due) due = time;
  }
  return due;
}

void ExternalPort::play_due(Clock::time_point now) {
  if (now >= volume_sent_ + kVolumePause) send_volume(now);
  if (!end_ || announced_) return;
  while (next_ < queue_.size() && started_ + std::chrono::milliseconds(queue_[next_].time) <= now) {
    transmit(queue_[next_++]);
  }
  if (next_ < queue_.size()) return;
  announced_ = true;
  end_->announce();
}

void ExternalPort::send_volume(Clock::time_point now) {
  if (wanted_volume_ == volume_) return;
  for (int channel = 0; channel < kChannels; ++channel) {
    transmit(channel_message(0xB0, channel, 7, wanted_volume_));
  }
  volume_ = wanted_volume_;
  volume_sent_ = now;
}

void ExternalPort::silence() {
  for (int channel = 0; channel < 16; ++channel) {
    const auto index = static_cast<std::size_t>(channel);
    if (!used_[index]) continue;
    for (std::size_t note = 0; note < 128; ++note) {
      if (sounding_[index][note])
        transmit(channel_message(0x80, channel, static_cast<int>(note), 0));
    }
    transmit(channel_message(0xB0, channel, 123, 0));
    used_.reset(index);
  }
}

void ExternalPort::transmit(const MidiMessage& message) {
  const int kind = message.status & 0xF0;
  const std::size_t channel = message.status & 0x0F;
  if (kind == 0x90) used_.set(channel);
  if (kind == 0x80 || kind == 0x90) {
    sounding_[channel].set(message.data1 & 0x7F, kind == 0x90 && message.data2 > 0);
  }
  const unsigned char bytes[] = {message.status, message.data1, message.data2};
  const bool two_bytes = kind == 0xC0 || kind == 0xD0;
  if (!gone_) gone_ = !sink_->send(bytes, two_bytes ? 2 : 3);
}

}  // namespace tonarix
