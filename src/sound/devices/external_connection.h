#pragma once

#include <RtMidi.h>

#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace tonarix {

/// Takes the bytes of MIDI messages; callable from any thread.
class MidiSink {
 public:
  virtual ~MidiSink() = default;
  /// False when the device is gone.
  virtual bool send(const unsigned char* bytes, std::size_t count) = 0;
};

/// The way to the ports of this machine: ALSA if it is there, else JACK, else none.
std::optional<RtMidi::Api> external_api();
/// Names of the ports; empty when there are none or the way is closed.
std::vector<std::string> external_ports(RtMidi::Api api);

/// Notices that the JACK server has gone; its clients must not be used then.
class JackWatch;

/// The line to one external port, kept while the program runs, so that reopening the output costs
/// nothing.
class ExternalConnection final : public MidiSink {
 public:
  /// Raises RuntimeError 57 when the port is not there.
  ExternalConnection(RtMidi::Api api, const std::string& port_name);
  ~ExternalConnection() override;

  bool send(const unsigned char* bytes, std::size_t count) override;
  /// The port is still listed by the system.
  bool alive();
  /// Lets go of the line; everything sent later fails. A dead server has to be left before any new
  /// line is opened. Waits up to a second.
  void close();

 private:
  bool server_gone() const;

  std::mutex mutex_;
  std::string port_name_;
  std::unique_ptr<JackWatch> watch_;
  std::unique_ptr<RtMidiOut> line_;
};

}  // namespace tonarix
