#include "host/server.h"

#include <gmock/gmock.h>

#include <cmath>

#include "host/error_report.h"
#include "host/language.h"
#include "support/fake_dialogs.h"
#include "support/fake_host.h"
#include "support/key_texts.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using Array = Variant::Array;

/// What a broken host may answer where something else is expected.
const std::vector<Variant> kNonsense{
    Variant(),    Variant(true),         Variant(0.5),
    Variant(1e9), Variant(std::nan("")), Variant(""),
    Variant("?"), Variant(Array{}),      Variant(Array{Array{}, Variant()})};

struct ServerTest : testing::Test {
  FakeHost host;
  Server server{host.factory(), {"program", "Intervalle", 1, 2, 34}};
};

TEST_F(ServerTest, StartsInOrderAndWritesItsLine) {
  host.answers["STATUS"] = Array{"x", "4"};
  host.answers["MIDI"] = " 12 Synthesiser";
  const Server::Status status = server.ServerInit("vemo06");
  EXPECT_TRUE(status.running);
  EXPECT_EQ(status.number, 4);
  EXPECT_TRUE(server.supervisor());
  EXPECT_EQ(server.ServerMidi(), 12);
  ASSERT_EQ(host.calls.size(), 3u);
  EXPECT_EQ(host.calls[0].key, "STATUS");
  EXPECT_TRUE(host.calls[0].input.is_empty());
  EXPECT_EQ(host.calls[1].key, "MIDI");
  EXPECT_EQ(host.calls[2].key, "LOGMESS");
  EXPECT_EQ(host.calls[2].input.text(), "1.2.0034 Intervalle status: 4");
  EXPECT_EQ(host.calls[2].preset.text(), "Deutsch");
}

TEST_F(ServerTest, OnlyTwoRolesRun) {
  for (const int role : {0, 1, 2, 3, 4, 5, -4}) {
    host.answers["STATUS"] = Array{0, role};
    const Server::Status status = server.ServerInit("vemo06");
    EXPECT_EQ(status.running, role == 2 || role == 4) << role;
    EXPECT_EQ(status.number, role);
    EXPECT_EQ(server.supervisor(), role == 4) << role;
  }
}

TEST_F(ServerTest, AnyFailureOfTheStartIsStatusSeven) {
  for (const char* key : {"STATUS", "MIDI", "LOGMESS"}) {
    host.failing = {key};
    const Server::Status status = server.ServerInit("vemo06");
    EXPECT_FALSE(status.running) << key;
    EXPECT_EQ(status.number, 7) << key;
  }
  host.failing.clear();
  for (const Variant& answer : kNonsense) {
    host.answers["STATUS"] = answer;
    EXPECT_EQ(server.ServerInit("vemo06").number, 7);
  }
  host.answers.clear();
  host.silent = {"STATUS"};
  EXPECT_EQ(server.ServerInit("vemo06").number, 7);
  host.silent.clear();
  host.can_create = false;
  EXPECT_EQ(server.ServerInit("vemo06").number, 7);
}

TEST_F(ServerTest, AHostWithoutADeviceNumberNamesNoDevice) {
  for (const Variant& answer : {Variant(), Variant(Array{}), Variant("none"), Variant("99999")}) {
    host.answers["MIDI"] = answer;
    EXPECT_TRUE(server.ServerInit("vemo06").running);
    EXPECT_EQ(server.ServerMidi(), Server::kNoMidiDevice);
  }
}

TEST_F(ServerTest, LoginIsNeverEmptyAndKnowsWhetherAUserIsThere) {
  server.ServerInit("vemo06");
  EXPECT_THAT(server.ServerLogin(), ElementsAre("unbekannt"));
  EXPECT_FALSE(server.user_known());
  EXPECT_EQ(host.calls.back().preset, Variant(Array{"unbekannt"}));

  host.answers["LOGIN"] = Array{"Ölmann", Variant(), 4711};
  EXPECT_THAT(server.ServerLogin(), ElementsAre("Ölmann", "", "4711"));
  EXPECT_TRUE(server.user_known());

  for (const Variant& answer : kNonsense) {
    host.answers["LOGIN"] = answer;
    EXPECT_THAT(server.ServerLogin(), ElementsAre("unbekannt"));
    EXPECT_FALSE(server.user_known());
  }
  host.failing = {"LOGIN"};
  EXPECT_THAT(server.ServerLogin(), ElementsAre("Unbekannt"));
  EXPECT_TRUE(server.user_known());
}

TEST_F(ServerTest, TheHostMayChangeTheLanguageOnAnyCallButNotToNonsense) {
  server.ServerInit("vemo06");
  host.answers["LOGMESS"] = "English";
  server.ServerLogMess("line");
  EXPECT_EQ(server.ServerLang(), "English");
  EXPECT_EQ(host.calls.back().preset.text(), "English");
  for (const Variant& answer : {Variant(), Variant(2), Variant(""), Variant(Array{"x"})}) {
    host.answers["LANG"] = answer;
    EXPECT_EQ(server.ServerLang(), "English");
  }
  host.failing = {"LANG"};
  EXPECT_THROW(server.ServerLang(), RuntimeError);
}

TEST_F(ServerTest, RecordsGoOutWholeAndComeBackThroughAHostOfTheirOwn) {
  server.ServerInit("vemo06");
  const std::vector<std::string> state{"true", "", "-3"};
  server.ServerStore("A1", Variant::strings(state));
  EXPECT_EQ(host.calls.back().input, Variant(Array{"vemo06", "A1", Variant::strings(state)}));

  std::vector<std::string> target{"old"};
  EXPECT_FALSE(server.ServerRead("A2", target));
  EXPECT_THAT(target, ElementsAre("old"));
  EXPECT_TRUE(server.ServerRead("A1", target));
  EXPECT_EQ(target, state);
  EXPECT_EQ(host.created, 3);
  EXPECT_EQ(host.living, 1);
  EXPECT_EQ(host.calls.back().instance, 3);
}

TEST_F(ServerTest, WhatIsNoRecordLeavesTheTargetAlone) {
  server.ServerInit("vemo06");
  std::vector<std::string> target{"old"};
  std::vector<Variant> answers = kNonsense;
  answers.insert(answers.end(), {Variant("False"), Variant("NIL"), Variant(Array{"NIL", "1"}),
                                 Variant(Array{"true", Array{"1"}})});
  for (const Variant& answer : answers) {
    host.answers["READ"] = answer;
    EXPECT_FALSE(server.ServerRead("E1", target));
  }
  host.answers["READ"] = Array{"1"};
  host.silent = {"READ"};
  EXPECT_FALSE(server.ServerRead("E1", target));
  host.failing = {"READ"};
  EXPECT_FALSE(server.ServerRead("E1", target));
  host.can_create = false;
  EXPECT_FALSE(server.ServerRead("E1", target));
  EXPECT_THAT(target, ElementsAre("old"));
}

struct PlainWindow final : Window {
  explicit PlainWindow(Scheduler& scheduler) : Window(scheduler, "plain") {}
  void title_bar_close() override {}
  void failed(std::string_view, std::exception_ptr) override {}
};

TEST_F(ServerTest, TheEndUnloadsAllWindowsButTheFirstAndLetsTheHostGo) {
  VirtualScheduler scheduler;
  WindowList windows(scheduler);
  std::vector<Window*> unloaded;
  windows.on_unloaded = [&](Window& window) {
    EXPECT_TRUE(host.calls_of("MENUE").empty());
    unloaded.push_back(&window);
  };
  std::vector<Window*> opened;
  for (int i = 0; i < 3; ++i) {
    opened.push_back(&windows.open(std::make_unique<PlainWindow>(scheduler)));
  }
  server.ServerInit("vemo06");
  server.ServerMenue(windows);
  windows.on_unloaded = {};
  EXPECT_THAT(unloaded, ElementsAre(opened[2], opened[1]));
  EXPECT_EQ(host.calls.back().key, "MENUE");
  EXPECT_EQ(host.living, 0);
  EXPECT_THROW(server.ServerLogMess("too late"), RuntimeError);
}

struct ErrorReportTest : ServerTest {
  VirtualScheduler scheduler;
  RecordingDialogs dialogs{scheduler};
  KeyTexts texts;
  ErrorReport errors{server, texts, dialogs};
  std::exception_ptr overflow = std::make_exception_ptr(RuntimeError::overflow("mat_wahl"));
};

TEST_F(ErrorReportTest, LogsFirstThenShowsThenGoesOn) {
  server.ServerInit("vemo06");
  bool closed = false;
  errors.report("start_timer.", overflow, [&] { closed = true; });
  EXPECT_EQ(host.calls.back().input,
            Variant(Array{"vemo06.start_timer.", 6, "Overflow of a 16-bit number", "mat_wahl"}));
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].title, "Tonarix 2000");
  EXPECT_EQ(dialogs.shown[0].text, "[720]\n[721]\n[722]\n[723]");
  EXPECT_EQ(dialogs.shown[0].style, MessageStyle::warning);
  EXPECT_FALSE(closed);
  scheduler.settle();
  EXPECT_TRUE(closed);
}

TEST_F(ErrorReportTest, AnExerciseNamesItselfAndItsFailure) {
  server.ServerInit("vemo06");
  errors.report_exercise("arbeitsblatt1", "mat_wahl.", overflow);
  EXPECT_EQ(dialogs.shown.at(0).text,
            "arbeitsblatt1 mat_wahl. Overflow of a 16-bit number\n[720]\n[721]\n[722]\n[723]");
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.mat_wahl."));
  EXPECT_EQ(host.log_lines().back(), dialogs.shown.at(0).text);
}

TEST_F(ErrorReportTest, TheUserIsToldAlsoWhenTheHostFails) {
  errors.report_exercise("arbeitsblatt1", "mat_wahl.", std::make_exception_ptr(3));
  host.failing = {"LOGERR", "LOGMESS"};
  errors.report("cmdOK_click.", overflow);
  errors.log("LbEinst.", overflow, true);
  ASSERT_EQ(dialogs.shown.size(), 3u);
  EXPECT_EQ(dialogs.shown[2].title, "Warnung");
  EXPECT_EQ(dialogs.shown[2].text,
            "Es ist ein Fehler aufgetreten!\nWeitere Informationen befinden sich im LogFile");
}

struct OneWord final : LanguageObject {
  std::string Wort(const std::string& key) override {
    if (key != "700s") throw RuntimeError(RuntimeError::kOther, "unknown", "OneWord");
    return ": ";
  }
};
struct TwoLanguages final : LanguageList {
  std::vector<LanguageRow> languages() override { return {{"A", "one"}, {"B", "two"}, {"A", "x"}}; }
};

TEST(Language, ReadsVoidWhereThereIsNoText) {
  bool list_breaks = false;
  std::vector<std::string> wanted;
  Language language({[&]() -> std::unique_ptr<LanguageList> {
                       if (list_breaks) throw RuntimeError::type_mismatch("list");
                       return std::make_unique<TwoLanguages>();
                     },
                     [&](const std::string& name) -> std::unique_ptr<LanguageObject> {
                       wanted.push_back(name);
                       if (name == "tonarixlang.two") throw RuntimeError::type_mismatch("object");
                       return std::make_unique<OneWord>();
                     }});
  EXPECT_EQ(language.Wort(700_text), "VOID");
  language.SprachWahl("A");
  EXPECT_EQ(language.Wort(700_text), "VOID");
  language.SprachInit();
  EXPECT_TRUE(language.SprachAktiv());
  language.SprachWahl("A");
  EXPECT_EQ(language.Wort(700_text), ": ");
  EXPECT_EQ(language.Wort(701_text), "VOID");
  language.SprachWahl("B");
  EXPECT_EQ(language.Wort(700_text), "VOID");
  language.SprachWahl("C");
  EXPECT_EQ(language.Wort(700_text), "VOID");
  EXPECT_THAT(wanted, ElementsAre("tonarixlang.one", "tonarixlang.two"));
  list_breaks = true;
  language.SprachInit();
  EXPECT_FALSE(language.SprachAktiv());
}

}  // namespace
}  // namespace tonarix
