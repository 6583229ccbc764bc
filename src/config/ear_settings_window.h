#pragma once

#include <array>

#include "config/settings_window.h"

namespace tonarix {

/// What the two settings windows for the ear share: degrees, key, keynote, pitch, tempo and sound.
class EarSettingsWindow : public SettingsWindow {
 public:
  /// Names of the two lists that are called differently, and the programs at start.
  struct Names {
    const char* degree_list;
    const char* patch_list;
    std::array<std::int16_t, 8> patches;
  };

  ControlArray<OptionControl, 0, 1> ton_st_wahl;
  ListControl degree_list;  ///< `StufWahlCmb` or `Stuf_wahl`
  ControlArray<OptionControl, 0, 1> Tonart;
  ControlArray<OptionControl, 0, 1> grd_ton;
  ControlArray<OptionControl, 1, 4> invzahl;
  ControlArray<OptionControl, 0, 1> frequenz;
  ControlArray<OptionControl, 0, 2> stimm_g;
  ListControl temp_Combo;
  ListControl Channel_Combo;
  ListControl patch_list;  ///< `Combo1Patch` or `Combo2Patch`
  SliderControl HSliderVolume;
  ControlArray<Control, 0, 1> lb14;  ///< the slider's title and its value
  Control klang_contr;

 protected:
  EarSettingsWindow(const SettingsContext& context, std::string name, SettingsKind kind,
                    const Names& names);

  void set_captions() override;
  void fill_lists() override;
  void send_sounds() override;
  void set(Choice choice, std::int16_t value) override;
  void after_tongeschl() override;
  void lock_tempo(bool locked) override;
  void sound_failed() override;
  Sequence queue_ended() override;

 private:
  void ton_st_wahl_click(std::int16_t index);
  void fill_degrees();
  void invzahl_click(std::int16_t index);
  void grd_ton_click(std::int16_t index);
  void Channel_Combo_change();
  void patch_change();
  void volume_change();
  Sequence klang_contr_click();

  std::array<std::int16_t, 8> patches_;
};

}  // namespace tonarix
