#include "host/server.h"

#include <gmock/gmock.h>

#include <cmath>

#include "support/host_bed.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using Array = Variant::Array;

/// What a broken host may answer where something else is expected.
const std::vector<Variant> kNonsense{
    Variant(),    Variant(true),         Variant(0.5),
    Variant(1e9), Variant(std::nan("")), Variant(""),
    Variant("?"), Variant(Array{}),      Variant(Array{Array{}, Variant()})};

struct ServerTest : testing::Test, HostBed {
  Server::Status start() { return server.ServerInit("vemo06"); }
};

TEST_F(ServerTest, StartsInOrderForTwoRolesAndFailsAsStatusSeven) {
  host.answers = {{"STATUS", Array{"x", "4"}}, {"MIDI", " 12 Synthesiser"}};
  EXPECT_EQ(start().number, 4);
  EXPECT_EQ(server.ServerMidi(), 12);
  EXPECT_EQ(host.keys(), "STATUS MIDI LOGMESS ");
  EXPECT_EQ(host.calls[2].input.text(), "1.2.0034 Intervalle status: 4");
  EXPECT_EQ(host.calls[2].preset.text(), "Deutsch");
  for (const int role : {0, 1, 2, 3, 4, 5, -4}) {
    host.answers = {{"STATUS", Array{0, role}}, {"MIDI", role < 0 ? "none" : "99999"}};
    EXPECT_EQ(start().running, role == 2 || role == 4) << role;
    EXPECT_EQ(server.supervisor(), role == 4) << role;
    EXPECT_EQ(server.ServerMidi(), Server::kNoMidiDevice);
  }
  for (const char* key : {"STATUS", "MIDI", "LOGMESS"}) {
    host.failing = {key};
    EXPECT_EQ(start().number, 7) << key;
  }
  host.failing.clear();
  for (const Variant& answer : kNonsense) {
    host.answers["STATUS"] = answer;
    EXPECT_EQ(start().number, 7);
  }
  host.answers.clear();
  host.can_create = false;
  EXPECT_EQ(start().number, 7);
}

TEST_F(ServerTest, LoginAndLanguageAreNeverEmptyWhateverTheHostAnswers) {
  host.answers["LOGMESS"] = "English";  // the language may change with any call
  start();
  host.answers["LOGIN"] = Array{"Ölmann", Variant(), 4711};
  EXPECT_THAT(server.ServerLogin(), ElementsAre("Ölmann", "", "4711"));
  EXPECT_TRUE(server.user_known());
  for (const Variant& answer : kNonsense) {
    host.answers["LOGIN"] = answer;
    EXPECT_THAT(server.ServerLogin(), ElementsAre("unbekannt"));
    EXPECT_FALSE(server.user_known());
    host.answers["LANG"] = answer.is_text() ? Variant("") : answer;
    EXPECT_EQ(server.ServerLang(), "English");
  }
  host.failing = {"LOGIN"};
  EXPECT_THAT(server.ServerLogin(), ElementsAre("Unbekannt"));
  EXPECT_TRUE(server.user_known());
}

TEST_F(ServerTest, RecordsComeBackWholeThroughAHostOfTheirOwnOrNotAtAll) {
  start();
  const std::vector<std::string> state{"true", "", "-3"};
  server.ServerStore("A1", Variant::strings(state));
  std::vector<std::string> target{"old"};
  EXPECT_FALSE(server.ServerRead("A2", target));
  std::vector<Variant> answers = kNonsense;
  answers.insert(answers.end(), {"False", "NIL", Array{"NIL", "1"}, Array{"true", Array{"1"}}});
  for (const Variant& answer : answers) {
    host.answers["READ"] = answer;
    EXPECT_FALSE(server.ServerRead("A1", target));
    const bool says_none = answer == Variant(Array{"NIL", "1"});
    EXPECT_EQ(server.read_record("A1", target), says_none ? RecordRead::none : RecordRead::damaged);
  }
  host.answers.clear();
  EXPECT_EQ(server.read_record("A2", target), RecordRead::none);
  host.failing = {"READ"};
  EXPECT_EQ(server.read_record("A1", target), RecordRead::failed) << "a failing host has no say";
  host.failing.clear();
  host.can_create = false;
  EXPECT_EQ(server.read_record("A1", target), RecordRead::failed);
  host.can_create = true;
  EXPECT_THAT(target, ElementsAre("old"));
  EXPECT_TRUE(server.ServerRead("A1", target));
  EXPECT_EQ(target, state);
  EXPECT_EQ(host.living, 1);
  EXPECT_EQ(host.calls.back().instance, host.created);
}

struct PlainWindow final : Window {
  using Window::Window;
  void close_requested() override {}
  void failed(std::string_view, std::exception_ptr) override {}
};

TEST_F(ServerTest, TheEndUnloadsAllWindowsButTheFirstAndLetsTheHostGo) {
  for (int i = 0; i < 3; ++i) windows.open(std::make_unique<PlainWindow>(common, "plain"));
  const Window* first = windows.at(0);
  start();
  server.ServerMenue(windows);
  EXPECT_EQ(windows.newest(), first);
  EXPECT_EQ(host.keys(), "STATUS MIDI LOGMESS MENUE ");
  EXPECT_EQ(host.living, 0);
  EXPECT_THROW(server.ServerLogMess("too late"), RuntimeError);
}

TEST_F(ServerTest, AFailureIsLoggedThenShownAlsoWhenTheHostFails) {
  start();
  const auto overflow = std::make_exception_ptr(RuntimeError::overflow("mat_wahl"));
  bool closed = false;
  errors.report("start_timer.", overflow, [&] { closed = true; });
  EXPECT_EQ(host.calls.back().input,
            Variant(Array{"vemo06.start_timer.", 6, "Overflow of a 16-bit number", "mat_wahl"}));
  EXPECT_FALSE(closed);
  scheduler.settle();
  EXPECT_TRUE(closed);
  errors.report_exercise("arbeitsblatt1", "mat_wahl.", overflow);
  EXPECT_EQ(dialogs.shown.at(1).text,
            "arbeitsblatt1 mat_wahl. Overflow of a 16-bit number\n[720]\n[721]\n[722]\n[723]");
  EXPECT_EQ(host.calls.back().input.text(), dialogs.shown[1].text);
  host.failing = {"LOGERR", "LOGMESS"};
  errors.report_exercise("arbeitsblatt1", "mat_wahl.", std::make_exception_ptr(3));
  errors.log("LbEinst.", overflow, true);
  EXPECT_EQ(dialogs.shown.at(3).title, "Warnung");
}

}  // namespace
}  // namespace tonarix
