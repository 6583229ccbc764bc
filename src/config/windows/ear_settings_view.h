#pragma once

#include "config/ear_settings_window.h"
#include "config/windows/settings_view.h"

namespace tonarix {

/// The settings of an exercise by ear on the screen: under the voices the loudness and the sound
/// check.
class EarSettingsView : public SettingsView {
 public:
  EarSettingsView(EarSettingsWindow& window, const Texts& texts, const Control* notice = nullptr);

 private:
  void build_loudness(EarSettingsWindow& window);
};

}  // namespace tonarix
