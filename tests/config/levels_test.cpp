#include <gmock/gmock.h>

#include "config/settings_bed.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

const std::vector<std::string> kSaved{"1", "3", "1", "2", "0", "0", "1", "2",
                                      "1", "",  "1", "1", "1", "2", "4"};

std::vector<std::string> entries(const ListControl& list) {
  std::vector<std::string> texts;
  for (const ListControl::Item& item : list.items) texts.push_back(item.text);
  return texts;
}

std::vector<int> locked_frames(const Einstellung1& window) {
  std::vector<int> frames;
  for (const Control& frame : window.grdeinst) {
    EXPECT_EQ(frame.enabled, frame.back != signal::locked) << *frame.index();
    if (!frame.enabled) frames.push_back(*frame.index());
  }
  return frames;
}

TEST(Levels, OffersASavedTrainingOnlyWithBothRecordsAndAValidState) {
  struct Case {
    bool settings, state;
    std::string flag;
    bool offered;
  };
  for (const Case& one : {Case{false, false, "true", false}, Case{true, false, "true", false},
                          Case{false, true, "true", false}, Case{true, true, "True", false},
                          Case{true, true, "False", false}, Case{true, true, "true", true}}) {
    SettingsBed bed;
    if (one.settings) bed.store("E1", kSaved);
    if (one.state) bed.store("A1", {one.flag, "1", "4", "1", "2", "-16", "0", "3", "5"});
    Einstellung1& window = bed.open();
    EXPECT_EQ(window.training_Combo.items[2].text, one.offered ? "[565]" : "---------------");
    if (one.offered) continue;
    bed.choose_level(2);
    EXPECT_EQ(bed.settings.Uebungsmodus, 1);
    EXPECT_EQ(window.training_Combo.selected, 1);
    EXPECT_TRUE(bed.dialogs.shown.empty());
  }
}

TEST(Levels, GoesOnWithTheSavedSettingsAndLocksThem) {
  SettingsBed bed;
  bed.store_training(kSaved);
  Einstellung1& window = bed.open();
  bed.choose_level(2);
  EXPECT_EQ(bed.settings.Uebungsmodus, 2);
  EXPECT_EQ(build_EinstSicherung(bed.settings, SettingsKind::einstellung1), kSaved);
  EXPECT_EQ(bed.settings.AntwSicherung.size(), 9U);
  EXPECT_EQ(bed.settings.tonraum_min, 36);
  EXPECT_EQ(bed.settings.tonraum_max, 84);
  EXPECT_TRUE(window.tongeschl[2].value);
  EXPECT_TRUE(window.stimm_g[2].value);
  EXPECT_EQ(window.temp_Combo.selected, 3);
  EXPECT_EQ(window.Combo_tonraum.selected, 0);
  EXPECT_TRUE(window.degree_list.visible);
  EXPECT_EQ(window.degree_list.selected, 4);
  EXPECT_THAT(locked_frames(window), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13));
  EXPECT_FALSE(window.temp_Combo.enabled);
  EXPECT_EQ(window.temp_Combo.fore, signal::locked);
  window.click(window.tongeschl[2]);
  window.click(window.Tonart[0]);
  EXPECT_EQ(bed.settings.Tonart, 1) << "locked";

  bed.choose_level(3);
  EXPECT_TRUE(locked_frames(window).empty());
  EXPECT_EQ(window.grdeinst[5].back, signal::open);
  EXPECT_EQ(window.grdeinst[12].back, signal::sound);
  EXPECT_EQ(window.temp_Combo.fore, blue_green_red(0xFF0000));
}

TEST(Levels, ABrokenRecordIsToldAndLeadsToLevelOne) {
  const std::vector<std::string> state{"true", "1", "4", "1", "2", "-16", "0", "3", "5"};
  std::vector<std::string> text = kSaved;
  text[7] = "Dur";
  const std::vector<std::string> half(kSaved.begin(), kSaved.begin() + 6);
  struct Case {
    std::vector<std::string> settings, state;
  };
  for (const Case& one : {Case{text, state}, Case{half, state}, Case{kSaved, {"true"}},
                          Case{kSaved, {"true", "1", "4", "1"}}, Case{{}, state}}) {
    SettingsBed bed;
    bed.store("E1", one.settings);
    bed.store("A1", one.state);
    Einstellung1& window = bed.open();
    if (window.training_Combo.items[2].text != "[565]") continue;
    const auto stores = bed.host.calls_of("STORE").size();
    bed.choose_level(2);
    EXPECT_EQ(bed.settings.Uebungsmodus, 1);
    EXPECT_EQ(window.training_Combo.selected, 1);
    ASSERT_EQ(bed.dialogs.shown.size(), 1U);
    EXPECT_EQ(bed.dialogs.shown[0].text, "[196] [565]");
    EXPECT_EQ(bed.dialogs.shown[0].style, MessageStyle::warning);
    EXPECT_TRUE(locked_frames(window).empty());
    EXPECT_EQ(bed.settings.tongeschl, 0) << "nothing half restored";
    EXPECT_EQ(bed.host.calls_of("STORE").size(), stores);
  }
}

TEST(Levels, AStateThatDoesNotFitItsSettingsIsRefused) {
  SettingsBed bed;
  bed.store_training(kSaved);
  bed.check_saved_state = [](const Settings& restored) {
    EXPECT_EQ(restored.tongeschl, 2);
    throw RuntimeError::index_out_of_range("box");
  };
  bed.open();
  bed.choose_level(2);
  EXPECT_EQ(bed.settings.Uebungsmodus, 1);
  EXPECT_TRUE(bed.settings.AntwSicherung.empty());
}

TEST(Levels, ATrainingKeepsItsSettingsAndATestItsOrder) {
  SettingsBed bed;
  Einstellung1& window = bed.open();
  bed.choose_level(1);
  window.click(window.ton_st_wahl[1]);
  window.click(window.cmdOk);
  EXPECT_EQ(bed.settings.EinstSicherung.size(), 15U);
  EXPECT_EQ(bed.settings.EinstDatSave[0], "32");
  EXPECT_EQ(bed.settings.EinstDatSave.back(), "[450]/[433]");
  window.show_again();
  bed.choose_level(3);
  window.click(window.cmdOk);
  EXPECT_EQ(bed.settings.abfrage, 1);
  EXPECT_TRUE(window.abfrage[1].value);
  EXPECT_THAT(bed.settings.EinstDatSave, testing::Contains("[1066]")) << "the order in force";
}

TEST(Levels, AnExamSetsAndLocksWhatItGoverns) {
  SettingsBed bed;
  Einstellung1& window = bed.open();
  window.click(window.ton_st_wahl[1]);
  bed.choose_level(4);
  EXPECT_TRUE(window.prfnr_Comb.visible);
  window.choose(window.prfnr_Comb, 4);
  EXPECT_EQ(bed.settings.prfnr, 5);
  EXPECT_EQ(window.temp_Combo.selected, 3);
  EXPECT_TRUE(window.invzahl[3].value);
  EXPECT_TRUE(window.tongeschl[2].value);
  EXPECT_TRUE(window.abfr_iv[1].value);
  EXPECT_TRUE(window.abfrage[1].value);
  EXPECT_TRUE(window.ton_st_wahl[0].value);
  EXPECT_FALSE(window.degree_list.visible);
  EXPECT_THAT(locked_frames(window), ElementsAre(4, 5, 6, 7, 8, 12));
  window.click(window.cmdOk);
  EXPECT_EQ(bed.settings.EinstDatSave[3], "Nr.:");
  EXPECT_EQ(bed.settings.EinstDatSave[4], "[426] 5");
  window.show_again();
  bed.choose_level(0);
  EXPECT_FALSE(window.prfnr_Comb.visible);
  EXPECT_TRUE(locked_frames(window).empty());
}

TEST(Levels, TheListFollowsTheExercise) {
  SettingsBed bed;
  bed.store_training(kSaved);
  Einstellung1& window = bed.open();
  bed.choose_level(2);
  window.training_finished();
  EXPECT_THAT(entries(window.training_Combo),
              ElementsAre("[136]", "[564]", "---------------", "[550]", "[438]"));
  EXPECT_EQ(window.training_Combo.selected, 1);
  EXPECT_EQ(bed.settings.Uebungsmodus, 1);
  EXPECT_TRUE(locked_frames(window).empty());
  window.training_saved();
  EXPECT_THAT(entries(window.training_Combo),
              ElementsAre("[136]", "[564]", "[565]", "[550]", "[438]"));
  EXPECT_EQ(window.training_Combo.selected, 1);
}

}  // namespace
}  // namespace tonarix
