#include "config/einst_dat_save.h"
#include "config/settings_window.h"
#include "config/test_listing.h"

namespace tonarix {

void SettingsWindow::fill_levels(bool saved) {
  training_Combo.clear();
  for (const std::string& name : level_names(context_.tables, saved)) training_Combo.add(name);
}

void SettingsWindow::training_finished() {
  fill_levels(false);
  training_Combo.selected = static_cast<int>(Level::training);
  training_Combo_change();
  changed();
}

void SettingsWindow::training_saved() {
  fill_levels(true);
  training_Combo.selected = static_cast<int>(settings().Uebungsmodus);
  changed();
}

void SettingsWindow::training_Combo_change() {
  settings().Uebungsmodus = static_cast<Level>(training_Combo.selected);
  prfnr_Comb.visible = false;
  if (settings().Uebungsmodus != Level::continued) unlock();
  if (settings().Uebungsmodus == Level::continued) {
    if (training_Combo.selected_text() == kNoSavedTraining) {
      training_Combo.selected = static_cast<int>(Level::training);
      training_Combo_change();
      return;
    }
    try {
      restore();
    } catch (...) {
      restore_failed(std::current_exception());
    }
  }
  if (settings().Uebungsmodus == Level::exam) {
    prfnr_Comb.visible = true;
    prfnr_Comb_change();
  }
}

void SettingsWindow::restore() {
  StoredTraining stored = read_stored_training(context_.server, settings());
  const Settings& restored = stored.settings;
  settings().EinstSicherung = restored.EinstSicherung;
  settings().AntwSicherung = restored.AntwSicherung;
  context_.saved_training = std::move(stored.training);
  set(Choice::invzahl, restored.invzahl);
  for (std::size_t slot = 0; slot < settings().EinstSicherung.size(); ++slot) {
    const Choice choice = kSlots[slot].of(kind_);
    if (choice != Choice::none) set(choice, choice_value(restored, choice));
  }
  for (const LockRow& row : level_locks()) lock(row.frame);
  lock_tempo(true);
}

void SettingsWindow::restore_failed(std::exception_ptr error) {
  context_.errors.log("training_Combo_click.", error);
  tell(word(196_text) + " " + context_.tables.levels[static_cast<std::size_t>(Level::continued)]);
  training_Combo.selected = static_cast<int>(Level::training);
  training_Combo_change();
}

void SettingsWindow::prfnr_Comb_change() {
  settings().prfnr = static_cast<std::int16_t>(prfnr_Comb.selected + 1);
  if (!started_) return;
  const auto choices = exam_choices(kind_, settings().prfnr);
  for (const ExamChoice& exam : choices) set_choice(settings(), exam.choice, exam.value);
  for (const ExamChoice& exam : choices) set(exam.choice, exam.value);
  for (const int frame : exam_locks()) lock(frame);
  lock_tempo(true);
}

void SettingsWindow::unlock() {
  for (const LockRow& row : level_locks()) {
    grdeinst[row.frame].enabled = true;
    grdeinst[row.frame].back = row.open;
  }
  lock_tempo(false);
}

void SettingsWindow::lock(int frame) {
  grdeinst[frame].enabled = false;
  grdeinst[frame].back = signal::locked;
}

void SettingsWindow::frame_menu(int frame) {
  if (!settings().supervisor || !grdeinst[frame].open()) return;
  marked_frame_ = frame;
  popExamToggle.value = grdeinst[frame].tag == kExamMark;
  popPruefung.visible = true;
  changed();
}

void SettingsWindow::close_menu() {
  popPruefung.visible = false;
  changed();
}

void SettingsWindow::toggle_mark() {
  if (!popPruefung.visible) return;
  popPruefung.visible = false;
  popExamToggle.value = !popExamToggle.value;
  Control& frame = grdeinst[marked_frame_];
  frame.tag = popExamToggle.value ? kExamMark : "";
  frame.back = popExamToggle.value ? signal::marked : signal::open;
}

void SettingsWindow::list_test() {
  TestListing::Head head;
  head.modul = context_.server.application().executable;
  head.type = exercise_caption();
  head.description = caption;
  context_.put_listing(TestListing::write(*this, head));
}

void SettingsWindow::read_test() {
  TestListing::Target target;
  target.set_option = [this](OptionControl& option) { click(option); };
  target.set_list = [this](ListControl& list, int entry) { choose(list, entry); };
  TestListing::read(*this, TestListing::fixed_values(), target);
}

}  // namespace tonarix
