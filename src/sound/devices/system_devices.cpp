#include "sound/devices/system_devices.h"

#include <utility>

#include "base/runtime_error.h"
#include "sound/devices/external_port.h"
#include "sound/devices/silent_port.h"

namespace tonarix {

SystemDevices::SystemDevices(Scheduler& scheduler, PostToMain post_to_main,
                             std::vector<std::string> sound_fonts)
    : scheduler_(scheduler),
      post_to_main_(std::move(post_to_main)),
      sound_fonts_(std::move(sound_fonts)) {}

SystemDevices::~SystemDevices() = default;

std::vector<MidiDeviceInfo> SystemDevices::list() {
  if (!port_names_) {
    api_ = external_api();
    port_names_ = api_ ? external_ports(*api_) : std::vector<std::string>();
  }
  std::vector<MidiDeviceInfo> devices;
  for (const std::string& name : *port_names_) {
    devices.push_back({static_cast<std::int32_t>(devices.size()), name});
  }
  devices.push_back({static_cast<std::int32_t>(devices.size()), "FluidSynth"});
  return devices;
}

std::unique_ptr<MidiPort> SystemDevices::open(int number) {
  if (number == -1) return open_synthesizer();
  const std::vector<MidiDeviceInfo> devices = list();
  const int synthesizer = static_cast<int>(devices.size()) - 1;
  if (number == synthesizer) return open_synthesizer();
  if (number < 0 || number > synthesizer) {
    throw RuntimeError(RuntimeError::kDeviceError,
                       "There is no MIDI device with the number " + std::to_string(number),
                       "SystemDevices");
  }
  const std::string& name = devices[static_cast<std::size_t>(number)].name;
  return std::make_unique<ExternalPort>(connection(name), post_to_main_);
}

Synthesizer::Problem SystemDevices::problem() const {
  return synthesizer_ ? synthesizer_->problem() : Synthesizer::Problem::none;
}

std::string SystemDevices::reason() const {
  return synthesizer_ ? synthesizer_->reason() : std::string();
}

std::unique_ptr<MidiPort> SystemDevices::open_synthesizer() {
  if (synthesizer_ && synthesizer_->stalled()) synthesizer_.reset();
  if (!synthesizer_) {
    leave_dead_connections();
    synthesizer_ = std::make_shared<Synthesizer>(Synthesizer::Output::sound_hardware, sound_fonts_,
                                                 post_to_main_);
  }
  if (synthesizer_->problem() != Synthesizer::Problem::none) {
    return std::make_unique<SilentPort>(scheduler_);
  }
  return std::make_unique<SynthPort>(synthesizer_, scheduler_);
}

void SystemDevices::leave_dead_connections() {
  std::erase_if(connections_, [](const auto& entry) {
    if (entry.second->alive()) return false;
    entry.second->close();
    return true;
  });
}

std::shared_ptr<ExternalConnection> SystemDevices::connection(const std::string& port_name) {
  leave_dead_connections();
  const auto known = connections_.find(port_name);
  if (known != connections_.end()) return known->second;
  auto made = std::make_shared<ExternalConnection>(*api_, port_name);
  connections_.emplace(port_name, made);
  return made;
}

}  // namespace tonarix
