#include <gmock/gmock.h>

#include <QRegularExpression>

#include "host/local/catalogue_folder.h"
#include "host/text_tables.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

const std::filesystem::path kCatalogues = TONARIX_CATALOGUES;

std::string content(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

Language language(const std::filesystem::path& folder, const std::string& name) {
  Language result(catalogue_folder(folder));
  result.SprachInit();
  result.SprachWahl(name);
  return result;
}

TEST(CatalogueFolder, EveryLanguageHasEveryKeyOfTheCodeAndOfTheOthers) {
  const Language german = language(kCatalogues, "Deutsch");
  const Language english = language(kCatalogues, "English");
  for (int key = 1; key < 3000; ++key) {
    EXPECT_EQ(german.Wort({key}) == "VOID", english.Wort({key}) == "VOID") << key;
  }
  const QRegularExpression written(R"(\b([1-9]\d*)_text\b)");  // 0_text stands for no text
  int found = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(TONARIX_SOURCES "/src")) {
    const std::string name = entry.path().filename();
    if (name == "text_key.h" || !(name.ends_with(".h") || name.ends_with(".cpp"))) continue;
    auto match = written.globalMatch(QString::fromStdString(content(entry.path())));
    for (; match.hasNext(); ++found) {
      const int key = match.next().captured(1).toInt();
      EXPECT_NE(german.Wort({key}), "VOID") << key << " asked for in " << name;
    }
  }
  EXPECT_GT(found, 100);
  EXPECT_EQ(english.Wort({30000}), "VOID");
  EXPECT_EQ(english.Wort(131_text), "upward");
  EXPECT_EQ(language(kCatalogues, "Klingon").Wort(131_text), "VOID");
  TextTables tables;
  tables.load(german);
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
