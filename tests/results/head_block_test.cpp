#include "results/head_block.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> joined(const std::vector<SheetLine>& lines) {
  std::vector<std::string> texts;
  for (const SheetLine& line : lines) texts.push_back(line.label + line.value);
  return texts;
}

struct HeadBlockTest : testing::Test {
  HeadBlockTest() {
    texts.given = {{700, ": "}, {189, "Datum"}, {109, "Anwender"}, {154, "bestimmen"}};
  }
  std::vector<std::string> lines() const {
    std::vector<SheetLine> shown;
    for (const SheetLine& line : head_lines(facts, settings, texts)) {
      if (line.visible) shown.push_back(line);
    }
    return joined(shown);
  }

  KeyTexts texts;
  Settings settings;
  HeadFacts facts{{2026, 11, 21, 14, 40, 0}, "praxis-3", {"Lovelace", "Ada", "4711"}, true};
};

TEST_F(HeadBlockTest, AKnownUserHasSixLines) {
  EXPECT_THAT(lines(),
              ElementsAre(" Datum:  21.11.2026 14:40", " [586]:  bestimmen", " Anwender:  praxis-3",
                          " Name: Lovelace", " Vorname: Ada", " Matrikel-Nr.: 4711"));
}

TEST_F(HeadBlockTest, MissingFieldsShowEmptyAnUnknownUserNothing) {
  facts.user = {"Lovelace"};
  EXPECT_EQ(lines()[4], " Vorname: ");
  facts.user = {"unbekannt"};
  facts.user_known = false;
  EXPECT_EQ(lines().size(), 3U);
  EXPECT_EQ(lines()[2], " Anwender:  praxis-3");
}

TEST_F(HeadBlockTest, AStrangeNameStaysOnItsLineAndIsNotRead) {
  facts.user = {"<b>Ada</b>\r\n&amp;", "\u202Eעדה e\u0301", std::string(3000, 'x')};
  EXPECT_EQ(lines()[3], " Name: <b>Ada</b>  &amp;");
  EXPECT_EQ(lines()[4], " Vorname: \u202Eעדה e\u0301");
}

TEST_F(HeadBlockTest, TheTitleJoinsStudyAndExercise) {
  settings.Theoriewahl = 1;
  settings.ueb_typ = 4;
  EXPECT_EQ(head_title(settings, texts), "[725]: [715]");
  settings.ueb_typ = 5;
  EXPECT_THROW(head_title(settings, texts), RuntimeError);
}

TEST(SettingLines, PairsInTheirOrderWithoutTheEmptyOnes) {
  EXPECT_THAT(joined(setting_lines({"10", "Übungsmodus", "Prüfung", "Nr.:", "3", "Tempo",
                                    " 40 (Largo)      ", "Oktavbereich", "", "Grdton zus.", "ja",
                                    "cut off"})),
              ElementsAre("Übungsmodus: Prüfung", "Nr.: 3", "Tempo: 40 (Largo)",
                          "Grdton zus.: zusätzlich ja"));
  EXPECT_THAT(setting_lines({}), IsEmpty());
  EXPECT_THAT(setting_lines({"0"}), IsEmpty());
}

TEST(SettingLines, TheInstrumentsOfTheChannelsShareALine) {
  EXPECT_THAT(joined(setting_lines({"8", "Klangfarben: ", "2", "Töne", "Piano", "Grundton:", "Oboe",
                                    "Tempo", "60"})),
              ElementsAre("Klangfarben: Töne: Piano; Grundton: Oboe", "Tempo: 60"));
  EXPECT_THAT(joined(setting_lines({"2", "Klangfarben: ", "9"})), IsEmpty());
}

}  // namespace
}  // namespace tonarix
