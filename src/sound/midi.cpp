#include "sound/midi.h"

#include <utility>

#include "base/arithmetic.h"
#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr int kNoteOff = 128;
constexpr int kNoteOn = 144;
constexpr int kProgram = 192;
constexpr int kBend = 224;
constexpr std::int32_t kFadeStep = 500;
constexpr std::int32_t kNoteOffTag = 1'000'000;
constexpr std::int16_t kNoHostNumber = -9;

std::uint8_t data_byte(int value) {
  if (value < 0 || value > 127) throw RuntimeError::overflow("MIDI data byte");
  return static_cast<std::uint8_t>(value);
}

std::uint8_t status_byte(int kind, int channel) {
  if (channel < 0 || channel > 15) throw RuntimeError::overflow("MIDI channel");
  return static_cast<std::uint8_t>(kind + channel);
}

std::int32_t queue_time(double ms) {
  const double whole = Round(ms);
  if (!(whole >= 0.0 && whole <= 2147483647.0)) throw RuntimeError::overflow("MIDI time");
  return static_cast<std::int32_t>(whole);
}

}  // namespace

void MIDIOutput::action(Action what) {
  const auto port = [this]() -> MidiPort& {
    if (port_) return *port_;
    throw RuntimeError(RuntimeError::kDeviceError, "The MIDI output is not open", "MIDIOutput");
  };
  switch (what) {
    case Action::open_device:
      port_.reset();
      port_ = devices_.open(device_number);
      port_->set_volume(volume_left_, volume_right_);
      break;
    case Action::close_device:
      port_.reset();
      break;
    case Action::start_queue: {
      std::vector<MidiMessage> queue = std::exchange(queue_, {});
      port().start_queue(std::move(queue), [this] {
        if (const auto handler = on_queue_empty) handler();
      });
      break;
    }
    case Action::stop_queue:
      queue_.clear();
      if (port_) port_->stop_queue();
      break;
    case Action::queue_message:
      queue_.push_back(message);
      break;
    case Action::send_message: {
      MidiMessage at_once = message;
      at_once.time = 0;
      port().send(at_once);
      break;
    }
  }
}

int MIDIOutput::device_count() {
  return static_cast<int>(devices_.list().size());
}

std::optional<MidiDeviceInfo> MIDIOutput::device_set() {
  std::vector<MidiDeviceInfo> devices = devices_.list();
  const int count = static_cast<int>(devices.size());
  const int number = device_number == -1 ? count - 1 : device_number;
  if (number < 0 || number >= count) return std::nullopt;
  return std::move(devices[static_cast<std::size_t>(number)]);
}

std::string MIDIOutput::device_name() {
  const auto device = device_set();
  return device ? device->name : std::string();
}

std::int32_t MIDIOutput::device_id() {
  const auto device = device_set();
  return device ? device->id : -1;
}

void MIDIOutput::set_volume(std::int32_t left, std::int32_t right) {
  volume_left_ = left;
  volume_right_ = right;
  if (port_) port_->set_volume(left, right);
}

/// Puts the volume where the fade leads, however the fade ends.
class Midi::FadeEnd {
 public:
  FadeEnd(Midi& midi, std::int32_t left, std::int32_t right)
      : midi_(midi), control_(midi.MidiOut), left_(left), right_(right) {}
  FadeEnd(const FadeEnd&) = delete;
  FadeEnd& operator=(const FadeEnd&) = delete;
  ~FadeEnd() {
    if (in_force()) control_->set_volume(left_, right_);
  }
  /// The control that began the fade is still the current output.
  bool in_force() const { return control_ && midi_.MidiOut == control_; }

 private:
  Midi& midi_;
  MIDIOutput* control_;
  std::int32_t left_;
  std::int32_t right_;
};

std::vector<Midi::Device> Midi::MidiGeraeteListe(MIDIOutput& control, std::int16_t midi_host_nr) {
  const int count = control.device_count();
  std::vector<Device> devices;
  for (int number = -1; number < count; ++number) {
    control.device_number = number;
    devices.push_back({number, control.device_id(), control.device_name()});
  }
  midi_geraet = midi_host_nr == kNoHostNumber ? to_int16(count - 1) : midi_host_nr;
  return devices;
}

void Midi::MidiAnschluss(MIDIOutput& control) {
  MidiOut = &control;
  voice = 0;
  midi_lautstaerke = 100;
  if (control.state() >= 1 || control.device_number == -1) {
    control.action(MIDIOutput::Action::close_device);
  }
  control.device_number = midi_geraet;
  midi_vol_links = kFullVolume;
  midi_vol_rechts = kFullVolume;
  control.action(MIDIOutput::Action::open_device);
}

void Midi::detach(MIDIOutput& control) {
  if (MidiOut == &control) MidiOut = nullptr;
}

void Midi::MidiReset() {
  if (!MidiOut) return;
  MidiOut->action(MIDIOutput::Action::stop_queue);
  MidiOut->action(MIDIOutput::Action::close_device);
  MidiOut->action(MIDIOutput::Action::open_device);
}

Sequence Midi::MidiLeiser(Waits& waits) {
  if (!MidiOut) co_return;
  MidiOut->action(MIDIOutput::Action::stop_queue);
  const std::int32_t left = MidiOut->volume_left();
  if (left < 1) co_return;
  midi_vol_links = left;
  midi_vol_rechts = MidiOut->volume_right();
  const FadeEnd end(*this, 0, 0);
  for (std::int32_t level = left; level >= 0; level -= kFadeStep) {
    if (!end.in_force() || waits.closed()) co_return;
    MidiOut->set_volume(level, level);
    co_await waits.Yield();
  }
}

Sequence Midi::MidiStart(Waits& waits) {
  if (!MidiOut) co_return;
  MidiOut->action(MIDIOutput::Action::start_queue);
  if (midi_vol_links < 1) co_return;
  const FadeEnd end(*this, midi_vol_links, midi_vol_rechts);
  for (std::int32_t level = 0; level <= midi_vol_links; level += kFadeStep) {
    if (!end.in_force() || waits.closed()) co_return;
    MidiOut->set_volume(level, level);
    co_await waits.Yield();
  }
}

void Midi::MidiNote(std::int16_t note, double time, double dauer, std::int16_t kanal,
                    std::int32_t tag, std::int16_t velocity) {
  if (!MidiOut) return;
  prepare(kNoteOn, kanal, note);
  MidiOut->message.data2 = data_byte(velocity);
  MidiOut->message.time = queue_time(time);
  MidiOut->message.tag = tag;
  MidiOut->action(MIDIOutput::Action::queue_message);
  prepare(kNoteOff, kanal, note);
  MidiOut->message.time = queue_time(time + dauer);
  MidiOut->message.tag = tag + kNoteOffTag;
  MidiOut->action(MIDIOutput::Action::queue_message);
}

void Midi::MidiNote(std::int16_t note, double time, double dauer, std::int16_t kanal,
                    std::int32_t tag) {
  MidiNote(note, time, dauer, kanal, tag, midi_lautstaerke);
}

void Midi::MidiNoteOn(std::int16_t note, std::int16_t kanal) {
  MidiNoteOn(note, kanal, midi_lautstaerke);
}

void Midi::MidiNoteOn(std::int16_t note, std::int16_t kanal, std::int16_t velocity) {
  if (MidiOut) MidiOut->set_volume(midi_vol_links, midi_vol_rechts);
  send(kNoteOn, kanal, note, velocity);
}

void Midi::MidiNoteOff(std::int16_t note, std::int16_t kanal) {
  send(kNoteOff, kanal, note, 0);
}

Sequence Midi::MidiNoteOffSpaeter(std::int16_t note, double ms, std::int16_t kanal, Waits& waits) {
  if (ms < 200) co_await waits.Delay(200 - ms);
  MidiNoteOff(note, kanal);
}

void Midi::MidiBend(std::int16_t wert, std::int16_t kanal) {
  send(kBend, kanal, 0, wert);
}

void Midi::MidiProgramm(std::int16_t patch, std::int16_t kanal) {
  send(kProgram, kanal, patch, 0);
}

void Midi::send_patches(const std::array<std::int16_t, 8>& patch_ar) {
  for (std::int16_t kanal = 0; kanal < 8; ++kanal) {
    MidiProgramm(patch_ar[static_cast<std::size_t>(kanal)], kanal);
  }
}

void Midi::send(int kind, std::int16_t kanal, std::int16_t data1, std::int16_t data2) {
  if (!MidiOut) return;
  prepare(kind, kanal, data1);
  MidiOut->message.data2 = data_byte(data2);
  MidiOut->message.time = 0;
  MidiOut->action(MIDIOutput::Action::send_message);
}

void Midi::prepare(int kind, std::int16_t kanal, std::int16_t data1) {
  MidiOut->message.status = status_byte(kind, kanal);
  MidiOut->message.data1 = data_byte(data1);
}

}  // namespace tonarix
