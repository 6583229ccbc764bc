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

struct InstalledLanguage : testing::TestWithParam<LanguageRow> {};

TEST_P(InstalledLanguage, HasAWordForEveryKeyThatTheCodeAsksFor) {
  const Language texts = language(kCatalogues, GetParam().name);
  const auto keys = keys_in_the_code();
  EXPECT_GT(keys.size(), 100u);
  for (const auto& [key, file] : keys) {
    EXPECT_NE(texts.Wort({key}), "VOID") << key << " asked for in " << file;
  }
}

TEST_P(InstalledLanguage, HasTheKeysOfTheOthersAndNoEmptyText) {
  const Language texts = language(kCatalogues, GetParam().name);
  const std::set<int> keys = keys_in_the_catalogue("deutsch");
  EXPECT_EQ(keys_in_the_catalogue(GetParam().suffix), keys);
  for (const int key : keys) EXPECT_NE(texts.Wort({key}), "VOID") << key;
}

INSTANTIATE_TEST_SUITE_P(Catalogues, InstalledLanguage,
                         testing::Values(LanguageRow{"Deutsch", "deutsch"},
                                         LanguageRow{"English", "english"}),
                         [](const auto& language_row) { return language_row.param.name; });

TEST(CatalogueFolder, FindsItsLanguagesByTheirOwnNames) {
  std::vector<std::string> names;
  for (const LanguageRow& row : catalogue_folder(kCatalogues).create_list()->languages()) {
    names.push_back(row.name + "/" + row.suffix);
  }
  EXPECT_THAT(names, testing::ElementsAre("Deutsch/deutsch", "English/english"));
  EXPECT_EQ(language(kCatalogues, "Deutsch").Wort(131_text), "aufwärts");
  EXPECT_EQ(language(kCatalogues, "English").Wort(131_text), "upward");
  TextTables tables;
  const Language texts = language(kCatalogues, "Deutsch");
  tables.load(texts);
  EXPECT_EQ(tables.theory_kind(1), "Musiklehre");
  EXPECT_EQ(tables.theory_kinds[0] + texts.Wort(700_text) + texts.Wort(1003_text),
            "Übungsart: tonale Intervalle sukzessiv");
  EXPECT_EQ(tables.levels[0], "Freies Üben");
}

TEST(CatalogueFolder, WithoutCataloguesEverythingReadsVoid) {
  TemporaryFolder folder;
  EXPECT_EQ(language(folder.path, "Deutsch").Wort(432_text), "VOID");
  const Language nowhere = language(folder.path / "missing", "Deutsch");
  EXPECT_FALSE(nowhere.SprachAktiv());
  EXPECT_EQ(nowhere.Wort(432_text), "VOID");
}

TEST(CatalogueFolder, ABrokenCatalogueIsNoLanguageAndNoHarmToTheOthers) {
  TemporaryFolder folder;
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
