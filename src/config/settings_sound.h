#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/delay.h"
#include "base/sequence.h"
#include "config/settings_context.h"

namespace tonarix {

/// The sound of a settings window: its device, instruments, loudness and the sound check.
class SettingsSound {
 public:
  using Tell = std::function<void(const std::string& text)>;

  SettingsSound(const SettingsContext& context, MIDIOutput& output, Waits& waits, Tell tell)
      : context_(context), output_(output), waits_(waits), tell_(std::move(tell)) {}

  /// Opens the chosen device or, when it fails, the last one. A failure is told.
  void attach();
  /// Sends the program of each channel; a device that fails is told, and sound is off from there
  /// on.
  void send_patches();
  void set_volume(int volume);
  /// Sounds what the settings in force sound like. RuntimeError 57 without a device.
  Sequence check();
  /// How a failing device is told, and how it goes on. What the device said stands in the log.
  void tell_failure(std::string_view tag, std::exception_ptr error,
                    std::optional<TextKey> how_it_goes_on = std::nullopt);

 private:
  bool has_sound() const { return context_.midi.MidiOut == &output_; }
  void with_sound(const std::function<void()>& work);

  const SettingsContext& context_;
  MIDIOutput& output_;
  Waits& waits_;
  Tell tell_;
};

}  // namespace tonarix
