#include "protocol/kept_files.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "protocol/poor_file_system.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

KeptExercise exercise(int tasks, std::string document) {
  return {.user = "Lovelace & Söhne;<kept>;",
          .tasks = tasks,
          .file = "EXR261121090532.xml",
          .document = std::move(document),
          .training = KeptTraining{.study = 1,
                                   .kind = 4,
                                   .continued = true,
                                   .settings = {"", "2", ""},
                                   .state = {"true", "-3", "0.5"},
                                   .stored_before = {}}};
}

const std::string kDocument =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<exercise>\n  <exercise>\"ä\"</exercise>\n"
    "</exercise>\n";

TEST(KeptText, ComesBackAsItWasGivenAndDamageIsNoExercise) {
  KeptExercise given = exercise(3, kDocument);
  for (int variant = 0; variant < 4; ++variant) {
    const KeptText parts = kept_text(given);
    const std::string text = parts.head + std::string(parts.body) + std::string(parts.tail);
    EXPECT_EQ(read_kept(text), given);
    EXPECT_FALSE(read_kept(text.substr(0, text.size() / 2)));
    if (variant == 0) given.training->stored_before.emplace();
    if (variant == 1) given.document.clear();
    if (variant == 2) given.training.reset();
  }
}

TEST(KeptFiles, ALivingProgramsExerciseIsItsOwnAndADeadOnesIsTakenOnce) {
  TemporaryFolder folder;
  int begun[2];
  ASSERT_EQ(pipe(begun), 0);
  const pid_t child = fork();
  if (child == 0) {
    KeptFiles files(folder.path);
    for (int tasks = 1; tasks <= 3; ++tasks) files.keep(exercise(tasks, kDocument), {});
    [[maybe_unused]] const ssize_t told = write(begun[1], "!", 1);
    pause();
  }
  char told = 0;
  ASSERT_EQ(read(begun[0], &told, 1), 1);
  KeptFiles files(folder.path);
  EXPECT_TRUE(files.left_behind().empty());
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);

  ASSERT_TRUE(files.keep(exercise(9, {}), {}));
  const auto left = files.left_behind();
  ASSERT_EQ(left.size(), 1U);
  EXPECT_EQ(left[0].exercise, exercise(3, kDocument));
  EXPECT_TRUE(KeptFiles(folder.path).left_behind().empty()) << "one takes it, no other";
  using std::filesystem::perms;
  EXPECT_EQ(status(folder.path / left[0].name).permissions(),
            perms::owner_read | perms::owner_write);
  EXPECT_TRUE(files.keep(exercise(3, {}), left[0].name));
  EXPECT_TRUE(KeptFiles(folder.path).left_behind().empty());
  files.use_up(left[0].name);
  files.leave_behind();
  KeptFiles next(folder.path);
  EXPECT_EQ(next.left_behind().at(0).exercise.tasks, 9);
  EXPECT_TRUE(next.keep(exercise(1, {}), {})) << "beside a file of the same number";
  next.use_up({});
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path), {}), 1);
}

TEST(KeptFiles, WhatIsKeptIsOnTheDiskBeforeItBearsItsName) {
  TemporaryFolder folder;
  KeptFiles files(folder.path);
  PoorFileSystem::asked.clear();
  for (const int tasks : {1, 2}) ASSERT_TRUE(files.keep(exercise(tasks, kDocument), {}));
  EXPECT_EQ(PoorFileSystem::asked, "snssn") << "and its folder, when the name is new";
}

TEST(KeptFiles, WhatCannotBeReadIsToldOnceAndSetAsideUnlessItIsEmpty) {
  TemporaryFolder folder;
  folder.write("kept-1.xml", "<kept>");
  folder.write("kept-2.xml", "");
  std::filesystem::create_symlink("elsewhere", folder.path / "kept-3.xml");
  folder.write("damaged-kept-1.xml", "an older one");
  KeptFiles files(folder.path);
  EXPECT_TRUE(files.left_behind().empty());
  EXPECT_THAT(files.take_damaged(),
              testing::UnorderedElementsAre(folder.path / "damaged-kept-1-2.xml", "",
                                            folder.path / "damaged-kept-3.xml"));
  EXPECT_EQ(folder.content("damaged-kept-1.xml"), "an older one");
  EXPECT_EQ(folder.content("damaged-kept-1-2.xml"), "<kept>");
  KeptFiles next(folder.path);
  EXPECT_TRUE(next.left_behind().empty() && next.take_damaged().empty());
}

TEST(KeptFiles, WhatIsUsedUpDoesNotComeUpAgainThoughItsFolderLetsNoFileGo) {
  TemporaryFolder folder;
  {
    KeptFiles files(folder.path);
    files.keep(exercise(1, kDocument), {});
    PoorFileSystem::removes = false;
    files.use_up({});
    folder.write("kept-2.xml", "");
    files.left_behind();
  }
  for (int start = 0; start < 2; ++start) {
    KeptFiles next(folder.path);
    EXPECT_TRUE(next.left_behind().empty() && next.take_damaged().empty());
    PoorFileSystem::removes = true;
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.path)) << "gone as soon as it can be";
}

}  // namespace
}  // namespace tonarix
