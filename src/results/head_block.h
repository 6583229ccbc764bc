#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/texts.h"
#include "base/wall_clock.h"
#include "settings/settings.h"

namespace tonarix {

/// A label and its value, side by side. Plain text on one line.
struct SheetLine {
  std::string label;
  std::string value;
  bool visible = true;
};

/// Who worked when.
struct HeadFacts {
  CivilTime now;
  std::string computer_user;
  std::vector<std::string> user;  ///< name, first name, number; missing fields show empty
  bool user_known = false;
};

/// Date, exercise, computer user, name, first name, number. The last three are hidden without a
/// known user. Each label and value begins with a blank.
std::array<SheetLine, 6> head_lines(const HeadFacts& facts, const Settings& settings,
                                    const Texts& texts);

/// "Gehörbildung: tonale Intervalle (sukzessiv) bestimmen"; RuntimeError 9 without an exercise.
std::string head_title(const Settings& settings, const Texts& texts);

/// The pairs of EinstDatSave as lines "Tempo: " and "40 (Largo)". Pairs without a value are left
/// out. The instruments of the channels, which follow their number, become one line. Labels are
/// shown in the language in force; one that is not known is shown as it stands.
std::vector<SheetLine> setting_lines(const std::vector<std::string>& pairs, const Texts& texts);

/// Value of the first pair, the level by name; empty when there is none.
std::string level_text(const std::vector<std::string>& pairs);

}  // namespace tonarix
