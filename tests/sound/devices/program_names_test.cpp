#include <fluidsynth.h>
#include <gtest/gtest.h>

#include <memory>

#include "sound/devices/synthesizer.h"
#include "sound/instruments.h"

namespace tonarix {
namespace {

TEST(ProgramNames, NoTwoExchangedWouldFitTheSoundFontBetter) {
  const std::unique_ptr<fluid_settings_t, void (*)(fluid_settings_t*)> settings(
      new_fluid_settings(), delete_fluid_settings);
  const std::unique_ptr<fluid_synth_t, void (*)(fluid_synth_t*)> synth(
      new_fluid_synth(settings.get()), delete_fluid_synth);
  fluid_settings_setint(settings.get(), "synth.dynamic-sample-loading", 1);
  ASSERT_GE(fluid_synth_sfload(synth.get(), sound_font_places().front().c_str(), 0), 0);
  std::array<std::string, 128> presets;
  for (int program = 0; program < 128; ++program) {
    presets[program] = fluid_preset_get_name(
        fluid_sfont_get_preset(fluid_synth_get_sfont(synth.get(), 0), 0, program));
  }
  const auto fit = [&presets](std::size_t name, std::size_t sound) {
    int pairs_of_letters = 0;
    for (std::string_view rest = general_midi_programs[name]; rest.size() > 1;
         rest.remove_prefix(1)) {
      pairs_of_letters += presets[sound].find(rest.substr(0, 2)) != std::string::npos;
    }
    return pairs_of_letters;
  };
  for (std::size_t one = 0; one < 128; ++one) {
    for (std::size_t other = 0; other < one; ++other) {
      EXPECT_NE(general_midi_programs[one], general_midi_programs[other]);
      if (one == 91 && other == 85) continue;  // the lead is a "Solo Vox", the pad a "Space Voice"
      EXPECT_GE(fit(one, one) + fit(other, other), fit(one, other) + fit(other, one))
          << general_midi_programs[one] << ", " << general_midi_programs[other];
    }
  }
}

}  // namespace
}  // namespace tonarix
