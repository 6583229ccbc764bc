#pragma once

#include "config/ear_settings_window.h"

namespace tonarix {

/// Settings of the exercise that forms a tone by ear. It has a single interval from tone to tone.
class Einstellung2 final : public EarSettingsWindow {
 public:
  explicit Einstellung2(const SettingsContext& context);

  ControlArray<OptionControl, 0, 1> aufg{*this, "aufg"};
  ListControl genau_combo{*this, "genau_combo"};
  Control genau_note{*this, "genau_note"};  ///< what the accuracy means, in steps and cents

 private:
  void prepare() override;
  void add_pair(PairList& pairs, Choice choice) const override;
  void give_back() override;
  void accuracy_chosen();

  Naming abfr_iv_before_;  ///< this window forms from tone to tone, whatever an earlier one named
};

}  // namespace tonarix
