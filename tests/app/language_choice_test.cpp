#include "app/language_choice.h"

#include <gmock/gmock.h>

namespace tonarix {
namespace {

TEST(LanguageChoice, OnlyAMistypedNameEndsTheProgramAndAllElseIsToldByName) {
  const std::string file = "tonarixlang.deutsch.qm";
  struct Case {
    std::optional<std::string> typed;
    std::vector<std::string> languages, damaged;
    std::string language, told;
  };
  for (const Case& row :
       {Case{{}, {"Deutsch", "English"}, {}, "Deutsch", ""},
        {"English", {"Deutsch", "English"}, {}, "English", ""},
        {"English", {"English"}, {file}, "English", ""},
        {"Englisch", {"Deutsch", "English"}, {}, "", "not one of Deutsch, English"},
        {{}, {"English"}, {}, "English", "missing in /lang"},
        {{}, {"English"}, {file}, "English", "damaged in /lang: " + file},
        {"Deutsch", {"English"}, {file}, "English", "speaks English"},
        {{}, {}, {}, "Deutsch", "no language catalogues in /lang"},
        {{}, {}, {file}, "Deutsch", "are damaged: " + file}}) {
    const auto [language, trouble] =
        choose_language(row.typed, {"/lang", row.languages, row.damaged});
    EXPECT_EQ(language, row.language) << row.told;
    EXPECT_THAT(trouble, testing::HasSubstr(row.told));
    EXPECT_EQ(trouble.empty(), row.told.empty()) << trouble;
  }
}

}  // namespace
}  // namespace tonarix
