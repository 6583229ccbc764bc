#include "host/local/record_store.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temporary_folder.h"

namespace tonarix {
namespace {

constexpr std::size_t kRecordSize = 40'000;  // several pages, so that a write has many steps

/// A record all of one letter, so that a mixture of two shows.
std::string record_of(int number) {
  return std::string(kRecordSize, static_cast<char>('A' + number % 26));
}

TEST(RecordStore, SurvivesAKillInTheMiddleOfWriting) {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.path / "host.sqlite";
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    RecordStore store(file, "stamp", 1000);
    for (int number = 0;; ++number) {
      store.write("user", "module", "A1", record_of(number));
      if (write(ends[1], &number, sizeof number) != sizeof number) _exit(1);
    }
  }
  close(ends[1]);
  int kept = -1;
  while (kept < 13) ASSERT_GT(read(ends[0], &kept, sizeof kept), 0);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  while (read(ends[0], &kept, sizeof kept) > 0) {
  }
  close(ends[0]);
  RecordStore store(file, "stamp", 1000);
  ASSERT_EQ(store.place(), RecordStore::Place::file) << store.reason();
  const std::string record = store.read("user", "module", "A1").value();
  // The last write may have been done and not yet told.
  EXPECT_TRUE(record == record_of(kept) || record == record_of(kept + 1)) << kept;
}

TEST(RecordStore, AFolderThatCannotBeWrittenStillGivesItsRecords) {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.path / "host.sqlite";
  { RecordStore(file, "s", 0).write("user", "module", "A1", "kept"); }
  std::filesystem::permissions(folder.path, std::filesystem::perms(0555));
  const uid_t user = geteuid();
  constexpr uid_t kNobody = 65534;  // root writes everywhere
  ASSERT_EQ(seteuid(user == 0 ? kNobody : user), 0);
  {
    RecordStore store(file, "s", 0);
    EXPECT_EQ(store.place(), RecordStore::Place::memory_unwritable);
    EXPECT_EQ(store.read("user", "module", "A1"), "kept");
    store.write("user", "module", "A1", "for now");
    EXPECT_EQ(store.read("user", "module", "A1"), "for now");
  }
  ASSERT_EQ(seteuid(user), 0);
  std::filesystem::permissions(folder.path, std::filesystem::perms(0755));
  EXPECT_EQ(RecordStore(file, "s", 0).read("user", "module", "A1"), "kept");
}

}  // namespace
}  // namespace tonarix
