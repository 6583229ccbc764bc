#include "host/local/local_host.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/local/local_host_bed.h"
#include "host/local/record_format.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(LocalHostTest, AnswersEveryKey) {
  Session session(folder);
  EXPECT_TRUE(session.home.problems().empty());
  bool left = false;
  session.home.on_menue = [&] { left = true; };
  VirtualScheduler scheduler;
  WindowList windows(scheduler);
  EXPECT_EQ(session.status, 4);
  EXPECT_EQ(session.server.ServerMidi(), 3);
  EXPECT_EQ(session.server.ServerLang(), "English");
  EXPECT_THAT(session.server.ServerLogin(), ElementsAre("Öl", "Anna", "4711"));
  session.server.ServerLogMess("two\nlines");
  session.server.ServerLogErr("mat_wahl.", RuntimeError::overflow("draw"));
  session.server.ServerMenue(windows);
  EXPECT_TRUE(left);
  EXPECT_EQ(folder.content("data/host.log"),
            "2026-11-21 09:05:32 1.0.0000 Intervalle status: 4\n"
            "2026-11-21 09:05:32 two | lines\n"
            "2026-11-21 09:05:32 ERROR vemo06.mat_wahl. 6 Overflow of a 16-bit number (draw)\n"
            "2026-11-21 09:05:32 menu\n");
}

TEST_F(LocalHostTest, EachUserFindsOwnRecordsInTheNextRun) {
  const Strings state{"true", "", "\"\\\n\x01", "ß♯𝄞", "-1.5"};
  for (const char* user : {"A;a;1", "B;b;2"}) {
    Session session(folder, user);
    EXPECT_THAT(session.read(), ElementsAre("none")) << user;
    session.store({user});
    session.store(state);
  }
  EXPECT_EQ(Session(folder, " A; a;1").read(), state);
  EXPECT_THAT(Session(folder, "  ").server.ServerLogin(), ElementsAre("unbekannt"));
  EXPECT_THAT(Session(folder, {}).server.ServerLogin(), ElementsAre("unbekannt"));
}

TEST(RecordFormat, KeepsEveryKindOfDataAndRefusesTheRest) {
  using Array = Variant::Array;
  for (const Variant& data :
       {Variant("False"), Variant(""), Variant(Array{}), Variant(true), Variant(0.1),
        Variant(std::string("\0x", 2)), Variant(Array{"1", Array{Variant(), -2}}), Variant()}) {
    EXPECT_EQ(read_record(write_record(data)), data);
  }
  EXPECT_THROW(write_record("\xFF"), RuntimeError);
  const std::string whole = write_record(Array{"true", "ü"});
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(read_record(whole.substr(0, size))) << size;
  }
}

TEST_F(LocalHostTest, ADamagedRecordIsNoRecordAndStaysAsItIs) {
  Session session(folder, "A");
  const std::string half = R"({"record":["true","3)";
  RecordStore other(file, "x", 0);
  other.write({{{"A", "vemo06", "A1"}, half}});
  Strings target;
  EXPECT_EQ(session.server.read_record("A1", target), RecordRead::damaged);
  EXPECT_THAT(folder.content("data/host.log"), HasSubstr("Record A1 of vemo06 is damaged"));
  EXPECT_EQ(other.read({"A", "vemo06", "A1"}), half);
}

TEST_F(LocalHostTest, RecordsThatBelongTogetherAreStoredTogetherOrNotAtAll) {
  Session session(folder);
  session.store({"old"});
  const Variant anew = Variant::strings({"new"});
  EXPECT_THROW(session.server.ServerStoreTogether({{"A1", anew}, {"E1", "no text: \xFF"}}),
               RuntimeError);
  EXPECT_THAT(session.read(), ElementsAre("old"));
  EXPECT_TRUE(session.server.ServerStoreTogether({{"A1", anew}, {"E1", anew}}));
  Strings target;
  EXPECT_TRUE(Session(folder).server.ServerRead("E1", target) && target == Session(folder).read());
}

TEST_F(LocalHostTest, NobodyElseCanReadAnythingWhateverTheUmask) {
  namespace fs = std::filesystem;
  folder.write("old/data/host.sqlite", "");  // of a time before
  for (const mode_t mask : {0000, 0777, 0022, 0000}) {
    const fs::path data = folder.path / (mask == 0022 ? "old/data" : "new/deep/data");
    const mode_t before = umask(0);
    if (mask != 0022) fs::remove_all(folder.path / "new");
    fs::create_directories(folder.path / "new/deep");
    umask(mask);
    const StandingClock clock;
    LocalHostHome home({data, "A", 2, "Deutsch", {}, 0}, clock);
    Server server{home.factory(), {"vemo06", "Intervalle", 1, 0, 0}};
    server.ServerInit();
    server.ServerStore("A1", Variant::strings({"x"}));
    umask(before);
    EXPECT_TRUE(home.problems().empty()) << mask;
    const auto kept = fs::status(data).permissions();
    EXPECT_EQ(kept, fs::perms(mask == 0022 ? 0755 : 0700)) << mask;
    for (const auto& entry : fs::directory_iterator(data)) {
      EXPECT_EQ(entry.status().permissions(), fs::perms(0600)) << entry << mask;
    }
  }
}

/// Another program at the same file.
struct OtherProgram {
  explicit OtherProgram(const std::filesystem::path& file) {
    EXPECT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
  }
  ~OtherProgram() { sqlite3_close(database); }
  void run(const char* sql) {
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
  }
  sqlite3* database = nullptr;
};

TEST_F(LocalHostTest, WhoReadsNeverWaitsAndAStoreIsTriedAgainWhenTheOtherIsDone) {
  Session session(folder);
  session.store({"old"});
  {
    OtherProgram other(file);
    other.run("BEGIN EXCLUSIVE; UPDATE records SET data = '?'");
    EXPECT_THROW(session.store({"new"}), HostBusy);
    EXPECT_THAT(session.read(), ElementsAre("old"));
    EXPECT_THAT(Session(folder).read(), ElementsAre("old"));
  }
  session.store({"new"});
  OtherProgram other(file);
  other.run("BEGIN; SELECT * FROM records");
  session.store({"newer"});
  EXPECT_THAT(Session(folder).read(), ElementsAre("newer"));
}

TEST_F(LocalHostTest, AFileThatCannotBeOpenedNowIsTriedAgainAtEachNeed) {
  folder.write("data/host.sqlite", "");
  std::optional<OtherProgram> other(file);
  other->run("BEGIN EXCLUSIVE; CREATE TABLE other (x)");
  Session session(folder);
  EXPECT_TRUE(session.home.problems().empty());
  EXPECT_THROW(session.store({"lost"}), HostBusy);
  Strings target;
  EXPECT_EQ(session.server.read_record("A1", target), RecordRead::failed) << "not: none";
  other.reset();
  session.store({"kept"});
  EXPECT_THAT(Session(folder).read(), ElementsAre("kept"));

  std::filesystem::rename(folder.path / "data", folder.path / "moved");
  session.store({"anew"});
  EXPECT_THAT(Session(folder).read(), ElementsAre("anew"));
}

TEST_F(LocalHostTest, TheJournalIsTheOneThatTheFileSystemCanKeep) {
  // The second has no memory that the users of a write-ahead log could share, the last has it
  // again.
  sqlite3_vfs* const usual = sqlite3_vfs_find(nullptr);
  for (const char* system : {usual->zName, "unix-dotfile", usual->zName}) {
    sqlite3_vfs_register(sqlite3_vfs_find(system), 1);
    Session session(folder);
    session.store({system});
    EXPECT_TRUE(session.home.problems().empty());
    EXPECT_EQ(session.read(), Strings{system});
    EXPECT_EQ(std::filesystem::exists(file.string() + "-wal"), system == usual->zName) << system;
  }
  sqlite3_vfs_register(usual, 1);
}

/// A record all of one letter, so that a mixture of two shows, and several pages long, so that a
/// write has many steps.
std::string record_of(int number) {
  return std::string(40'000, static_cast<char>('A' + number % 26));
}

TEST_F(LocalHostTest, ARecordSurvivesAKillInTheMiddleOfWriting) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    Session session(folder);
    for (int number = 0;; ++number) {
      session.store({record_of(number)});
      if (write(ends[1], &number, sizeof number) != sizeof number) _exit(1);
    }
  }
  close(ends[1]);
  int kept = -1;
  while (read(ends[0], &kept, sizeof kept) > 0) {
    if (kept == 13) kill(child, SIGKILL);
  }
  close(ends[0]);
  waitpid(child, nullptr, 0);
  ASSERT_GE(kept, 13);
  Session session(folder);
  EXPECT_TRUE(session.home.problems().empty());
  const std::string record = session.read()[0];
  // The last write may have been done and not yet told.
  EXPECT_TRUE(record == record_of(kept) || record == record_of(kept + 1)) << kept;
}

}  // namespace
}  // namespace tonarix
