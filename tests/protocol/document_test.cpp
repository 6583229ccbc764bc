#include "protocol/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "base/runtime_error.h"
#include "support/fake_document_writer.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

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

TEST(FileWriter, AFullDiskLeavesTheOldFileAndNothingElse) {
  TemporaryFolder folder;
  FileDocumentWriter writer;
  const auto path = folder.path / "deep" / "EXR.xml";
  ASSERT_TRUE(writer.write(path, "first").written);
  ASSERT_TRUE(writer.write(path, "second").written);
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
  EXPECT_EQ(result.reason, "File too large");
  EXPECT_EQ(folder.content("deep/EXR.xml"), "second");
  const WriteResult below_a_file = writer.write(path / "EXR.xml", "text");
  EXPECT_FALSE(below_a_file.written);
  EXPECT_THAT(below_a_file.reason, testing::HasSubstr("irectory"));
  std::filesystem::create_directory(folder.path / "deep/taken.xml");
  EXPECT_FALSE(writer.write(folder.path / "deep/taken.xml", "text").written);
  const std::filesystem::directory_iterator files(path.parent_path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 2) << "no temporary file is left";
}

}  // namespace
}  // namespace tonarix
