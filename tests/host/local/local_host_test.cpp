#include "host/local/local_host.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include "host/local/record_format.h"
#include "support/temporary_folder.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct FixedClock final : WallClock {
  CivilTime now() const override { return {2026, 11, 21, 9, 5, 32}; }
};

struct LocalHostTest : testing::Test {
  LocalHostOptions options(std::optional<std::string> user = "Öl; Anna ;4711") {
    LocalHostOptions result;
    result.folder = folder.path / "data";
    result.user = std::move(user);
    result.role = 4;
    result.language = "English";
    result.midi = 3;
    result.patience_ms = 0;
    return result;
  }
  std::string log() const { return folder.content("data/host.log"); }

  TemporaryFolder folder;
  FixedClock clock;
};

TEST_F(LocalHostTest, AnswersEveryKey) {
  LocalHostHome home(options(), clock);
  EXPECT_TRUE(home.problems().empty());
  int menus = 0;
  home.on_menue = [&] { ++menus; };
  VirtualScheduler scheduler;
  WindowList windows(scheduler);
  Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
  EXPECT_EQ(server.ServerInit("vemo06").number, 4);
  EXPECT_EQ(server.ServerMidi(), 3);
  EXPECT_EQ(server.ServerLang(), "English");
  EXPECT_THAT(server.ServerLogin(), ElementsAre("Öl", "Anna", "4711"));
  server.ServerLogMess("two\nlines");
  server.ServerLogErr("mat_wahl.", RuntimeError::overflow("draw"));
  server.ServerMenue(windows);
  EXPECT_EQ(menus, 1);
  EXPECT_EQ(log(),
            "2026-11-21 09:05:32 1.0.0000 Intervalle status: 4\n"
            "2026-11-21 09:05:32 two | lines\n"
            "2026-11-21 09:05:32 ERROR vemo06.mat_wahl. 6 Overflow of a 16-bit number (draw)\n"
            "2026-11-21 09:05:32 menu\n");
}

TEST_F(LocalHostTest, NobodyIsLoggedOnWithoutAName) {
  for (const auto& user : {std::optional<std::string>(), std::optional<std::string>("  ")}) {
    LocalHostHome home(options(user), clock);
    Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
    server.ServerInit("vemo06");
    EXPECT_THAT(server.ServerLogin(), ElementsAre("unbekannt"));
  }
}

TEST_F(LocalHostTest, EachUserFindsOwnRecordsInTheNextRun) {
  const std::vector<std::string> state{"true", "", "\"\\\n\x01", "ß♯𝄞", "-1.5"};
  for (const char* user : {"A;a;1", "B;b;2"}) {
    LocalHostHome home(options(user), clock);
    Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
    server.ServerInit("vemo06");
    std::vector<std::string> target;
    EXPECT_FALSE(server.ServerRead("A1", target)) << user;
    server.ServerStore("A1", Variant::strings({user}));
    server.ServerStore("A1", Variant::strings(state));
  }
  LocalHostHome home(options(" A; a;1"), clock);
  Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
  std::vector<std::string> target;
  EXPECT_TRUE(server.ServerRead("A1", target));
  EXPECT_EQ(target, state);
}

TEST(RecordFormat, KeepsEveryKindOfDataAndRefusesTheRest) {
  using Array = Variant::Array;
  for (const Variant& data :
       {Variant("False"), Variant(""), Variant(Array{}), Variant(true), Variant(0.1),
        Variant(std::string("\0x", 2)), Variant(Array{"1", Array{Variant(), -2}}), Variant()}) {
    EXPECT_EQ(read_record(write_record(data)), data);
  }
  EXPECT_EQ(write_record(Array{"true", "3"}), R"({"record":["true","3"]})");
  EXPECT_THROW(write_record("\xFF"), RuntimeError);
  const std::string whole = write_record(Array{"true", "ü"});
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(read_record(whole.substr(0, size))) << size;
  }
}

TEST_F(LocalHostTest, ADamagedRecordIsNoRecordAndStaysAsItIs) {
  LocalHostHome home(options("A"), clock);
  Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
  const std::filesystem::path file = folder.path / "data/host.sqlite";
  const std::string half = R"({"record":["true","3)";
  RecordStore other(file, "x", 0);
  other.write("A", "vemo06", "A1", half);
  std::vector<std::string> target{"old"};
  EXPECT_FALSE(server.ServerRead("A1", target));
  EXPECT_THAT(target, ElementsAre("old"));
  EXPECT_THAT(log(), HasSubstr("Record A1 of vemo06 is damaged"));
  EXPECT_EQ(other.read("A", "vemo06", "A1"), half);
}

TEST_F(LocalHostTest, WithoutAFolderTheHostRunsInMemoryAndSaysSo) {
  folder.write("data", "a file stands where the folder should be");
  LocalHostHome home(options(), clock);
  ASSERT_EQ(home.problems().size(), 1u);
  EXPECT_EQ(home.problems()[0].text, 1010_text);
  EXPECT_THAT(home.problems()[0].detail, HasSubstr((folder.path / "data").string()));
  Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
  EXPECT_TRUE(server.ServerInit("vemo06").running);
  server.ServerStore("E1", Variant::strings({"1"}));
  std::vector<std::string> target;
  EXPECT_TRUE(server.ServerRead("E1", target));
  EXPECT_THAT(target, ElementsAre("1"));
}

TEST_F(LocalHostTest, ADamagedFileIsKeptAndANewOneTakesItsPlace) {
  const std::string garbage(4096, '?');
  folder.write("data/host.sqlite", garbage);
  folder.write("data/host.sqlite-journal", "journal of old");
  for (int run = 0; run < 2; ++run) {
    LocalHostHome home(options(), clock);
    Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
    EXPECT_TRUE(server.ServerInit("vemo06").running);
    std::vector<std::string> target;
    EXPECT_EQ(server.ServerRead("E1", target), run == 1);
    server.ServerStore("E1", Variant::strings({"kept"}));
    ASSERT_EQ(home.problems().size(), run == 0 ? 1u : 0u);
    if (run == 1) break;
    EXPECT_EQ(home.problems()[0].text, 1011_text);
    EXPECT_EQ(home.problems()[0].detail,
              (folder.path / "data/host.sqlite.damaged-261121090532").string());
  }
  EXPECT_EQ(folder.content("data/host.sqlite.damaged-261121090532"), garbage);
}

TEST_F(LocalHostTest, AFileInUseIsLeftAlone) {
  { LocalHostHome home(options(), clock); }
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open((folder.path / "data/host.sqlite").c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  {
    LocalHostHome home(options(), clock);
    ASSERT_EQ(home.problems().size(), 1u);
    EXPECT_EQ(home.problems()[0].text, 1012_text);
    Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
    server.ServerInit("vemo06");
    server.ServerStore("E1", Variant::strings({"1"}));
  }
  sqlite3_close(other);
  LocalHostHome home(options(), clock);
  EXPECT_TRUE(home.problems().empty());
}

TEST_F(LocalHostTest, AStoreThatFailsLaterRaisesAndKeepsTheOldRecord) {
  LocalHostHome home(options(), clock);
  Server server(home.factory(), {"vemo06", "Intervalle", 1, 0, 0});
  server.ServerInit("vemo06");
  server.ServerStore("E1", Variant::strings({"old"}));
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open((folder.path / "data/host.sqlite").c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_THROW(server.ServerStore("E1", Variant::strings({"new"})), RuntimeError);
  sqlite3_close(other);
  std::vector<std::string> target;
  EXPECT_TRUE(server.ServerRead("E1", target));
  EXPECT_THAT(target, ElementsAre("old"));
  server.ServerStore("E1", Variant::strings({"new"}));
  EXPECT_TRUE(server.ServerRead("E1", target));
  EXPECT_THAT(target, ElementsAre("new"));
}

}  // namespace
}  // namespace tonarix
