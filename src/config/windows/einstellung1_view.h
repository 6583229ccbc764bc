#pragma once

#include "config/einstellung1.h"
#include "config/windows/ear_settings_view.h"

namespace tonarix {

/// The settings for naming, playing and writing rows by ear, on the screen.
class Einstellung1View final : public EarSettingsView {
 public:
  Einstellung1View(Einstellung1& window, const Texts& texts)
      : EarSettingsView(window, texts, &window.HinweisMeldung) {}
};

}  // namespace tonarix
