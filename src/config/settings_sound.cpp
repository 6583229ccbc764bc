#include "config/settings_sound.h"

#include "base/module_texts.h"
#include "sound/sound_check.h"

namespace tonarix {

void SettingsSound::attach() {
  Midi& midi = context_.midi;
  midi.MidiGeraeteListe(output_, context_.server.ServerMidi());
  try {
    midi.MidiAnschluss(output_);
  } catch (const RuntimeError&) {
    const std::exception_ptr error = std::current_exception();
    const auto last = static_cast<std::int16_t>(output_.device_count() - 1);
    if (last < 0 || last == midi.midi_geraet) {
      midi.detach(output_);
      tell_failure("start_timer.", error, text::goes_on_without_sound);
      return;
    }
    midi.midi_geraet = last;
    with_sound([&] {
      midi.MidiAnschluss(output_);
      tell_failure("start_timer.", error, text::goes_on_with_last_device);
    });
  }
}

void SettingsSound::send_patches() {
  with_sound([this] { context_.midi.send_patches(context_.settings.patch_ar); });
}

void SettingsSound::with_sound(const std::function<void()>& work) {
  if (!has_sound()) return;
  try {
    work();
  } catch (const RuntimeError&) {
    if (!is_device_failure(std::current_exception())) throw;
    context_.midi.detach(output_);
    tell_failure("start_timer.", std::current_exception(), text::goes_on_without_sound);
  }
}

void SettingsSound::tell_failure(std::string_view tag, std::exception_ptr error,
                                 std::optional<TextKey> how_it_goes_on) {
  const Texts& texts = context_.common.texts;
  context_.errors.log(tag, error);
  std::string text = texts.Wort(text::device_unusable);
  if (!how_it_goes_on && !has_sound()) how_it_goes_on = text::goes_on_without_sound;
  if (how_it_goes_on) text += "\n" + texts.Wort(*how_it_goes_on);
  tell_(text);
}

void SettingsSound::set_volume(int volume) {
  Midi& midi = context_.midi;
  midi.midi_lautstaerke = static_cast<std::int16_t>(volume);
  midi.voice_volumes.at(static_cast<std::size_t>(midi.voice)) = midi.midi_lautstaerke;
}

Sequence SettingsSound::check() {
  Midi& midi = context_.midi;
  const Settings& settings = context_.settings;
  if (!has_sound()) {
    throw RuntimeError(RuntimeError::kDeviceError, "There is no open device", "klang_contr");
  }
  midi.MidiReset();
  co_await waits_.Delay(50);
  if (waits_.closed()) co_return;
  midi.send_patches(settings.patch_ar);
  co_await midi.MidiLeiser(waits_);
  if (waits_.closed()) co_return;
  SoundCheck check;
  check.tonraum_min = settings.tonraum_min;
  check.tonraum_max = settings.tonraum_max;
  check.invzahl = settings.invzahl;
  check.stimm_g = settings.stimm_g;
  check.grd_ton = settings.grd_ton;
  check.beat_ms = settings.tempo_ms.at(static_cast<std::size_t>(settings.tempo));
  queue_sound_check(midi, check);
  co_await waits_.Delay(100);
  if (waits_.closed()) co_return;
  co_await midi.MidiStart(waits_);
}

}  // namespace tonarix
