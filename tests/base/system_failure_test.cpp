#include "base/system_failure.h"

#include <gtest/gtest.h>

#include "base/filled_text.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

TEST(FilledText, TakesValuesAsTheyStand) {
  EXPECT_EQ(filled("%1 of %2, 50 % and %3 %", {"%2", "b"}), "%2 of b, 50 % and %3 %");
}

TEST(SystemFailure, IsSaidInTheLanguageByItsKindOrByItsNumber) {
  KeyTexts texts;
  texts.given = {{1018, "no. %1"}};
  const std::pair<int, const char*> kinds[] = {
      {ENOSPC, "[1014]"}, {EDQUOT, "[1014]"}, {EACCES, "[1015]"},
      {EPERM, "[1015]"},  {ENOENT, "[1016]"}, {ENOTDIR, "[1016]"},
      {EROFS, "[1017]"},  {EIO, "no. 5"},     {EFBIG, "no. 27"}};
  for (const auto& [number, words] : kinds) {
    EXPECT_EQ(failure_words(texts, {number, std::generic_category()}), words) << number;
  }
}

}  // namespace
}  // namespace tonarix
