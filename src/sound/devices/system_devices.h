#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/scheduler.h"
#include "sound/devices/external_connection.h"
#include "sound/devices/queue_end.h"
#include "sound/devices/synthesizer.h"
#include "sound/midi_port.h"

namespace tonarix {

/// The MIDI outputs of this machine: the external ports first, the built-in synthesiser last. The
/// list is taken once, so that a number keeps its meaning while the program runs.
class SystemDevices final : public MidiDevices {
 public:
  /// `post_to_main` must hold out until this object has gone.
  SystemDevices(Scheduler& scheduler, PostToMain post_to_main,
                std::vector<std::string> sound_fonts = sound_font_places());
  ~SystemDevices() override;

  std::vector<MidiDeviceInfo> list() override;
  /// The synthesiser opens on every machine; where it cannot sound its queues still run. One whose
  /// sound output went away is made anew.
  std::unique_ptr<MidiPort> open(int number) override;

  /// Why the synthesiser is silent; none before it is opened for the first time.
  Synthesizer::Problem problem() const;
  /// The libraries' own words about the problem.
  std::string reason() const;
  /// False once the synthesiser has found no sound output.
  bool sound_hardware() const { return problem() != Synthesizer::Problem::no_sound_hardware; }

 private:
  std::unique_ptr<MidiPort> open_synthesizer();
  void leave_dead_connections();
  std::shared_ptr<ExternalConnection> connection(const std::string& port_name);

  Scheduler& scheduler_;
  PostToMain post_to_main_;
  std::vector<std::string> sound_fonts_;
  std::optional<RtMidi::Api> api_;
  std::optional<std::vector<std::string>> port_names_;
  std::map<std::string, std::shared_ptr<ExternalConnection>> connections_;
  std::shared_ptr<Synthesizer> synthesizer_;
};

}  // namespace tonarix
