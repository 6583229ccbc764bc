#include "sound/devices/external_connection.h"

#include <jack/jack.h>

#include <atomic>

#include "base/runtime_error.h"
#include "sound/devices/library_messages.h"

namespace tonarix {

namespace {

constexpr const char* kClientName = "tonarix";
constexpr unsigned char kUsualVolume = 100;

/// Index of the port on this line, or -1.
int find_port(RtMidiOut& line, const std::string& name) {
  const unsigned int count = line.getPortCount();
  for (unsigned int index = 0; index < count; ++index) {
    if (line.getPortName(index) == name) return static_cast<int>(index);
  }
  return -1;
}

}  // namespace

class JackWatch {
 public:
  JackWatch() : client_(jack_client_open("tonarix-watch", JackNoStartServer, nullptr)) {
    if (!client_) return;
    jack_on_shutdown(
        client_, [](void* gone) { static_cast<std::atomic<bool>*>(gone)->store(true); }, &gone_);
    jack_activate(client_);
  }
  ~JackWatch() {
    if (client_) jack_client_close(client_);
  }
  JackWatch(const JackWatch&) = delete;
  JackWatch& operator=(const JackWatch&) = delete;
  bool gone() const { return !client_ || gone_; }

 private:
  std::atomic<bool> gone_{false};
  jack_client_t* client_;
};

std::optional<RtMidi::Api> external_api() {
  const LibraryMessages quiet;
  try {
    RtMidiOut probe(RtMidi::LINUX_ALSA, kClientName);
    return RtMidi::LINUX_ALSA;
  } catch (const RtMidiError&) {
    return JackWatch().gone() ? std::nullopt : std::optional(RtMidi::UNIX_JACK);
  }
}

std::vector<std::string> external_ports(RtMidi::Api api) {
  const LibraryMessages quiet;
  std::vector<std::string> names;
  try {
    RtMidiOut probe(api, kClientName);
    const unsigned int count = probe.getPortCount();
    for (unsigned int index = 0; index < count; ++index) names.push_back(probe.getPortName(index));
  } catch (const RtMidiError&) {
    names.clear();
  }
  return names;
}

ExternalConnection::ExternalConnection(RtMidi::Api api, const std::string& port_name)
    : port_name_(port_name) {
  const LibraryMessages quiet;
  try {
    if (api == RtMidi::UNIX_JACK) watch_ = std::make_unique<JackWatch>();
    if (!server_gone()) {
      line_ = std::make_unique<RtMidiOut>(api, kClientName);
      if (const int index = find_port(*line_, port_name); index >= 0) {
        line_->openPort(static_cast<unsigned int>(index), "out");
        if (line_->isPortOpen()) return;
      }
    }
  } catch (const RtMidiError&) {
    // told below
  }
  close();
  throw RuntimeError(RuntimeError::kDeviceError,
                     "The MIDI device \"" + port_name + "\" is not connected any more",
                     "ExternalConnection");
}

ExternalConnection::~ExternalConnection() {
  for (unsigned char channel = 0; channel < 8; ++channel) {
    const unsigned char volume[] = {static_cast<unsigned char>(0xB0 | channel), 7, kUsualVolume};
    if (!send(volume, sizeof volume)) break;
  }
  close();
}

bool ExternalConnection::send(const unsigned char* bytes, std::size_t count) {
  const std::lock_guard lock(mutex_);
  if (!line_ || server_gone()) return false;
  try {
    line_->sendMessage(bytes, count);
    return true;
  } catch (const RtMidiError&) {
    return false;
  }
}

bool ExternalConnection::alive() {
  const std::lock_guard lock(mutex_);
  return line_ && !server_gone() && find_port(*line_, port_name_) >= 0;
}

void ExternalConnection::close() {
  const std::lock_guard lock(mutex_);
  line_.reset();
  watch_.reset();
}

bool ExternalConnection::server_gone() const {
  return watch_ && watch_->gone();
}

}  // namespace tonarix
