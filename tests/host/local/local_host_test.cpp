#include "host/local/local_host.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "host/local/record_format.h"
#include "support/standing_clock.h"
#include "support/temporary_folder.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Strings = std::vector<std::string>;

/// One session of the module on its local host.
struct Session {
  explicit Session(const TemporaryFolder& folder,
                   std::optional<std::string> user = "Öl; Anna ;4711")
      : home({folder.path / "data", std::move(user), 4, "English", 3, 0}, clock) {}
  void store(const Strings& texts) { server.ServerStore("A1", Variant::strings(texts)); }
  /// The record; "none" without one.
  Strings read() {
    Strings target{"none"};
    server.ServerRead("A1", target);
    return target;
  }
  TextKey problem() const { return home.problems().empty() ? TextKey{} : home.problems()[0].text; }

  StandingClock clock;
  LocalHostHome home;
  Server server{home.factory(), {"vemo06", "Intervalle", 1, 0, 0}};
  const int status = server.ServerInit("vemo06").number;
};

struct LocalHostTest : testing::Test {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.path / "data/host.sqlite";
};

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

TEST_F(LocalHostTest, WithoutAFolderTheHostRunsInMemoryAndSaysSo) {
  folder.write("data", "a file stands where the folder should be");
  Session session(folder);
  EXPECT_EQ(session.problem(), 1010_text);
  EXPECT_EQ(session.home.problems()[0].detail, (folder.path / "data").string());
  EXPECT_EQ(session.home.problems()[0].error, std::errc::not_a_directory);
  EXPECT_FALSE(session.server.lasting());
  session.store({"1"});
  EXPECT_THAT(session.read(), ElementsAre("1"));
}

TEST_F(LocalHostTest, ADamagedFileIsKeptAndANewOneTakesItsPlace) {
  const auto aside = file.string() + ".damaged-261121090532/host.sqlite";
  for (const bool cut_off : {false, true}) {
    if (cut_off) {
      Session(folder).store(Strings(4000, "longer than a page"));
      std::filesystem::resize_file(file, 4096);
    } else {
      folder.write("data/host.sqlite", std::string(4096, '?'));
      folder.write("data/host.sqlite-journal", "journal of old");
    }
    const std::string damaged = folder.content("data/host.sqlite");
    {
      Session session(folder);
      EXPECT_EQ(session.problem(), 1011_text);
      EXPECT_EQ(session.home.problems()[0].detail, aside);
      session.store({"anew"});
    }
    EXPECT_THAT(Session(folder).read(), ElementsAre("anew"));
    EXPECT_EQ(folder.content(aside), damaged);
    std::filesystem::remove_all(folder.path / "data");
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

TEST_F(LocalHostTest, WhatWasKeptInMemoryGoesIntoTheFileOnceThereIsOne) {
  for (const bool stores_again : {false, true}) {
    folder.write("data", "a file stands where the folder should be");
    {
      Session session(folder);
      EXPECT_EQ(session.problem(), 1010_text);
      session.store({"early"});
      std::filesystem::remove(folder.path / "data");
      if (stores_again) session.store({"late"});
    }
    EXPECT_THAT(Session(folder).read(), ElementsAre(stores_again ? "late" : "early"));
    std::filesystem::remove_all(folder.path / "data");
  }
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

/// An ordinary user for a while, as root reads and writes everywhere.
struct OrdinaryUser {
  OrdinaryUser(const std::filesystem::path& folder, const std::filesystem::path& file) {
    std::filesystem::permissions(folder, std::filesystem::perms(0755));
    EXPECT_EQ(before == 0 ? chown(file.c_str(), 65534, gid_t(-1)) : 0, 0);
    EXPECT_EQ(seteuid(before == 0 ? 65534 : before), 0);
  }
  ~OrdinaryUser() { EXPECT_EQ(seteuid(before), 0); }
  const uid_t before = geteuid();
};

TEST_F(LocalHostTest, AFolderThatCannotBeWrittenStillGivesItsRecords) {
  for (const std::string end : {"for now", "newer", "kept"}) {
    const bool overtaken = end == "newer", lost = end == "kept";
    std::filesystem::permissions(folder.path, std::filesystem::perms(0755));
    std::filesystem::remove_all(folder.path / "data");
    Session(folder).store({"kept"});
    std::filesystem::permissions(folder.path / "data/host.log", std::filesystem::perms(0666));
    std::filesystem::permissions(folder.path / "data", std::filesystem::perms(0555));
    std::optional<OrdinaryUser> user(std::in_place, folder.path, file);
    std::optional<Session> session(std::in_place, folder);
    EXPECT_EQ(session->problem(), 1010_text);
    EXPECT_EQ(session->home.problems()[0].error, std::errc::permission_denied);
    EXPECT_THAT(session->read(), ElementsAre("kept"));
    session->store({"for now"});
    EXPECT_THAT(session->read(), ElementsAre("for now"));
    EXPECT_FALSE(session->server.lasting());
    if (lost) session.reset();
    user.reset();
    std::filesystem::permissions(folder.path / "data", std::filesystem::perms(0755));
    if (overtaken) Session(folder).store({"newer"});
    session.reset();
    EXPECT_THAT(Session(folder).read(), ElementsAre(end));
    EXPECT_EQ(folder.content("data/host.log").find("Lost with memory: A1") != std::string::npos,
              lost);
  }
}

TEST_F(LocalHostTest, AClosedFolderWithoutADatabaseIsNotCalledMissing) {
  folder.write("data/other", "");
  std::filesystem::permissions(folder.path / "data", std::filesystem::perms(0555));
  const OrdinaryUser user(folder.path, folder.path / "data");
  EXPECT_EQ(Session(folder).home.problems()[0].error, std::errc::permission_denied);
}

TEST_F(LocalHostTest, WhatAnotherProgramHasStoredIsNotReplacedByMemoryAndToldOnce) {
  const RecordName settings{"A", "vemo06", "E1"}, state{"A", "vemo06", "A1"};
  for (const std::string need : {"read", "store", "end"}) {
    folder.write("data", "a file stands where the folder should be");
    Strings log;
    std::optional<RecordStore> store(std::in_place, file, "x", 0,
                                     [&](const std::string& line) { log.push_back(line); });
    store->write({{settings, "early"}, {state, "early"}});
    store->write({{state, "later"}});
    std::filesystem::remove(folder.path / "data");
    RecordStore other(file, "x", 0);
    other.write({{state, "newer"}});
    if (need == "read") {
      EXPECT_THROW(store->read(state), RuntimeError);
    }
    if (need == "store") {
      EXPECT_THROW(store->write({{state, "latest"}}), RuntimeError);
    }
    EXPECT_TRUE(need == "end" || store->read(state) == "newer");
    if (need == "store") store->write({{state, "latest"}});
    store.reset();
    EXPECT_EQ(other.read(state), need == "store" ? "latest" : "newer");
    EXPECT_FALSE(other.read(settings)) << "of a mixture";
    EXPECT_THAT(log, ElementsAre(HasSubstr("Another program has stored")));
    std::filesystem::remove_all(folder.path / "data");
  }
}

TEST_F(LocalHostTest, AFileThatCannotBeReadIsNotAnEmptyOne) {
  for (const std::string hindrance :
       {"no rights", "no descriptors", "damaged in a closed folder"}) {
    SCOPED_TRACE(hindrance);
    std::filesystem::remove_all(folder.path / "data");
    Session(folder).store({"kept"});
    if (hindrance[0] == 'd') {
      folder.write("data/host.sqlite", std::string(4096, '?'));
      std::filesystem::remove(file.string() + "-lock");
    }
    const std::string before = folder.content(file);
    if (hindrance == "no rights") std::filesystem::permissions(file, std::filesystem::perms(0));
    const std::filesystem::perms of_folder{hindrance[0] == 'd' ? 0555U : 0777U};
    std::filesystem::permissions(folder.path / "data", of_folder);
    std::optional<OrdinaryUser> user(std::in_place, folder.path, file);
    rlimit usual{};
    getrlimit(RLIMIT_NOFILE, &usual);
    const rlimit none{3, usual.rlim_max};
    if (hindrance == "no descriptors") setrlimit(RLIMIT_NOFILE, &none);
    Session session(folder);
    Strings target;
    const RecordRead read = session.server.read_record("A1", target);
    EXPECT_THROW(session.store({"lost"}), RuntimeError);
    setrlimit(RLIMIT_NOFILE, &usual);
    user.reset();
    EXPECT_EQ(session.problem(), 1012_text);
    EXPECT_EQ(read, RecordRead::failed);
    EXPECT_EQ(folder.content(file), before);
    const bool closed = session.home.problems()[0].error == std::errc::permission_denied;
    EXPECT_EQ(closed, hindrance != "no descriptors");
    if (hindrance[0] == 'd') continue;
    std::filesystem::permissions(file, std::filesystem::perms(0600));
    EXPECT_THAT(session.read(), ElementsAre("kept"));
    session.store({"next"});
    EXPECT_THAT(Session(folder).read(), ElementsAre("next"));
  }
}

TEST_F(LocalHostTest, ADamagedFileThatAnotherProgramHasOpenIsLeftToItAndRenewedAfterIt) {
  Session(folder).store(Strings(4000, "longer than a page"));
  std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).seekp(5000)
      << std::string(9000, '?');
  std::optional<NameLock> other(std::in_place, file, NameLock::Kind::shared);
  Session session(folder);
  EXPECT_TRUE(session.home.problems().empty() && std::filesystem::exists(file));
  other.reset();
  EXPECT_THROW(session.store({"anew"}), RuntimeError) << "told once";
  session.store({"anew"});
  EXPECT_THAT(Session(folder).read(), ElementsAre("anew"));
  EXPECT_THAT(folder.content("data/host.log"), HasSubstr("it stands aside"));
}

TEST_F(LocalHostTest, OfManyProgramsOnePutsADamagedFileAsideWithItsLogAndAllGoOn) {
  constexpr int kPrograms = 4;
  const std::string damaged(4096, '?');
  for (int round = 0; round < 5; ++round) {
    std::filesystem::remove_all(folder.path / "data");
    folder.write("data/host.sqlite", damaged);
    folder.write("data/host.sqlite-wal", "log of old");
    int bell[2];
    ASSERT_EQ(pipe(bell), 0);
    for (int program = 0; program < kPrograms; ++program) {
      if (fork() != 0) continue;
      close(bell[1]);
      char rung = 0;
      if (read(bell[0], &rung, 1) < 0) _exit(1);
      RecordStore store(file, "x", 0);
      for (int tries = 0; tries < 100'000; ++tries) {
        try {
          store.write({{{"A", "vemo06", std::to_string(program)}, "kept"}});
          _exit(0);
        } catch (const RuntimeError&) {
          continue;  // busy, or told that the file is a new one
        }
      }
      _exit(1);
    }
    for (const int end : bell) close(end);
    int status = 0;
    while (wait(&status) > 0) EXPECT_EQ(status, 0);
    RecordStore store(file, "x", 0);
    for (int program = 0; program < kPrograms; ++program) {
      EXPECT_EQ(store.read({"A", "vemo06", std::to_string(program)}), "kept");
    }
    EXPECT_TRUE(folder.content(file.string() + ".damaged-x/host.sqlite") == damaged);
    EXPECT_EQ(folder.content(file.string() + ".damaged-x/host.sqlite-wal"), "log of old");
    EXPECT_FALSE(std::filesystem::exists(file.string() + ".damaged-x-2"));
  }
}

}  // namespace
}  // namespace tonarix
