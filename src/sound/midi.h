#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/delay.h"
#include "base/sequence.h"
#include "sound/midi_port.h"

namespace tonarix {

/// A window's MIDI output control over one of the machine's devices. (`MidiioLib.MIDIOutput`)
class MIDIOutput {
 public:
  enum class Action : int {
    open_device = 1,
    close_device = 2,
    start_queue = 4,
    stop_queue = 5,  ///< and clears it
    queue_message = 6,
    send_message = 7,
  };

  explicit MIDIOutput(MidiDevices& devices) : devices_(devices) {}
  MIDIOutput(const MIDIOutput&) = delete;
  MIDIOutput& operator=(const MIDIOutput&) = delete;

  /// Opening a device that is gone, and sending or starting while none is open, raise RuntimeError
  /// 57. Closing and stopping never fail.
  void action(Action what);
  int device_count();
  std::string device_name();                   ///< of the device set, empty when there is none
  std::int32_t device_id();                    ///< of the device set, -1 when there is none
  int state() const { return port_ ? 1 : 0; }  ///< 1 or more means open

  int device_number = -1;  ///< -1 is the default mapper
  MidiMessage message;     ///< the message about to be sent or queued
  std::int32_t volume_left() const { return volume_left_; }
  std::int32_t volume_right() const { return volume_right_; }
  /// 0 to 65535 for each side; kept while no device is open.
  void set_volume(std::int32_t left, std::int32_t right);

  /// A started queue has run out.
  std::function<void()> on_queue_empty;

 private:
  std::optional<MidiDeviceInfo> device_set();

  MidiDevices& devices_;
  std::unique_ptr<MidiPort> port_;
  std::vector<MidiMessage> queue_;
  std::int32_t volume_left_ = 65535;
  std::int32_t volume_right_ = 65535;
};

/// All note operations of the program, on the current output; without one they do nothing. One
/// instance for the process. Notes, velocities, programs and bends lie in 0 to 127, channels in 0
/// to 15; anything else is RuntimeError 6.
class Midi {
 public:
  static constexpr std::int32_t kFullVolume = 65535;

  /// Device number from -1 (the default mapper) on, with id and name; sets `midi_geraet` to the
  /// host's number, or to the last device when the host gave none (-9).
  struct Device {
    int number;
    std::int32_t id;
    std::string name;
  };
  std::vector<Device> MidiGeraeteListe(MIDIOutput& control, std::int16_t midi_host_nr);
  /// Makes the control the current output, opens it and resets velocity and volumes.
  void MidiAnschluss(MIDIOutput& control);
  /// Forgets the control when its window goes.
  void detach(MIDIOutput& control);

  void MidiReset();
  /// Fades out before a queue is built; `waits` is the caller's. A fade that closing cuts short
  /// stands at its end at once, so that the saved volumes stay true.
  Sequence MidiLeiser(Waits& waits);
  /// Starts the queue with a fade-in, cut short likewise.
  Sequence MidiStart(Waits& waits);
  /// Queues a note as note-on and note-off. `time` and `dauer` in milliseconds from the start of
  /// the queue.
  void MidiNote(std::int16_t note, double time, double dauer, std::int16_t kanal, std::int32_t tag,
                std::int16_t velocity);
  void MidiNote(std::int16_t note, double time, double dauer, std::int16_t kanal, std::int32_t tag);
  void MidiNoteOn(std::int16_t note, std::int16_t kanal);
  void MidiNoteOn(std::int16_t note, std::int16_t kanal, std::int16_t velocity);
  void MidiNoteOff(std::int16_t note, std::int16_t kanal);
  /// Sends the note-off after (200 - ms) milliseconds.
  Sequence MidiNoteOffSpaeter(std::int16_t note, double ms, std::int16_t kanal, Waits& waits);
  /// Bend in steps of 3.125 cents at the default range, 64 is the centre.
  void MidiBend(std::int16_t wert, std::int16_t kanal);
  void MidiProgramm(std::int16_t patch, std::int16_t kanal);
  /// `MidiProgramm` for the channels 0 to 7.
  void send_patches(const std::array<std::int16_t, 8>& patch_ar);

  std::int16_t midi_geraet = -1;
  std::int16_t midi_lautstaerke = 100;           ///< velocity of all notes
  std::int16_t voice = 0;                        ///< current voice number of the volume slider
  std::array<std::int16_t, 17> voice_volumes{};  ///< kept by the volume slider
  std::int32_t midi_vol_links = kFullVolume;
  std::int32_t midi_vol_rechts = kFullVolume;
  MIDIOutput* MidiOut = nullptr;

 private:
  class FadeEnd;
  void send(int kind, std::int16_t kanal, std::int16_t data1, std::int16_t data2);
  void prepare(int kind, std::int16_t kanal, std::int16_t data1);
};

/// Tells an exercise window that the queue of the settings window's control has run out.
class MidiEvent {
 public:
  void SendQueueEmpty() {
    if (QueueEmpty) QueueEmpty();
  }
  std::function<void()> QueueEmpty;
};

}  // namespace tonarix
