#include <gmock/gmock.h>

#include "config/settings_bed.h"
#include "settings/offered_intervals.h"
#include "settings/saved_settings.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

const std::vector<std::string> kSaved{"1", "3", "1", "2", "0", "0", "1", "2",
                                      "1", "",  "1", "1", "1", "2", "4"};

/// The same for forming a tone.
const std::vector<std::string> kSavedForming{"1", "3", "1", "2", "0", "1", "2", "1",
                                             "",  "1", "0", "2", "1", "3", "4"};

/// The state of a training just begun that fits the record: a degree of Dur-moll.
std::vector<std::string> begun_state(SettingsKind kind, const std::vector<std::string>& record) {
  const Settings settings = read_EinstSicherung({}, kind, record);
  Key key;
  build_scale(key, settings.tongeschl, settings.abfr_iv);
  SavedTraining training{{}, 3, 5};
  for (const std::int16_t value : offered_intervals(settings, key)) {
    training.rows.push_back({{value, 4}, {}});
  }
  return to_record(training, settings);
}
const std::vector<std::string> kState = begun_state(SettingsKind::einstellung1, kSaved);

std::vector<int> locked_frames(const SettingsWindow& window) {
  std::vector<int> frames;
  for (const Control& frame : window.grdeinst) {
    EXPECT_EQ(frame.enabled, frame.back != signal::locked) << *frame.index();
    if (!frame.enabled) frames.push_back(*frame.index());
  }
  return frames;
}

TEST(Levels, GoesOnWithTheSavedSettingsAndLocksThem) {
  for (const ExerciseKind exercise : {ExerciseKind::determine, ExerciseKind::build}) {
    SettingsBed bed(exercise);
    const SettingsKind kind = exercise_row(bed.settings).settings;
    const auto& saved = kind == SettingsKind::einstellung1 ? kSaved : kSavedForming;
    const auto state = begun_state(kind, saved);
    bed.store(record_key('E', bed.settings), saved);
    bed.store(record_key('A', bed.settings), state);
    EarSettingsWindow& window = bed.open_own();
    bed.choose_level(2);
    EXPECT_EQ(bed.settings.Uebungsmodus, Level::continued);
    EXPECT_EQ(build_EinstSicherung(bed.settings, kind), saved);
    EXPECT_EQ(bed.settings.AntwSicherung, state);
    EXPECT_EQ(window.temp_Combo.selected, 3);
    EXPECT_TRUE(window.degree_list.visible && window.degree_list.selected == 4);
    EXPECT_THAT(locked_frames(window), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13));
    EXPECT_TRUE(!window.temp_Combo.enabled && window.temp_Combo.fore == signal::locked);
    window.click(window.Tonart[0]);
    EXPECT_EQ(bed.settings.Tonart, 1) << "locked";
    EXPECT_EQ(why_not_open(window.Tonart[0]), "[1035]");

    bed.choose_level(3);
    EXPECT_TRUE(locked_frames(window).empty());
    EXPECT_EQ(window.grdeinst[12].back, signal::sound);
    EXPECT_EQ(window.temp_Combo.fore, blue_green_red(0xFF0000));
  }
}

// What a state without its flag does, the flow tests show.
TEST(Levels, HalfATrainingIsNotOfferedAndABrokenOneToldAndLevelOneChosen) {
  using Record = std::vector<std::string>;
  Record text = kSaved, other_mode = kSaved;  // whole records, but not of one exercise
  text[7] = "Dur";
  other_mode[7] = "1";
  const std::pair<Record, Record> records[] = {{kSaved, {}},       {{}, kState},
                                               {text, kState},     {{"1", "3"}, kState},
                                               {kSaved, {"true"}}, {other_mode, kState}};
  for (const auto& [settings, state] : records) {
    const bool offered = !settings.empty() && !state.empty();
    SettingsBed bed;
    if (!settings.empty()) bed.store("E1", settings);
    if (!state.empty()) bed.store("A1", state);
    Einstellung1& window = bed.open();
    EXPECT_EQ(window.training_Combo.items[2].text, offered ? "[565]" : "---------------");
    EXPECT_EQ(window.training_Combo.items[2].gap, !offered);
    bed.choose_level(2);
    EXPECT_TRUE(bed.settings.Uebungsmodus == Level::training &&
                window.training_Combo.selected == 1);
    std::string told;
    for (const Message& message : bed.dialogs.shown) told += message.text;
    EXPECT_EQ(told, offered ? "[196] [565]" : "");
    EXPECT_TRUE(locked_frames(window).empty() && bed.settings.AntwSicherung.empty());
    EXPECT_EQ(bed.settings.tongeschl, 0) << "nothing half restored";
    EXPECT_TRUE(bed.host.calls_of("STORE").empty());
  }
}

TEST(Levels, ATrainingThatCannotBeReadNowIsToldAndOfferedAgainWhenItCan) {
  for (const bool shown_again : {false, true}) {
    SettingsBed bed;
    bed.store("E1", kSaved);
    bed.store("A1", kState);
    bed.host.failing = {"READ"};
    Einstellung1& window = bed.open();
    const auto look = [&] {
      shown_again ? window.show_again() : window.open_list(window.training_Combo);
    };
    for (const bool readable : {false, true}) {
      if (readable) bed.host.failing.clear();
      bed.choose_level(3);
      EXPECT_EQ(window.status.text, "[1037]") << "until it is read";
      look();
      EXPECT_EQ(window.training_Combo.items[2].text, readable ? "[565]" : "---------------");
      EXPECT_EQ(window.status.text, readable ? "" : "[1037]");
      EXPECT_EQ(window.training_Combo.selected, 3);
    }
    const std::size_t reads = bed.host.calls_of("READ").size();
    look();
    EXPECT_EQ(bed.host.calls_of("READ").size(), reads);
  }
}

TEST(Levels, ATrainingStoredWhileTheWindowStandsIsOfferedWhenTheListIsOpened) {
  SettingsBed bed;
  Einstellung1& window = bed.open();
  window.open_list(window.training_Combo);
  EXPECT_EQ(window.training_Combo.items[2].text, "---------------");
  bed.store("E1", kSaved);
  bed.store("A1", kState);
  window.open_list(window.training_Combo);
  EXPECT_EQ(window.training_Combo.items[2].text, "[565]");
  EXPECT_EQ(window.training_Combo.selected, 0);
}

TEST(Levels, ADamagedRecordIsToldOnceWhenTheTrainingIsLookedFor) {
  for (const char* key : {"E1", "A1"}) {
    for (const auto& other : {kState, {"False"}, {}}) {
      SettingsBed bed;
      if (!other.empty()) bed.store("A1", other);
      if (other != kState) bed.store("E1", kSaved);
      bed.records[std::string("vemo06/") + key] = "no array";
      Einstellung1& window = bed.open();
      // Beside a state that is used up, or beside nothing, there was none to lose.
      const bool lost = key[0] == 'A' ? other != kState : other == kState;
      EXPECT_EQ(window.status.text, lost ? "[1038]" : "") << key << other.size();
      EXPECT_EQ(window.training_Combo.items[2].text, "---------------");
      bed.choose_level(1);
      window.show_again();
      EXPECT_EQ(window.status.text, "");
    }
  }
}

TEST(Levels, ATrainingKeepsItsSettingsATestItsOrderAndAnExamLocksWhatItGoverns) {
  const std::pair<ExerciseKind, const char*> cases[] = {{ExerciseKind::determine, "32"},
                                                        {ExerciseKind::build, "34"}};
  for (const auto& [exercise, pairs] : cases) {
    SettingsBed bed(exercise);
    EarSettingsWindow& window = bed.open_own();
    const SettingsKind kind = exercise_row(bed.settings).settings;
    const auto accept = [&] {
      window.click(window.cmdOk);
      window.show_again();
    };
    bed.choose_level(1);
    window.click(window.ton_st_wahl[1]);
    accept();
    EXPECT_EQ(bed.settings.EinstSicherung.size(), 15U);
    EXPECT_EQ(bed.settings.EinstDatSave[0], pairs);
    EXPECT_EQ(bed.settings.EinstDatSave.back(), "[450]/[433]");
    bed.choose_level(3);
    accept();
    EXPECT_EQ(bed.settings.abfrage, 1);
    EXPECT_THAT(bed.settings.EinstDatSave, testing::Contains("[1066]")) << "the order in force";
    bed.choose_level(4);
    for (int exam = 5; exam >= 1; --exam) {
      window.choose(window.prfnr_Comb, exam - 1);
      EXPECT_THAT(locked_frames(window), ElementsAre(4, 5, 6, 7, 8, 12));
      for (const ExamChoice& preset : exam_choices(kind, exam)) {
        EXPECT_EQ(choice_value(bed.settings, preset.choice), preset.value);
        const Choices::Row* row = window.choices().find(preset.choice);
        EXPECT_EQ(why_not_open(row->control()), "[1034]");
        const int shown = row->list ? row->list->selected : -1;
        EXPECT_TRUE(shown == preset.value ||
                    row->options[preset.value - *row->options[0].index()].value);
      }
    }
    accept();
    EXPECT_EQ(bed.settings.EinstDatSave[4], "[426] 1");
    bed.choose_level(0);
    EXPECT_TRUE(!window.prfnr_Comb.visible && locked_frames(window).empty());
  }
}

/// A window with nothing of its own: an exam's intervals and naming have no control here.
struct BareWindow final : SettingsWindow {
  static constexpr Choice kPairs[] = {Choice::prfnr, Choice::abfrage, Choice::invzahl};
  explicit BareWindow(const SettingsContext& context)
      : SettingsWindow(context, {SettingsKind::einstellung1b, "bare", {}, kPairs}) {}
};

TEST(Levels, WhatOnlyAnExamCanSetGoesBackWithIt) {
  for (const bool theory : {false, true}) {
    for (const bool leave : {false, true}) {
      SettingsBed bed(ExerciseKind::write);
      bed.settings.Theoriewahl = theory ? Study::theory : Study::ear;
      SettingsWindow& window =
          theory ? static_cast<SettingsWindow&>(bed.open<BareWindow>()) : bed.open();
      const Naming before = bed.settings.abfr_iv;
      window.choose(window.training_Combo, 4);
      window.choose(window.prfnr_Comb, theory ? 1 : 4);
      EXPECT_NE(bed.settings.abfr_iv, before);
      window.click(window.cmdOk);
      window.show_again();
      leave ? window.title_bar_close() : window.choose(window.training_Combo, 1);
      EXPECT_EQ(bed.settings.abfr_iv, before);
      EXPECT_EQ(bed.settings.invzahl, theory ? 1 : 3) << "by ear the student can change it";
      if (!theory) continue;
      EXPECT_THAT(bed.settings.EinstDatSave,
                  ElementsAre("6", "Nr.:", "[426] 2", "Abfolge", "[1066]", "Iv-Anzahl", "2"));
    }
  }
}

}  // namespace
}  // namespace tonarix
