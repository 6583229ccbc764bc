#include "config/supervisor_marks.h"

#include "config/test_listing.h"

namespace tonarix {

SupervisorMarks::SupervisorMarks(SettingsControls& controls, const Settings& settings)
    : controls_(controls), settings_(settings) {
  controls_.popPruefung.visible = false;
}

void SupervisorMarks::open_menu(int frame) {
  const Control& chosen = controls_.grdeinst[frame];
  const bool marked = chosen.tag == kExamMark;
  if (!settings_.supervisor || !chosen.visible || !(chosen.enabled || marked)) return;
  frame_ = frame;
  controls_.popExamToggle.value = marked;
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
  if (frame.enabled) frame.back = mark.value ? signal::marked : signal::open;
}

}  // namespace tonarix
