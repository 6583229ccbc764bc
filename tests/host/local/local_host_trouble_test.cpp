#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "host/local/local_host_bed.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A folder or a database that can't be used, or not yet.
struct LocalHostTroubleTest : LocalHostTest {
  void put_file_in_place_of_folder() {
    folder.write("data", "a file stands where the folder should be");
  }
};

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

TEST_F(LocalHostTroubleTest, WithoutAFolderTheHostRunsInMemoryAndSaysSo) {
  put_file_in_place_of_folder();
  Session session(folder);
  EXPECT_EQ(session.problem(), 1010_text);
  EXPECT_EQ(session.home.problems()[0].detail, (folder.path / "data").string());
  EXPECT_EQ(session.home.problems()[0].error, std::errc::not_a_directory);
  EXPECT_FALSE(session.server.lasting());
  session.store({"1"});
  EXPECT_THAT(session.read(), ElementsAre("1"));
}

TEST_F(LocalHostTroubleTest, WhatWasKeptInMemoryGoesIntoTheFileOnceThereIsOne) {
  for (const bool stores_again : {false, true}) {
    put_file_in_place_of_folder();
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

TEST_F(LocalHostTroubleTest, WhatAnotherProgramHasStoredIsNotReplacedByMemoryAndToldOnce) {
  const RecordName settings{"A", "vemo06", "E1"}, state{"A", "vemo06", "A1"};
  for (const std::string need : {"read", "store", "end"}) {
    put_file_in_place_of_folder();
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

TEST_F(LocalHostTroubleTest, AFolderThatCannotBeWrittenStillGivesItsRecords) {
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

TEST_F(LocalHostTroubleTest, AClosedFolderWithoutADatabaseIsNotCalledMissing) {
  folder.write("data/other", "");
  std::filesystem::permissions(folder.path / "data", std::filesystem::perms(0555));
  const OrdinaryUser user(folder.path, folder.path / "data");
  EXPECT_EQ(Session(folder).home.problems()[0].error, std::errc::permission_denied);
}

TEST_F(LocalHostTroubleTest, AFileThatCannotBeReadIsNotAnEmptyOne) {
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

TEST_F(LocalHostTroubleTest, ADamagedFileIsKeptAndANewOneTakesItsPlace) {
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

TEST_F(LocalHostTroubleTest, ADamagedFileThatAnotherProgramHasOpenIsLeftToItAndRenewedAfterIt) {
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

TEST_F(LocalHostTroubleTest, OfManyProgramsOnePutsADamagedFileAsideWithItsLogAndAllGoOn) {
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
