#include <gmock/gmock.h>

#include <QRegularExpression>
#include <map>
#include <set>

#include "host/local/catalogue_folder.h"
#include "host/text_tables.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

const std::filesystem::path kSources = TONARIX_SOURCES;
const std::filesystem::path kCatalogues = TONARIX_CATALOGUES;

std::string content(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// The numbers that the pattern's brackets hold.
std::set<int> numbers(const std::string& text, const char* pattern) {
  std::set<int> found;
  auto match = QRegularExpression(pattern).globalMatch(QString::fromStdString(text));
  while (match.hasNext()) found.insert(match.next().captured(1).toInt());
  return found;
}

/// Every key that the sources write down, with a file that does.
std::map<int, std::string> keys_in_the_code() {
  std::map<int, std::string> keys;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(kSources / "src")) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".h" && ending != ".cpp") continue;
    if (entry.path().filename() == "text_key.h") continue;  // only the explanation
    for (const int key : numbers(content(entry.path()), R"(\b(\d+)_text\b)")) {
      if (key != 0) keys.emplace(key, entry.path().string());  // 0_text stands for no text
    }
  }
  return keys;
}

std::set<int> keys_in_the_catalogue(const std::string& suffix) {
  return numbers(content(kSources / "lang" / ("tonarixlang." + suffix + ".ts")),
                 R"re(<message id="(\d+)s">)re");
}

Language language(const std::filesystem::path& folder, const std::string& name) {
  Language result(catalogue_folder(folder));
  result.SprachInit();
  result.SprachWahl(name);
  return result;
}

TEST(CatalogueFolder, EveryLanguageHasEveryKeyOfTheCodeAndOfTheOthers) {
  const auto asked = keys_in_the_code();
  EXPECT_GT(asked.size(), 100u);
  const std::set<int> keys = keys_in_the_catalogue("deutsch");
  std::string names;
  for (const LanguageRow& row : catalogue_folder(kCatalogues).create_list()->languages()) {
    names += row.name + "/" + row.suffix + " ";
    EXPECT_EQ(keys_in_the_catalogue(row.suffix), keys);
    const Language texts = language(kCatalogues, row.name);
    for (const int key : keys) EXPECT_NE(texts.Wort({key}), "VOID") << key;
    for (const auto& [key, file] : asked) {
      EXPECT_NE(texts.Wort({key}), "VOID") << key << " asked for in " << file;
    }
  }
  EXPECT_EQ(names, "Deutsch/deutsch English/english ");
  EXPECT_EQ(language(kCatalogues, "English").Wort(131_text), "upward");
  EXPECT_EQ(language(kCatalogues, "English").Wort({30000}), "VOID");
  EXPECT_EQ(language(kCatalogues, "Klingon").Wort(131_text), "VOID");
  TextTables tables;
  tables.load(language(kCatalogues, "Deutsch"));
  EXPECT_EQ(tables.theory_kind(1), "Musiklehre");
  EXPECT_EQ(tables.levels[0], "Freies Üben");
}

TEST(CatalogueFolder, ABrokenOrMissingCatalogueIsNoLanguageAndNoHarmToTheOthers) {
  TemporaryFolder folder;
  EXPECT_EQ(language(folder.path / "missing", "Deutsch").Wort(432_text), "VOID");
  const std::string whole = content(kCatalogues / "tonarixlang.deutsch.qm");
  folder.write("tonarixlang.english.qm", content(kCatalogues / "tonarixlang.english.qm"));
  for (std::size_t size = 0; size < whole.size(); size += 997) {
    folder.write("tonarixlang.deutsch.qm", whole.substr(0, size));
    EXPECT_EQ(language(folder.path, "Deutsch").Wort(432_text), "VOID") << size;
    EXPECT_EQ(language(folder.path, "English").Wort(432_text), "OK") << size;
  }
}

}  // namespace
}  // namespace tonarix
