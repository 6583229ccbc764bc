#pragma once

#include <array>

#include "config/settings_sound.h"
#include "config/settings_window.h"

namespace tonarix {

/// What the two settings windows for the ear share: degrees, key, keynote, pitch, tempo and sound.
class EarSettingsWindow : public SettingsWindow {
 public:
  ~EarSettingsWindow() override;

  ControlArray<OptionControl, 0, 1> ton_st_wahl;
  ListControl degree_list;  ///< `StufWahlCmb` or `Stuf_wahl`
  ControlArray<OptionControl, 0, 1> Tonart;
  ControlArray<OptionControl, 0, 1> grd_ton;
  ControlArray<OptionControl, 0, 1> frequenz;
  ControlArray<OptionControl, 0, 2> stimm_g;
  ListControl temp_Combo;
  ListControl Channel_Combo;
  ListControl patch_list;  ///< `Combo1Patch` or `Combo2Patch`
  SliderControl HSliderVolume;
  ControlArray<Control, 0, 1> lb14;  ///< the slider's title and its value
  Control klang_contr;
  MIDIOutput MIDI;

 protected:
  /// The two lists that are called differently, the programs at start, and the first channel that
  /// follows the tones' instrument.
  struct Voices {
    const char* degree_list;
    const char* patch_list;
    std::array<std::int16_t, 8> patches;
    std::int16_t follows;
  };
  EarSettingsWindow(const SettingsContext& context, const SettingsLayout& layout,
                    const Voices& voices);

  void set_captions() override;
  void prepare() override;
  void stop_sound() override;
  void failed(std::string_view tag, std::exception_ptr error) override;
  /// A chosen degree goes with a single interval alone.
  void allow_degree();

 private:
  void degrees_chosen();
  void fill_voices();
  void patch_chosen();
  void volume_chosen();
  Sequence queue_ended();

  SettingsSound sound_;
  Voices voices_;
};

}  // namespace tonarix
