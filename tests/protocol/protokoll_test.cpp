#include "protocol/protokoll.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <locale>

#include "protocol/file_in_making.h"
#include "protocol/poor_file_system.h"
#include "protocol/written_protocol.h"
#include "support/fake_document_writer.h"
#include "support/host_bed.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

struct ProtokollTest : testing::Test, HostBed {
  ProtokollTest() {
    server.ServerInit("vemo06");
    host.answers["LOGIN"] = Variant::Array{"Lovelace & Söhne", "Ada", "4711"};
  }
  void task(std::int16_t interval, bool tones_alone, std::int16_t iv_nr,
            std::vector<std::int16_t> pb_abweichung) {
    protokoll.ProtokollAufgabe(
        {.interval = interval,
         .tones_alone = tones_alone,
         .qz_tones = {17, 18, 14},
         .intervals = {{"+ Quinte", "+ Quinte"}, {"Stufe nicht leitereigen", "- große Terz"}},
         .pb_abweichung = std::move(pb_abweichung),
         .iv_nr = iv_nr});
  }
  const std::string& document() const { return writer.written.at(0).content; }

  FakeDocumentWriter writer;
  std::string logged;
  const Protokoll::Logger log = [this](std::string_view tag, std::exception_ptr) { logged += tag; };
  Protokoll protokoll{server, clock, writer, {"/usual", "/data"}, log};
};

TEST_F(ProtokollTest, AProtocolIsFoundAgainAsItStoodThenOrFurtherOnAndNoOtherIs) {
  const auto work = [this](int tasks, int wrong) {
    protokoll.ProtokollNeu();
    for (std::int16_t number = 1; number <= tasks; ++number) {
      task(number, false, 0, {});
      protokoll.ProtokollProperty("FalschIv", wrong);
    }
  };
  work(2, -3);
  const std::string kept = protokoll.so_far("bestimmen", "", {});
  task(3, false, 0, {});
  protokoll.ProtokollMesswerte(1, 0);
  std::string ended = protokoll.so_far("bestimmen", "", {});
  ended.replace(ended.find("09:05:32"), 8, "09:59:00");
  work(1, -3);
  const std::string shorter = protokoll.so_far("bestimmen", "", {});
  work(2, 3);
  const std::string answered_otherwise = protokoll.so_far("bestimmen", "", {});
  work(2, -3);
  const std::string of_other_kind = protokoll.so_far("bilden", "", {});
  const struct {
    const char* name;
    std::string content;
    bool found;
  } cases[] = {{"EXR1.xml", kept, true},
               {"EXR1.xml", ended, true},
               {"EXR1-3.xml", ended, true},
               {"EXR2.xml", kept, false},
               {"EXR1.xml", ended.substr(0, ended.size() - 20), false},
               {"EXR1.xml", shorter, false},
               {"EXR1.xml", answered_otherwise, false},
               {"EXR1.xml", of_other_kind, false},
               {"EXR1.xml", "", false}};
  for (const auto& [name, content, found] : cases) {
    TemporaryFolder folder;
    folder.write(name, content);
    EXPECT_EQ(written_in(folder.path, "EXR1.xml", kept).has_value(), found) << name << content;
  }
}

struct Comma final : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

TEST_F(ProtokollTest, AnExerciseReadsAsTheExampleWhateverTheLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
  protokoll.ProtokollNeu();
  task(9, false, 0, {});  // given up for a new document
  protokoll.ProtokollNeu();
  task(1, false, 0, {});
  protokoll.ProtokollProperty("AntwDau", 23.0F);
  protokoll.ProtokollProperty("Antwort", "false");
  protokoll.ProtokollProperty("FalschIv", -3);
  protokoll.ProtokollMesswerte(2.25, 1.5);
  protokoll.ProtokollAntwort(2, 0);
  protokoll.ProtokollProperty("Antwort", "true");
  protokoll.so_far("bilden", "so far", {"2", "Tempo", "so far"});  // is told anew at the end
  task(2, false, 1, {0, -5, 3});                                   // tuning
  protokoll.ProtokollMesswerte(1e22, 0.00001, -12);
  protokoll.ProtokollProperty("float", 0.1F);
  task(3, true, 0, {1, 2, 3});  // writing has its answers later
  protokoll.ProtokollAntwort(1);
  protokoll.ProtokollProperty("Antwort", "true");
  protokoll.ProtokollAntwort(2);  // never given
  protokoll.ProtokollSchluss("bestimmen", "tonale Intervalle",
                             {"4", "Tempo", "40 (Largo)", "Nr.:", ""});
  std::locale::global(before);
  EXPECT_EQ(document(), TemporaryFolder().content(TONARIX_EXAMPLES "/exercise.xml"));
}

TEST_F(ProtokollTest, NothingIsLostWhileNoFolderTakesIt) {
  protokoll.ProtokollNeu();
  task(1, false, 0, {});
  protokoll.ProtokollMesswerte(1, 0);
  writer.broken_folders = {"/usual", "/data"};
  EXPECT_TRUE(protokoll.ProtokollSchluss("bestimmen", "", {}).failed);
  writer.broken_folders = {"/usual"};
  const FinishResult fallen_back = protokoll.finish_again();
  EXPECT_TRUE(fallen_back.fell_back && !fallen_back.failed);
  EXPECT_EQ(fallen_back.wanted, "/usual/EXR261121090532.xml");
  EXPECT_EQ(fallen_back.path, "/data/EXR261121090532.xml");
  EXPECT_EQ(fallen_back.error, std::errc::no_space_on_device);
  writer.broken_folders.clear();
  EXPECT_EQ(protokoll.finish_again().path, fallen_back.path);
  EXPECT_EQ(writer.written.size(), 1U) << "what lies somewhere is not written twice";
  for (const char* path : {"/usual/EXR261121090532.xml", "/usual/EXR261121090532-2.xml"}) {
    protokoll.ProtokollNeu();
    EXPECT_EQ(protokoll.ProtokollSchluss("bestimmen", "", {}).path, path);
  }
}

TEST_F(ProtokollTest, ATaskThatCannotBeRecordedIsLoggedAllElseSurfaces) {
  EXPECT_NO_THROW(task(1, false, 0, {}));
  EXPECT_EQ(logged, "ProtokollAufgabe.");
  EXPECT_THROW(protokoll.ProtokollAntwort(1), RuntimeError);
  EXPECT_THROW(protokoll.ProtokollProperty("key", 1), RuntimeError);
  EXPECT_THROW(protokoll.ProtokollSchluss("", "", {}), RuntimeError);
}

TEST(Document, AnyTextComesBackFromAReaderUnharmedAndListsCountFromOne) {
  FakeDocumentWriter writer;
  DocumentBuilder builder{writer};
  const std::string hard = "\"<a>&'\n\t ü 𝄞 \u202Eabc e\u0301";
  builder.CreateDocument("exercise");
  builder.Root().Children().Add(hard, "part").Attributes().Add(hard, "key");
  pugi::xml_document read;
  ASSERT_TRUE(read.load_string(builder.text().c_str()));
  const pugi::xml_node part = read.child("exercise").child("part");
  EXPECT_EQ(part.attribute("key").value(), hard);
  EXPECT_EQ(part.text().get(), hard);
  const ElementList parts = builder.Root().Children().Find("part");
  EXPECT_TRUE(parts.Item(1).exists());
  EXPECT_THROW(parts.Item(0), RuntimeError);
  EXPECT_THROW(parts.Item(2), RuntimeError);
}

TEST(XmlText, WhatIsNoCharacterOfXmlIsReplaced) {
  const struct {
    std::string bytes, text;
  } examples[] = {
      {std::string("a\0b\x1F", 4), "a?b?"},
      {"\xC3", "?"},                 // cut off
      {"\xC0\xAF", "??"},            // longer than need be
      {"\xED\xA0\x80", "???"},       // surrogate
      {"\xEF\xBF\xBF", "???"},       // U+FFFF
      {"\xF4\x90\x80\x80", "????"},  // above U+10FFFF
      {"\xF0\x9D\x84\x9E\t\n", "\xF0\x9D\x84\x9E\t\n"},
  };
  for (const auto& [bytes, text] : examples) {
    std::string expected;
    for (const char letter : text) expected += letter == '?' ? "\uFFFD" : std::string(1, letter);
    EXPECT_EQ(xml_text(bytes), expected);
  }
}

std::vector<std::string> files_in(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename());
  }
  return names;
}

TEST(FileWriter, AFullDiskLeavesNoFile) {
  TemporaryFolder folder;
  FileDocumentWriter writer;
  const auto path = folder.path / "deep" / "EXR.xml";
  ASSERT_TRUE(writer.write(path, "first").written);
  using std::filesystem::perms;
  EXPECT_EQ(status(path).permissions(), perms::owner_read | perms::owner_write);

  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit old_limit{};
  getrlimit(RLIMIT_FSIZE, &old_limit);
  const rlimit full{4096, old_limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  const WriteResult result = writer.write(path, std::string(10'000, 'x'));
  setrlimit(RLIMIT_FSIZE, &old_limit);
  std::signal(SIGXFSZ, old_handler);

  EXPECT_FALSE(result.written);
  EXPECT_EQ(result.error, std::errc::file_too_large) << result.reason;
  const WriteResult below_a_file = writer.write(path / "EXR.xml", "text");
  EXPECT_FALSE(below_a_file.written);
  EXPECT_EQ(below_a_file.error, std::errc::not_a_directory) << below_a_file.reason;
  EXPECT_THAT(files_in(path.parent_path()), testing::ElementsAre("EXR.xml"));
}

/// Eight programs write so many files each under one name.
void write_under_one_name(const TemporaryFolder& folder, int files) {
  std::vector<pid_t> children(8);
  for (pid_t& child : children) {
    child = fork();
    if (child != 0) continue;
    for (int i = 0; i < files; ++i) {
      const std::string text = std::to_string(getpid()) + " " + std::to_string(i);
      const WriteResult result = FileDocumentWriter().write(folder.path / "EXR.xml", text);
      clear_leftovers(folder.path);
      if (!result.written || folder.content(result.path) != text) std::_Exit(1);
    }
    std::_Exit(0);
  }
  for (const pid_t child : children) {
    int ended = -1;
    waitpid(child, &ended, 0);
    EXPECT_EQ(ended, 0);
  }
}

TEST(FileWriter, ManyWhoWantOneNameAllGetAFileOfTheirOwn) {
  for (const int ways : {3, 2, 1}) {  // that the file system knows to a free name
    SCOPED_TRACE(ways);
    PoorFileSystem::moves = ways == 3;
    PoorFileSystem::links = ways >= 2;
    TemporaryFolder folder;
    std::filesystem::create_directory(folder.path / "EXR-2.xml");
    write_under_one_name(folder, 20);
    const std::vector<std::string> names = files_in(folder.path);
    EXPECT_THAT(names, testing::SizeIs(161));
    EXPECT_THAT(names, testing::IsSupersetOf({"EXR.xml", "EXR-2.xml", "EXR-161.xml"}));
  }
  PoorFileSystem::moves = PoorFileSystem::links = true;
}

TEST(FileWriter, OnlyWhatAKilledProgramLeftIsCleared) {
  TemporaryFolder folder;
  folder.write(".tonarix-abc123", "half");
  folder.write("EXR.xml.tonarix-abc123", "another's");
  const FileInMaking living(folder.path);
  clear_leftovers(folder.path);
  EXPECT_THAT(files_in(folder.path), testing::SizeIs(2));
  EXPECT_FALSE(std::filesystem::exists(folder.path / ".tonarix-abc123"));
}

}  // namespace
}  // namespace tonarix
