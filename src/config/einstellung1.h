#pragma once

#include "config/ear_settings_window.h"

namespace tonarix {

/// Settings of the exercises by ear that name, play or write a row.
class Einstellung1 final : public EarSettingsWindow {
 public:
  explicit Einstellung1(const SettingsContext& context);

  ControlArray<OptionControl, 0, 1> abfr_iv;
  Control HinweisMeldung;  ///< notice of the write exercise, two lines
  ListControl transpo_cmb;
  ListControl CmbTrans;    ///< 0 none, 1 upward, 2 downward
  ListControl CmbTransIv;  ///< item data: the interval's code

 protected:
  void set_captions() override;
  void fill_lists() override;
  void fill_transposition() override;
  void set(Choice choice, std::int16_t value) override;
  std::span<const LockRow> level_locks() const override;
  std::span<const int> exam_locks() const override;
  std::vector<std::string> build_EinstDatSave() const override;

 private:
  void trans_dfg();
};

}  // namespace tonarix
