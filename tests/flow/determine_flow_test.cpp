#include <gtest/gtest.h>

#include "flow/flow_bed.h"

namespace tonarix {
namespace {

TEST(DetermineFlow, EveryCombinationRunsFromTheFirstWindowToTheDocument) {
  for (int number = 0; number < 2 * 2 * 3 * 4; ++number) {
    SCOPED_TRACE(number);
    const int invzahl = number / 12 + 1;
    FakeHost host;
    FlowBed bed(host);
    Einstellung1& settings = bed.open_settings();
    const int ivg = number / 4 % 3;
    if (ivg > 0) settings.click(settings.E_Oktav[2]);
    settings.click(settings.ivg[ivg]);
    settings.click(settings.abfr_iv[number % 2]);
    settings.click(settings.abfrage[number / 2 % 2]);
    settings.click(settings.invzahl[invzahl]);
    settings.choose(settings.temp_Combo, 9);
    Arbeitsblatt1& window = bed.open_exercise();
    EXPECT_EQ(FlowBed::asked(window), 0);
    bed.hear_row();
    bed.scheduler.advance_ms(bed.beat());
    for (const Control& mark : window.sounding) EXPECT_FALSE(mark.visible);
    constexpr int kTasks = 3;
    for (int task = 1; task <= kTasks; ++task) {
      if (task > 1) bed.next_task(window);
      bed.answer_row(window, 1.5);
      EXPECT_FALSE(window.CmdNextAufg.visible);
      EXPECT_EQ(window.default_button(), &window.wieder2);
    }
    EXPECT_EQ(window.zaehler[0].text, std::to_string(kTasks * (invzahl + 1)));
    EXPECT_EQ(window.zaehler[1].text, "0");

    const pugi::xml_node exercise = bed.leave(window);
    EXPECT_EQ(bed.documents.written.back().path, "/protocols/EXR261121090532.xml");
    int lesson_number = 0;
    for (const pugi::xml_node lesson : exercise.child("lessons").children()) {
      EXPECT_EQ(lesson.attribute("interval").as_int(), ++lesson_number);
    }
    EXPECT_EQ(lesson_number, kTasks);
    for (const auto& answers : FlowBed::lessons(exercise)) {
      EXPECT_EQ(std::ssize(answers), invzahl + 1);
      int lfd = 0;
      for (const FlowBed::Facts& facts : answers) {
        EXPECT_EQ(facts.at("interval"), std::to_string(lfd));
        EXPECT_EQ(facts.at("lfd"), std::to_string(++lfd));
        EXPECT_EQ(std::stod(facts.at("Dauer Antwort")) * 10, std::stod(facts.at("AntwDau")));
      }
    }
    EXPECT_TRUE(bed.settings().visible);
    EXPECT_TRUE(bed.dialogs.shown.empty() && host.error_places().empty());
  }
}

struct DetermineFlowTest : testing::Test {
  FakeHost host;
  FlowBed bed{host};
  Einstellung1& settings = bed.open_settings();
};

TEST_F(DetermineFlowTest, WrongAnswersAreCountedLockedAndRevealedAtTheFourth) {
  settings.click(settings.abfr_iv[1]);
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  const std::int16_t right = bed.right_code(0);
  std::vector<std::int16_t> tried;
  for (int attempt = 1; attempt <= 4; ++attempt) {
    const std::int16_t code = tried.emplace_back(bed.wrong_code(window, 0));
    bed.press(window, code);
    EXPECT_EQ(window.zaehler[1].text, std::to_string(attempt));
    EXPECT_EQ(FlowBed::asked(window), attempt < 4 ? 0 : 1);
    if (attempt == 4) continue;
    const bool red_on_black = attempt % 2 == 1;
    EXPECT_EQ(window.ergebnis[0].fore, red_on_black ? signal::wrong : signal::black);
    EXPECT_EQ(window.ergebnis[0].back, red_on_black ? signal::black : signal::wrong);
    EXPECT_EQ(window.tries[0].text, std::to_string(4 - attempt));
    EXPECT_FALSE(window.intervall[code].enabled);
    EXPECT_EQ(window.ergebnis[0].text, "[232s]");
  }
  EXPECT_EQ(window.ergebnis[0].back, signal::given);
  const TaskRow& row = bed.module.row();
  const bool leap = row.inv_ton[0].chr != row.inv_ton[1].chr;
  EXPECT_EQ(window.ergebnis[0].text, std::string("[1125s]: ") + (row.iv[0] > 0 ? "+ " : "- ") +
                                         (right > 1 ? window.intervall[right].text
                                          : leap    ? "[450s]"
                                                    : "[449s]"));
  for (const std::int16_t code : tried) EXPECT_TRUE(window.intervall[code].enabled);
  EXPECT_FALSE(window.matboxanz[15].visible || window.lab_aufgaben.visible);
  window.zurueck_click();
  bed.scheduler.advance_ms(400);
  EXPECT_TRUE(bed.result().content().table.rows.empty()) << "without a level nothing is scored";
  EXPECT_EQ(bed.result().content().table.total.text, "0.0 %");
  EXPECT_TRUE(host.records.empty());
}

TEST_F(DetermineFlowTest, TheProgramCanAnswerByItselfToTryAWindowOut) {
  Arbeitsblatt1& window = bed.open_exercise();
  window.Schalter = true;
  for (int i = 0; i < 40 && FlowBed::asked(window) == 0; ++i) {
    bed.scheduler.advance_ms(10000);
    window.wieder_click();
  }
  EXPECT_NE(window.zaehler[0].text, "0");
}

}  // namespace
}  // namespace tonarix
