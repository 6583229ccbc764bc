#include "config/selection_window.h"

#include <gmock/gmock.h>

#include "support/host_bed.h"
#include "support/key_language.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

struct SelectionWindowTest : testing::Test, HostBed {
  ~SelectionWindowTest() override { windows.clear(); }
  void start() {
    window.load();
    scheduler.advance_ms(100);
  }
  void open_settings(SettingsKind kind) {
    if (settings_break) throw RuntimeError::overflow("settings");
    opened.push_back(kind);
  }

  Language language{key_languages()};
  TextTables tables;
  ErrorReport errors{server, language, dialogs};
  Settings settings;
  bool settings_break = false;
  std::function<bool(const ExerciseRow&)> offered = [](const ExerciseRow&) { return true; };
  std::vector<SettingsKind> opened;
  int quits = 0;
  SelectionWindow& window = windows.open(std::make_unique<SelectionWindow>(
      SelectionContext{{scheduler, windows, language, dialogs},
                       server,
                       language,
                       tables,
                       errors,
                       settings,
                       1000,
                       [this](SettingsKind kind) { open_settings(kind); },
                       {},
                       [this] { ++quits; },
                       [this](const ExerciseRow& row) { return offered(row); },
                       {}}));
};

TEST_F(SelectionWindowTest, StartsInOrderAndIsReady) {
  host.answers["STATUS"] = Variant::Array{0, 4};
  start();
  EXPECT_EQ(host.keys(), "STATUS MIDI LOGMESS LANG LOGIN ");
  EXPECT_TRUE(settings.supervisor && settings.klein_bildschirm);
  EXPECT_TRUE(settings.ueb_typ == ExerciseKind::determine && settings.tempo_ms[2] == 1000);
  EXPECT_EQ(window.caption + window.version.text, "[287s][700s][1003s][699s] 1.2.0034");
  EXPECT_EQ(window.ueb_typ[1].text + window.Theoriewahl[0].text + window.Theoriewahl[1].text,
            "[154s][724s][725s]");
}

TEST_F(SelectionWindowTest, AnUnwantedModuleSaysItsStatusAndEnds) {
  host.answers["STATUS"] = Variant::Array{0, 3};
  start();
  EXPECT_EQ(dialogs.shown.at(0).text, "Status 3");
  EXPECT_TRUE(quits == 1 && !window.visible && host.calls_of("LANG").empty());
}

TEST_F(SelectionWindowTest, AStartThatFailsInPartGoesOnAndSaysSoInTheLanguage) {
  host.failing = {"LANG", "LOGIN"};
  start();
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.start_timer."));
  EXPECT_EQ(dialogs.shown.at(0).text, "[720s]\n[721s]\n[722s]\n[723s]");
  EXPECT_TRUE(window.cmdOk.open());
}

TEST_F(SelectionWindowTest, OkOpensTheSettingsOfEachExerciseAlsoWhenTheHostCannotLog) {
  using Kind = SettingsKind;
  start();
  for (const auto& [study, exercise] : {std::pair{0, 1}, {0, 2}, {0, 3}, {0, 4}, {1, 3}, {1, 4}}) {
    window.show();
    window.Theoriewahl_click(0);
    window.ueb_typ_click(exercise);
    window.Theoriewahl_click(study);
    EXPECT_EQ(window.ueb_typ[3].visible, study == 0);
    EXPECT_EQ(static_cast<int>(settings.ueb_typ), study == 1 && exercise == 3 ? 1 : exercise)
        << "what a study has not";
    if (study == 1) host.failing = {"LOGMESS"};
    window.cmdOk_click();
    if (study == 1) window.cmdOk_click();  // while the failure is told
    scheduler.settle();
    EXPECT_FALSE(window.visible);
  }
  EXPECT_THAT(opened, ElementsAre(Kind::einstellung1, Kind::einstellung2, Kind::einstellung1,
                                  Kind::einstellung1, Kind::einstellung1b, Kind::einstellung1b));
  EXPECT_EQ(host.calls_of("LOGMESS").at(2).input.text(), "2; uebungs_typ=0; Theorietyp =");
}

TEST_F(SelectionWindowTest, WhatIsNotThereYetIsShownButCannotBeChosen) {
  offered = [](const ExerciseRow& row) { return row.record == "4"; };
  start();
  window.ueb_typ_click(1);
  window.Theoriewahl_click(1);
  EXPECT_EQ(exercise_row(settings).record, "4");
  EXPECT_TRUE(window.cmdOk.enabled && window.ueb_typ[1].visible);
  EXPECT_EQ(why_not_open(window.ueb_typ[1]) + why_not_open(window.ueb_typ[4]), "[1002s]");
}

TEST_F(SelectionWindowTest, SettingsThatDoNotOpenEndTheModuleOnceAlsoWhenTheHostFails) {
  start();
  settings_break = true;
  host.failing = {"MENUE"};
  dialogs.hold = true;
  window.cmdOk_click();
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.cmdOK_click."));
  dialogs.answer(Reply::ok);
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.cmdOK_click.", "vemo06.cmdEnde_click."));
  window.title_bar_close();
  EXPECT_EQ(quits, 0) << "a message is open";
  dialogs.answer(Reply::ok);
  EXPECT_EQ(host.calls_of("MENUE").size(), 1U);
  EXPECT_TRUE(quits == 1 && windows.count() == 0);
}

}  // namespace
}  // namespace tonarix
