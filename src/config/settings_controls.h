#pragma once

#include "base/controls.h"

namespace tonarix {

/// The controls that every settings window has, under their given names.
struct SettingsControls {
  explicit SettingsControls(Window& window) : owner(window) {}

  Window& owner;
  ControlArray<Control, 0, 13> grdeinst{owner, "grdeinst"};    ///< a frame for each option group
  ControlArray<Control, 0, 13> geinst_lb{owner, "geinst_lb"};  ///< the frames' titles
  Control aktionsbox{owner, "aktionsbox"};
  Control cmdHilfe{owner, "cmdHilfe"};
  Control cmdOptionRead{owner, "cmdOptionRead"};
  Control cmdOptionSave{owner, "cmdOptionSave"};
  Control status{owner, "status"};  ///< what there is to know in one line, until the next action
  Control cmdZurueck{owner, "cmdZurueck"};
  Control cmdOk{owner, "cmdOk"};
  ListControl training_Combo{owner, "training_Combo"};
  ListControl prfnr_Comb{owner, "prfnr_Comb"};
  ControlArray<OptionControl, 0, 1> abfrage{owner, "abfrage"};
  ControlArray<OptionControl, 0, 2> tongeschl{owner, "tongeschl"};
  ControlArray<OptionControl, 0, 3> E_Oktav{owner, "E_Oktav"};
  ListControl Combo_tonraum{owner, "Combo_tonraum"};
  ControlArray<OptionControl, 0, 2> ivg{owner, "ivg"};
  Control popPruefung{owner, "popPruefung"};            ///< visible while the menu is open
  OptionControl popExamToggle{owner, "popExamToggle"};  ///< its value is the check mark
};

}  // namespace tonarix
