#include "host/help_file.h"

#include <gmock/gmock.h>

#include <QString>

#include "base/module_texts.h"
#include "base/rtf.h"
#include "host/local/catalogue_folder.h"
#include "support/key_texts.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kStem = "tb06_bildenIv_";

std::filesystem::path place(const std::string& suffix) {
  return std::filesystem::path("vemo06") / ("txt_" + suffix) / (kStem + suffix + ".rtf");
}

TEST(HelpTexts, AreThereInEachLanguageAndCallTheButtonsAsTheyAreCalled) {
  const auto libraries = catalogue_folder(TONARIX_CATALOGUES);
  for (const LanguageRow& row : libraries.create_list()->languages()) {
    Language language(libraries);
    language.SprachInit();
    language.SprachWahl(row.name);
    std::string reason;
    const auto text = read_help(TONARIX_DATA, language, kStem, &reason);
    ASSERT_TRUE(text) << reason;
    const std::string html = rich_text_html(*text);
    for (const char* part : {"<h3>", "<p>", "<ul><li>", "<b>", "<i>", "3"}) {
      EXPECT_THAT(html, HasSubstr(part)) << row.name;
    }
    for (const TextKey button : {text::tone_is_formed, 629_text, 370_text, 640_text, 129_text}) {
      const std::string caption = language.Wort(button);
      EXPECT_TRUE(html.find("“" + caption + "”") != html.npos ||
                  html.find("„" + caption + "“") != html.npos)
          << caption;
    }
    for (const char* leftover : {"Tonarix", "VOID", "TODO", "\\", "{", "\uFFFD", "  "}) {
      EXPECT_THAT(html, Not(HasSubstr(leftover))) << row.name;
    }
  }
}

TEST(HelpTexts, AreRefusedWhenCutOffAndNeverHarmWhenChanged) {
  const std::string file = TemporaryFolder().content(TONARIX_DATA / place("deutsch"));
  std::string page =
      file.substr(0, file.find("\\pard", 1000)) + "}";  // has all that a page may have
  ASSERT_TRUE(read_rtf(page));
  for (std::size_t size = 0; size < page.size(); ++size) {
    ASSERT_FALSE(read_rtf(std::string_view(page).substr(0, size))) << size;
  }
  for (std::size_t at = 0; at < page.size(); ++at) {
    const char whole = page[at];
    const char flipped = static_cast<char>(whole ^ (1 << at % 8));
    for (const char changed : {'{', '}', '\\', '\0', flipped}) {
      page[at] = changed;
      const auto text = read_rtf(page);
      if (!text) continue;
      const std::string html = rich_text_html(*text);
      EXPECT_LT(html.size(), 2 * page.size()) << at;
      EXPECT_EQ(QString::fromStdString(html).toStdString(), html) << at << ": no UTF-8";
    }
    page[at] = whole;
  }
}

TEST(HelpTexts, ThatCantBeReadAreNone) {
  const TemporaryFolder folder;
  KeyTexts texts;
  const auto refused = [&](const std::string& suffix) {
    texts.given[705] = suffix;
    std::string reason;
    const bool none = !read_help(folder.path, texts, kStem, &reason);
    EXPECT_EQ(none, !reason.empty()) << suffix;
    return none;
  };
  const std::string page = R"({\rtf1 x})";
  for (const char* suffix : {"", "VOID", "de", "../de", "de/", "d e", "d.e", "dé"}) {
    folder.write(place(suffix), page);
    EXPECT_EQ(refused(suffix), std::string(suffix) != "de") << suffix;
  }
  for (const std::string& broken : {std::string(), page.substr(1), std::string(2 << 20, ' ')}) {
    folder.write(place("de"), broken);
    EXPECT_TRUE(refused("de"));
  }
  folder.write(place("de"), page);
  ASSERT_FALSE(refused("de"));
  std::filesystem::remove(folder.path / place("de"));
  EXPECT_TRUE(refused("de")) << "no file";
  std::filesystem::create_directory(folder.path / place("de"));
  EXPECT_TRUE(refused("de")) << "a folder";
  EXPECT_TRUE(refused("klingon")) << "no folder";
}

}  // namespace
}  // namespace tonarix
