#include "config/einst_dat_save.h"
#include "config/settings_window.h"
#include "config/test_listing.h"

namespace tonarix {

namespace {

constexpr char kMessageTitle[] = "Tonarix 2000";

}  // namespace

void SettingsWindow::fill_levels(bool saved) {
  training_Combo.clear();
  for (const std::string& name : level_names(context_.tables, saved)) training_Combo.add(name);
}

void SettingsWindow::training_finished() {
  fill_levels(false);
  training_Combo.selected = level::training;
  training_Combo_change();
  changed();
}

void SettingsWindow::training_refused() {
  training_Combo.selected = level::training;
  training_Combo_change();
  settings().EinstDatSave = build_EinstDatSave();
  settings().EinstSicherung = build_EinstSicherung(settings(), kind_);
  changed();
}

void SettingsWindow::training_saved() {
  fill_levels(true);
  training_Combo.selected = settings().Uebungsmodus;
  changed();
}

void SettingsWindow::training_Combo_change() {
  settings().Uebungsmodus = static_cast<std::int16_t>(training_Combo.selected);
  prfnr_Comb.visible = false;
  if (settings().Uebungsmodus != level::continued) unlock();
  if (settings().Uebungsmodus == level::continued) {
    if (training_Combo.selected_text() == kNoSavedTraining) {
      training_Combo.selected = level::training;
      training_Combo_change();
      return;
    }
    try {
      restore();
    } catch (...) {
      restore_failed(std::current_exception());
    }
  }
  if (settings().Uebungsmodus == level::exam) {
    prfnr_Comb.visible = true;
    prfnr_Comb_change();
  }
}

void SettingsWindow::restore() {
  const std::int16_t ueb_typ = settings().ueb_typ;
  std::vector<std::string> record;
  std::vector<std::string> state;
  if (!context_.server.ServerRead(short_key('E', ueb_typ, kind_), record) ||
      !context_.server.ServerRead(short_key('A', ueb_typ, kind_), state)) {
    throw RuntimeError(RuntimeError::kHostFailure, "The saved training cannot be read",
                       "training_Combo");
  }
  check_AntwSicherung(state);
  Settings restored = read_EinstSicherung(settings(), kind_, record);
  restored.EinstSicherung = record;
  restored.AntwSicherung = state;
  if (context_.check_saved_state) context_.check_saved_state(restored);
  settings().EinstSicherung = std::move(record);
  settings().AntwSicherung = std::move(state);
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
  Message message;
  message.title = kMessageTitle;
  message.text = word(196_text) + " " + context_.tables.levels[level::continued];
  message.style = MessageStyle::warning;
  context_.dialogs.show(message, [](Reply) {});
  training_Combo.selected = level::training;
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
