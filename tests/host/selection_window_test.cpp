#include "host/selection_window.h"

#include <gmock/gmock.h>

#include "support/fake_dialogs.h"
#include "support/fake_host.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

struct KeyLanguage final : LanguageObject, LanguageList {
  std::vector<LanguageRow> languages() override { return {{"Deutsch", "deutsch"}}; }
  std::string Wort(const std::string& key) override { return "[" + key + "]"; }
};

struct SelectionWindowTest : testing::Test {
  SelectionWindowTest() {
    windows.on_unloaded = [this](Window& unloaded) { gone = gone || &unloaded == &window; };
  }
  void start() {
    window.load();
    scheduler.advance_ms(100);
  }
  SelectionContext context() {
    return {.scheduler = scheduler,
            .windows = windows,
            .server = server,
            .language = language,
            .tables = tables,
            .errors = errors,
            .dialogs = dialogs,
            .fields = {Theoriewahl, ueb_typ, tempo_ms, supervisor, klein_bildschirm},
            .tempo_beats = {30, 20, 10},
            .screen_width = 1000,
            .open_settings =
                [this](SettingsWindowKind kind) {
                  if (settings_break) throw RuntimeError::overflow("settings");
                  opened.push_back(kind);
                },
            .show_help = [this] { ++helped; },
            .quit = [this] { ++quits; },
            .available = [this](int study, int exercise) { return offered(study, exercise); },
            .join_companion = [this](Host&) { ++companions; }};
  }

  VirtualScheduler scheduler;
  FakeHost host;
  Server server{host.factory(), {"vemo06", "Intervalle", 1, 0, 0}};
  Language language{{[] { return std::make_unique<KeyLanguage>(); },
                     [](const std::string&) { return std::make_unique<KeyLanguage>(); }}};
  TextTables tables;
  RecordingDialogs dialogs{scheduler};
  ErrorReport errors{server, language, dialogs};
  std::int16_t Theoriewahl = 0;
  std::int16_t ueb_typ = 3;
  std::array<std::int16_t, 10> tempo_ms{};
  bool supervisor = false;
  bool klein_bildschirm = false;
  bool settings_break = false;
  std::function<bool(int, int)> offered = [](int, int) { return true; };
  std::vector<SettingsWindowKind> opened;
  int helped = 0;
  int quits = 0;
  int companions = 0;
  bool gone = false;
  WindowList windows{scheduler};
  SelectionWindow& window = windows.open(std::make_unique<SelectionWindow>(context()));
};

TEST_F(SelectionWindowTest, StartsInOrderAndIsReady) {
  host.answers["STATUS"] = Variant::Array{0, 4};
  start();
  std::string keys;
  for (const FakeHost::Call& call : host.calls) keys += call.key + " ";
  EXPECT_EQ(keys, "STATUS MIDI LOGMESS LANG LOGIN ");
  EXPECT_EQ(companions, 1);
  EXPECT_TRUE(supervisor);
  EXPECT_TRUE(klein_bildschirm);
  EXPECT_EQ(ueb_typ, 1);
  EXPECT_TRUE(window.ueb_typ[1].value);
  EXPECT_TRUE(window.Theoriewahl[0].value);
  EXPECT_THAT(tempo_ms, ElementsAre(30, 20, 10, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(window.caption, "[287s][700s][1003s]");
  EXPECT_EQ(window.version.text, "[699s] 1.0.0000");
  EXPECT_EQ(window.chosen_exercise(), "[154s]");
  EXPECT_EQ(tables.exercise_kind(4), "[715s]");
  window.cmdHilfe_click();
  EXPECT_EQ(helped, 1);
}

TEST_F(SelectionWindowTest, AnUnwantedModuleSaysItsStatusAndEnds) {
  host.answers["STATUS"] = Variant::Array{0, 3};
  dialogs.hold = true;
  start();
  EXPECT_FALSE(window.visible);
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].text, "Status 3");
  EXPECT_EQ(quits, 0);
  dialogs.answer(Reply::ok);
  EXPECT_EQ(quits, 1);
  EXPECT_TRUE(host.calls_of("LANG").empty());
}

TEST_F(SelectionWindowTest, AStartThatFailsInPartGoesOnAndSaysSoInTheLanguage) {
  host.failing = {"LANG", "LOGIN"};
  start();
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.start_timer."));
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].text, "[720s]\n[721s]\n[722s]\n[723s]");
  EXPECT_TRUE(window.cmdOk.open());
}

TEST_F(SelectionWindowTest, TheoryHidesWhatItHasNot) {
  start();
  window.ueb_typ_click(3);
  EXPECT_EQ(ueb_typ, 3);
  window.Theoriewahl_click(1);
  EXPECT_EQ(Theoriewahl, 1);
  EXPECT_FALSE(window.ueb_typ[2].visible);
  EXPECT_FALSE(window.ueb_typ[3].visible);
  EXPECT_TRUE(window.ueb_typ[4].visible);
  EXPECT_EQ(ueb_typ, 1);
  window.ueb_typ_click(4);
  window.Theoriewahl_click(0);
  EXPECT_TRUE(window.ueb_typ[3].visible);
  EXPECT_EQ(ueb_typ, 4);
  window.Theoriewahl_click(1);
  EXPECT_EQ(ueb_typ, 4);
}

TEST_F(SelectionWindowTest, OkOpensTheSettingsOfEachExercise) {
  using Kind = SettingsWindowKind;
  start();
  const auto press = [&](int study, int exercise) {
    window.show();
    window.Theoriewahl_click(study);
    window.ueb_typ_click(exercise);
    window.cmdOk_click();
    EXPECT_FALSE(window.visible);
  };
  for (const int exercise : {1, 2, 3, 4}) press(0, exercise);
  for (const int exercise : {1, 4}) press(1, exercise);
  EXPECT_THAT(opened, ElementsAre(Kind::einstellung1, Kind::einstellung2, Kind::einstellung1,
                                  Kind::einstellung1, Kind::einstellung1b, Kind::einstellung1b));
  EXPECT_EQ(host.log_lines().at(2), "2; uebungs_typ=0; Theorietyp =");
}

TEST_F(SelectionWindowTest, WhatIsNotThereYetIsShownButCannotBeChosen) {
  offered = [](int study, int exercise) { return study == 0 && exercise == 4; };
  start();
  EXPECT_EQ(ueb_typ, 4);
  EXPECT_TRUE(window.cmdOk.enabled);
  EXPECT_TRUE(window.ueb_typ[1].visible);
  EXPECT_FALSE(window.ueb_typ[1].enabled);
  EXPECT_EQ(window.ueb_typ[1].accessible_name, "[154s], [1002s]");
  EXPECT_FALSE(window.Theoriewahl[1].enabled);
  window.ueb_typ_click(1);
  window.Theoriewahl_click(1);
  EXPECT_EQ(ueb_typ, 4);
  EXPECT_EQ(Theoriewahl, 0);
}

TEST_F(SelectionWindowTest, SettingsThatDoNotOpenEndTheModule) {
  start();
  settings_break = true;
  dialogs.hold = true;
  window.cmdOk_click();
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.cmdOK_click."));
  EXPECT_EQ(quits, 0);
  dialogs.answer(Reply::ok);
  EXPECT_EQ(host.calls.back().key, "MENUE");
  EXPECT_TRUE(gone);
  EXPECT_EQ(quits, 1);
}

TEST_F(SelectionWindowTest, AHostThatCannotLogDoesNotKeepTheStudentFromTheExercise) {
  start();
  host.failing = {"LOGMESS"};
  window.cmdOk_click();
  window.cmdOk_click();
  scheduler.settle();
  EXPECT_THAT(opened, ElementsAre(SettingsWindowKind::einstellung1));
  EXPECT_EQ(dialogs.shown.size(), 1u);
}

TEST_F(SelectionWindowTest, BothWaysOutGiveTheHostControlBackOnce) {
  start();
  window.cmdEnde_click();
  window.title_bar_close();
  scheduler.settle();
  EXPECT_EQ(host.calls_of("MENUE").size(), 1u);
  EXPECT_EQ(quits, 1);
  EXPECT_TRUE(gone);
}

TEST_F(SelectionWindowTest, AHostThatFailsAtTheEndIsToldAboutAndLeft) {
  start();
  host.failing = {"MENUE"};
  window.title_bar_close();
  scheduler.settle();
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.cmdEnde_click."));
  EXPECT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(quits, 1);
}

}  // namespace
}  // namespace tonarix
