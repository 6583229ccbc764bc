#include "results/protocol/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>

#include <csignal>
#include <fstream>
#include <sstream>

#include "base/runtime_error.h"
#include "support/fake_document_writer.h"

namespace tonarix {
namespace {

namespace fs = std::filesystem;

std::string content_of(const fs::path& path) {
  std::ostringstream content;
  content << std::ifstream(path).rdbuf();
  return content.str();
}

struct DocumentTest : testing::Test {
  FakeDocumentWriter writer;
  DocumentBuilder builder{writer};
};

TEST_F(DocumentTest, ListsCountFromOne) {
  builder.CreateDocument("exercise");
  builder.Root().Children().Add("", "lesson");
  const ElementList lessons = builder.Root().Children().Find("lesson");
  EXPECT_TRUE(lessons.Item(1).exists());
  EXPECT_THROW(lessons.Item(0), RuntimeError);
  EXPECT_THROW(lessons.Item(2), RuntimeError);
}

TEST_F(DocumentTest, AnyTextComesBackFromAReaderUnharmed) {
  const std::string hard = "\"<a>&'\n\t ü 𝄞 \u202Eabc e\u0301";
  builder.CreateDocument("exercise");
  builder.Root().Children().Add(hard, "part").Attributes().Add(hard, "key");
  pugi::xml_document read;
  ASSERT_TRUE(read.load_string(builder.text().c_str()));
  const pugi::xml_node part = read.child("exercise").child("part");
  EXPECT_EQ(part.attribute("key").value(), hard);
  EXPECT_EQ(part.text().get(), hard);
}

TEST(XmlText, WhatIsNoCharacterOfXmlIsReplaced) {
  const std::string sign = "\xEF\xBF\xBD";
  EXPECT_EQ(xml_text(std::string("a\0b\x01\x1F", 5)), "a" + sign + "b" + sign + sign);
  EXPECT_EQ(xml_text("\xC3"), sign) << "cut off";
  EXPECT_EQ(xml_text("\xC0\xAF"), sign + sign) << "longer than need be";
  EXPECT_EQ(xml_text("\xED\xA0\x80"), sign + sign + sign) << "surrogate";
  EXPECT_EQ(xml_text("\xEF\xBF\xBF"), sign + sign + sign) << "U+FFFF";
  EXPECT_EQ(xml_text("\xF4\x90\x80\x80").size(), 4 * sign.size()) << "above U+10FFFF";
  EXPECT_EQ(xml_text("\xFC"
                     "a"),
            sign + "a");
  EXPECT_EQ(xml_text("\xF0\x9D\x84\x9E\t\n"), "\xF0\x9D\x84\x9E\t\n");
}

struct FileWriterTest : testing::Test {
  FileWriterTest() {
    std::string name = (fs::temp_directory_path() / "protocol_test.XXXXXX").string();
    folder = mkdtemp(name.data());
  }
  ~FileWriterTest() override { fs::remove_all(folder); }
  std::size_t files() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

  fs::path folder;
  FileDocumentWriter writer;
};

TEST_F(FileWriterTest, WritesWholeMakesTheFolderAndReplaces) {
  const fs::path path = folder / "deep" / "EXR.xml";
  ASSERT_TRUE(writer.write(path, "first").written);
  ASSERT_TRUE(writer.write(path, "second").written);
  EXPECT_EQ(content_of(path), "second");
  EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), fs::directory_iterator()), 1);
}

TEST_F(FileWriterTest, AFullDiskLeavesTheOldFileAndNothingElse) {
  const fs::path path = folder / "EXR.xml";
  ASSERT_TRUE(writer.write(path, "old").written);

  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit old_limit{};
  getrlimit(RLIMIT_FSIZE, &old_limit);
  const rlimit full{4096, old_limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  const WriteResult result = writer.write(path, std::string(10'000, 'x'));
  setrlimit(RLIMIT_FSIZE, &old_limit);
  std::signal(SIGXFSZ, old_handler);

  EXPECT_FALSE(result.written);
  EXPECT_FALSE(result.reason.empty());
  EXPECT_EQ(content_of(path), "old");
  EXPECT_EQ(files(), 1U);
}

TEST_F(FileWriterTest, AFolderThatTakesNoFilesIsToldWithTheReason) {
  ASSERT_TRUE(writer.write(folder / "plain", "a file").written);
  const WriteResult result = writer.write(folder / "plain" / "EXR.xml", "text");
  EXPECT_FALSE(result.written);
  EXPECT_THAT(result.reason, testing::HasSubstr("irectory"));
  fs::create_directory(folder / "taken.xml");
  EXPECT_FALSE(writer.write(folder / "taken.xml", "text").written);
  EXPECT_EQ(files(), 2U) << "the temporary file is gone";
}

}  // namespace
}  // namespace tonarix
