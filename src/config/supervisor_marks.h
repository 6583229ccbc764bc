#pragma once

#include "config/settings_controls.h"
#include "settings/settings.h"

namespace tonarix {

/// The menu on a frame, by which a supervisor marks it as part of a test.
class SupervisorMarks {
 public:
  SupervisorMarks(SettingsControls& controls, const Settings& settings);

  /// Right click on a frame. Nothing happens for others than supervisors. A locked frame can't be
  /// marked, but its mark can be taken off; it stays locked and shows it.
  void open_menu(int frame);
  /// The menu was left without a choice.
  void close_menu();
  /// The menu's entry was chosen.
  void toggle();

 private:
  SettingsControls& controls_;
  const Settings& settings_;
  int frame_ = 0;
};

}  // namespace tonarix
