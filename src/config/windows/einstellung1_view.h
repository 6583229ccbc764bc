#pragma once

#include "config/einstellung1.h"
#include "config/windows/settings_view.h"

namespace tonarix {

/// The settings for naming, playing and writing rows by ear, on the screen.
class Einstellung1View final : public SettingsView {
 public:
  Einstellung1View(Einstellung1& window, const Texts& texts);

 protected:
  void applied() override;

 private:
  void add_material();
  void add_sound();

  Einstellung1& window_;
  Card* transposition_ = nullptr;
};

}  // namespace tonarix
