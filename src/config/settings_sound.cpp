#include "config/settings_window.h"

namespace tonarix {

void SettingsWindow::attach_midi() {
  Midi& midi = context_.midi;
  midi.MidiGeraeteListe(MIDI, context_.server.ServerMidi());
  try {
    midi.MidiAnschluss(MIDI);
  } catch (const RuntimeError&) {
    const std::exception_ptr error = std::current_exception();
    const auto last = static_cast<std::int16_t>(MIDI.device_count() - 1);
    if (last < 0 || last == midi.midi_geraet) {
      midi.detach(MIDI);
      tell_device_failure("start_timer.", error, 1094_text);
      return;
    }
    midi.midi_geraet = last;
    with_sound([&] {
      midi.MidiAnschluss(MIDI);
      tell_device_failure("start_timer.", error, 1093_text);
    });
  }
}

void SettingsWindow::with_sound(const std::function<void()>& work) {
  if (!has_sound()) return;
  try {
    work();
  } catch (const RuntimeError&) {
    if (!is_device_failure(std::current_exception())) throw;
    context_.midi.detach(MIDI);
    tell_device_failure("start_timer.", std::current_exception(), 1094_text);
  }
}

void SettingsWindow::tell_device_failure(std::string_view tag, std::exception_ptr error,
                                         std::optional<TextKey> how_it_goes_on) {
  context_.errors.log(tag, error);
  std::string text = word(1085_text);
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& failure) {
    text += std::string("\n") + failure.what();
  }
  if (how_it_goes_on) text += "\n" + word(*how_it_goes_on);
  tell(std::move(text));
}

}  // namespace tonarix
