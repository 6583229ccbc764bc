#include "config/supervisor_marks.h"

#include "config/test_listing.h"

namespace tonarix {

SupervisorMarks::SupervisorMarks(SettingsControls& controls, const Settings& settings)
    : controls_(controls), settings_(settings) {
  controls_.popPruefung.visible = false;
}

void SupervisorMarks::open_menu(int frame) {
  if (!settings_.supervisor || !controls_.grdeinst[frame].open()) return;
  frame_ = frame;
  controls_.popExamToggle.value = controls_.grdeinst[frame].tag == kExamMark;
  controls_.popPruefung.visible = true;
}

void SupervisorMarks::close_menu() {
  controls_.popPruefung.visible = false;
}

void SupervisorMarks::toggle() {
  if (!controls_.popPruefung.visible) return;
  close_menu();
  OptionControl& mark = controls_.popExamToggle;
  mark.value = !mark.value;
  Control& frame = controls_.grdeinst[frame_];
  frame.tag = mark.value ? kExamMark : "";
  frame.back = mark.value ? signal::marked : signal::open;
}

}  // namespace tonarix
