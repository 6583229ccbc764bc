#include <gmock/gmock.h>

#include "host/local/catalogue_folder.h"
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

TEST(CatalogueFolder, HasTheTextsOfEachLanguageByItsOwnName) {
  EXPECT_EQ(language(kCatalogues, "Deutsch").Wort(131_text), "aufwärts");
  EXPECT_EQ(language(kCatalogues, "English").Wort(131_text), "upward");
  EXPECT_EQ(language(kCatalogues, "English").Wort({30000}), "VOID");
  EXPECT_EQ(language(kCatalogues, "Klingon").Wort(131_text), "VOID");
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
