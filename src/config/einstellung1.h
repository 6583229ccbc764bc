#pragma once

#include "config/ear_settings_window.h"

namespace tonarix {

/// Settings of the exercises by ear that name, play or write a row.
class Einstellung1 final : public EarSettingsWindow {
 public:
  explicit Einstellung1(const SettingsContext& context);

  ControlArray<OptionControl, 1, 4> invzahl{*this, "invzahl"};
  ControlArray<OptionControl, 0, 1> abfr_iv{*this, "abfr_iv"};
  Control HinweisMeldung{*this, "HinweisMeldung"};  ///< notice of the write exercise, two lines
  ListControl transpo_cmb{*this, "transpo_cmb"};
  ListControl CmbTrans{*this, "CmbTrans"};      ///< 0 none, 1 upward, 2 downward
  ListControl CmbTransIv{*this, "CmbTransIv"};  ///< item data: the interval's code

 private:
  void set_captions() override;
  void prepare() override;
  void trans_dfg();
};

}  // namespace tonarix
