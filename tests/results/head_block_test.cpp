#include "results/head_block.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <typename Lines>
std::vector<std::string> shown(const Lines& lines) {
  std::vector<std::string> texts;
  for (const SheetLine& line : lines) {
    if (line.visible) texts.push_back(line.label + line.value);
  }
  return texts;
}

TEST(HeadBlock, NamesAKnownUserOnLinesOfTheirOwn) {
  KeyTexts texts;
  texts.given = {{700, ": "}, {189, "Datum"}, {109, "Anwender"}, {154, "bestimmen"}};
  const Settings settings;
  const CivilTime now{2026, 11, 21, 14, 40, 0};
  const std::string strange = "<b>Ada</b>\r\n&amp;\u202Eעדה";
  EXPECT_THAT(shown(head_lines({now, "praxis-3", {"Lovelace", strange}, true}, settings, texts)),
              ElementsAre(" Datum:  21.11.2026 14:40", " [586]:  bestimmen", " Anwender:  praxis-3",
                          " [1235] Lovelace", " [1236] <b>Ada</b>  &amp;\u202Eעדה", " [1237] "));
  EXPECT_EQ(shown(head_lines({now, "praxis-3", {"x"}, false}, settings, texts)).size(), 3U);
  Settings wrong;
  wrong.ueb_typ = ExerciseKind{5};
  EXPECT_THROW(head_title(wrong, texts), RuntimeError);
}

TEST(SettingLines, PairsInTheirOrderWithoutTheEmptyOnes) {
  KeyTexts texts;
  texts.given = {{1215, "No."}, {1217, "Instruments"}, {1234, "added"}};
  EXPECT_THAT(shown(setting_lines({"10", "Nr.:", "3", "Extra", " 40 (Largo)      ", "Oktavbereich",
                                   "", "Grdton zus.", "ja", "cut off"},
                                  texts)),
              ElementsAre("No.: 3", "Extra: 40 (Largo)", "[1226]: added ja"));
  EXPECT_THAT(
      shown(setting_lines(
          {"8", "Klangfarben: ", "2", "Töne", "Piano", "Grundton:", "Oboe", "Tempo", "60"}, texts)),
      ElementsAre("Instruments: Töne: Piano; Grundton: Oboe", "[1218]: 60"));
  for (const auto& cut_off : {std::vector<std::string>{}, {"0"}, {"2", "Klangfarben: ", "9"}}) {
    EXPECT_THAT(shown(setting_lines(cut_off, texts)), IsEmpty());
  }
}

}  // namespace
}  // namespace tonarix
