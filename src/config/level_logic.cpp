#include "config/level_logic.h"

#include <utility>

#include "base/module_texts.h"
#include "config/levels.h"

namespace tonarix {

namespace {

constexpr auto kTraining = static_cast<std::int16_t>(Level::training);

}  // namespace

LevelLogic::LevelLogic(const SettingsContext& context, SettingsKind kind,
                       SettingsControls& controls, Choices& choices, Frames& frames, Tell tell)
    : context_(context),
      settings_(context.settings),
      kind_(kind),
      controls_(controls),
      choices_(choices),
      frames_(frames),
      tell_(std::move(tell)) {
  controls_.prfnr_Comb.visible = false;
}

void LevelLogic::begin() {
  look_for_training();
  choices_.set(Choice::Uebungsmodus, static_cast<std::int16_t>(Level::free));
  for (int number = 1; number <= 5; ++number) {
    controls_.prfnr_Comb.add(context_.common.texts.Wort(426_text) + " " + std::to_string(number));
  }
  choices_.show(Choice::prfnr);
}

void LevelLogic::leave() {
  if (settings_.Uebungsmodus == Level::exam) give_back();
}

void LevelLogic::look_for_training() {
  fill_levels(saved_training(context_.server, settings_));
  if (saved_ == RecordRead::damaged) {
    controls_.status.text = context_.common.texts.Wort(text::saved_training_damaged);
  }
}

std::string LevelLogic::standing_line() const {
  const bool failed = saved_ == RecordRead::failed;
  return failed ? context_.common.texts.Wort(text::saved_training_not_read) : std::string();
}

void LevelLogic::look_again() {
  if (saved_ == RecordRead::found) return;
  const RecordRead before = saved_;
  const std::string line = controls_.status.text;
  look_for_training();
  if (saved_ == before && before != RecordRead::failed) controls_.status.text = line;
  choices_.show(Choice::Uebungsmodus);
}

void LevelLogic::fill_levels(RecordRead saved) {
  saved_ = saved;
  controls_.training_Combo.clear();
  for (const std::string& name : level_names(context_.tables, saved == RecordRead::found)) {
    controls_.training_Combo.add(name);
    controls_.training_Combo.items.back().gap = name == kNoSavedTraining;
  }
  controls_.status.text = standing_line();
}

void LevelLogic::training_finished() {
  fill_levels(RecordRead::none);
  choices_.set(Choice::Uebungsmodus, kTraining);
}

void LevelLogic::training_saved() {
  fill_levels(RecordRead::found);
  choices_.show(Choice::Uebungsmodus);
}

void LevelLogic::level_chosen() {
  const Level level = settings_.Uebungsmodus;
  const Level before = std::exchange(before_, level);
  if (before == Level::exam && level != Level::exam) give_back();
  controls_.prfnr_Comb.visible = level == Level::exam;
  if (level == Level::continued) {
    continue_training();
    return;
  }
  frames_.open();
  if (level == Level::exam) exam_chosen();
}

void LevelLogic::exam_chosen() {
  const auto exam = exam_choices(kind_, settings_.prfnr);
  for (const ExamChoice& preset : exam) set_choice(settings_, preset.choice, preset.value);
  for (const ExamChoice& preset : exam) choices_.set(preset.choice, preset.value);
  frames_.lock(Lock::exam, context_.common.texts.Wort(text::locked_by_exam));
}

void LevelLogic::give_back() {
  // What the student has no control for would stay as the exam left it.
  for (const ExamChoice& preset : exam_choices(kind_, settings_.prfnr)) {
    if (choices_.visible(preset.choice)) continue;
    set_default(settings_, kind_, preset.choice);
    choices_.show(preset.choice);
  }
}

void LevelLogic::continue_training() {
  if (controls_.training_Combo.selected_text() == kNoSavedTraining) {
    choices_.set(Choice::Uebungsmodus, kTraining);
    return;
  }
  try {
    restore();
  } catch (...) {
    restore_failed(std::current_exception());
  }
}

void LevelLogic::restore() {
  StoredTraining stored = read_stored_training(context_.server, settings_);
  const Settings& restored = stored.settings;
  settings_.EinstSicherung = restored.EinstSicherung;
  settings_.AntwSicherung = restored.AntwSicherung;
  context_.saved_training = std::move(stored.training);
  choices_.set(Choice::invzahl, restored.invzahl);
  for (std::size_t slot = 0; slot < settings_.EinstSicherung.size(); ++slot) {
    const Choice choice = kSlots[slot].of(kind_);
    if (choice != Choice::none) choices_.set(choice, choice_value(restored, choice));
  }
  frames_.lock(Lock::training, context_.common.texts.Wort(text::locked_by_training));
}

void LevelLogic::restore_failed(std::exception_ptr error) {
  context_.errors.log("training_Combo_click.", error);
  tell_(context_.common.texts.Wort(196_text) + " " +
        context_.tables.levels[static_cast<std::size_t>(Level::continued)]);
  choices_.set(Choice::Uebungsmodus, kTraining);
}

}  // namespace tonarix
