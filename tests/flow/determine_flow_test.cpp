#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "flow/flow_bed.h"

namespace tonarix {
namespace {

struct Combination {
  int abfr_iv, ivg, stimm_g, grd_ton, abfrage, invzahl;
};

std::vector<Combination> all_combinations() {
  std::vector<Combination> all;
  for (int abfr_iv : {0, 1}) {
    for (int ivg : {0, 1, 2}) {
      for (int stimm_g : {0, 1, 2}) {
        for (int grd_ton : {0, 1}) {
          for (int abfrage : {0, 1}) {
            all.push_back(
                {abfr_iv, ivg, stimm_g, grd_ton, abfrage, static_cast<int>(all.size()) % 4 + 1});
          }
        }
      }
    }
  }
  return all;
}

void choose(Einstellung1& window, const Combination& chosen) {
  if (chosen.ivg > 0) window.click(window.E_Oktav[2]);
  window.click(window.ivg[chosen.ivg]);
  window.click(window.abfr_iv[chosen.abfr_iv]);
  window.click(window.stimm_g[chosen.stimm_g]);
  window.click(window.grd_ton[chosen.grd_ton]);
  window.click(window.abfrage[chosen.abfrage]);
  window.click(window.invzahl[chosen.invzahl]);
  window.choose(window.temp_Combo, 9);
}

/// The notes of a playback: each tone of the row at its beat, on its channel, and the keynote
/// below.
void expect_row_sounds(const FlowBed& bed, double from_ms) {
  const Settings& settings = bed.module.settings();
  const bool bent = settings.stimm_g != 0;
  std::vector<RecordingDevices::Note> row;
  int keynotes = 0;
  for (const auto& note : bed.devices.notes()) {
    if (note.at_ms < from_ms) continue;
    if (note.channel == 1) {
      ++keynotes;
      EXPECT_EQ(note.velocity, 50);
    } else {
      row.push_back(note);
    }
  }
  ASSERT_EQ(row.size(), static_cast<std::size_t>(bed.tones()));
  EXPECT_EQ(keynotes, settings.grd_ton == 0 ? 1 : 0);
  for (std::size_t i = 0; i < row.size(); ++i) {
    EXPECT_EQ(row[i].note, bed.module.row().inv_ton[i].chr);
    EXPECT_EQ(row[i].channel, bent ? static_cast<int>(i) + 2 : 0);
    EXPECT_DOUBLE_EQ(row[i].at_ms - row[0].at_ms, static_cast<double>(i) * bed.beat());
  }
}

std::map<std::string, std::string> properties(const pugi::xml_node& node) {
  std::map<std::string, std::string> found;
  for (const pugi::xml_node property : node.children("property")) {
    found[property.attribute("key").value()] = property.attribute("value").value();
  }
  return found;
}

TEST(DetermineFlow, EveryCombinationRunsFromTheFirstWindowToTheDocument) {
  for (const Combination& chosen : all_combinations()) {
    SCOPED_TRACE(testing::Message()
                 << "abfr_iv " << chosen.abfr_iv << " ivg " << chosen.ivg << " stimm_g "
                 << chosen.stimm_g << " grd_ton " << chosen.grd_ton << " abfrage " << chosen.abfrage
                 << " invzahl " << chosen.invzahl);
    FakeHost host;
    FlowBed bed(host);
    choose(bed.open_settings(), chosen);
    Arbeitsblatt1& window = bed.open_exercise();
    constexpr int kTasks = 3;
    for (int task = 1; task <= kTasks; ++task) {
      if (task == 1) {
        EXPECT_EQ(FlowBed::asked(window), 0);
        bed.hear_row();
        expect_row_sounds(bed, 0);
        bed.scheduler.advance_ms(bed.beat());
        for (const Control& mark : window.sounding) EXPECT_FALSE(mark.visible);
      }
      bed.answer_row(window, 1.5);
      EXPECT_EQ(FlowBed::asked(window), -1);
      EXPECT_FALSE(window.CmdNextAufg.visible);
      EXPECT_EQ(window.default_button(), &window.wieder2);
      if (task < kTasks) bed.next_task(window);
    }
    EXPECT_EQ(window.zaehler[0].text, std::to_string(kTasks * (chosen.invzahl + 1)));
    EXPECT_EQ(window.zaehler[1].text, "0");

    const pugi::xml_document& document = bed.leave(window);
    EXPECT_EQ(bed.documents.written.back().path, "/protocols/EXR261121090532.xml");
    const pugi::xml_node root = document.child("exercise");
    const pugi::xml_node lessons = root.child("lessons");
    ASSERT_EQ(std::distance(lessons.children("lesson").begin(), lessons.children("lesson").end()),
              kTasks);
    int number = 0;
    for (const pugi::xml_node lesson : lessons.children("lesson")) {
      EXPECT_EQ(lesson.attribute("interval").as_int(), ++number);
      int lfd = 0;
      for (const pugi::xml_node answer : lesson.child("answers").children("answer")) {
        EXPECT_EQ(answer.attribute("lfd").as_int(), ++lfd);
        const auto facts = properties(answer);
        EXPECT_EQ(facts.at("Antwort"), "true");
        EXPECT_EQ(facts.at("interval"), std::to_string(lfd - 1));
        EXPECT_EQ(std::stod(facts.at("Dauer Antwort")) * 10, std::stod(facts.at("AntwDau")));
      }
      EXPECT_EQ(lfd, chosen.invzahl + 1);
    }
    EXPECT_EQ(bed.windows.newest()->name(), "einstellung1");
    EXPECT_TRUE(bed.windows.newest()->visible);
    EXPECT_TRUE(bed.dialogs.shown.empty());
    EXPECT_TRUE(host.error_places().empty());
  }
}

struct DetermineFlowTest : testing::Test {
  FakeHost host;
  FlowBed bed{host};
};

TEST_F(DetermineFlowTest, WrongAnswersAreCountedLockedAndRevealedAtTheFourth) {
  Einstellung1& settings = bed.open_settings();
  settings.click(settings.abfr_iv[1]);
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  const std::int16_t right = bed.right_code(0);
  std::vector<std::int16_t> tried;
  for (int attempt = 1; attempt <= 4; ++attempt) {
    const std::int16_t code = bed.wrong_code(window, 0);
    tried.push_back(code);
    bed.press(window, code);
    EXPECT_EQ(window.zaehler[1].text, std::to_string(attempt));
    const bool red_on_black = attempt % 2 == 1;
    EXPECT_EQ(window.ergebnis[0].fore, red_on_black ? signal::wrong : signal::black);
    EXPECT_EQ(window.ergebnis[0].back, red_on_black ? signal::black : signal::wrong);
    if (attempt < 4) {
      EXPECT_FALSE(window.intervall[code].enabled);
      EXPECT_EQ(window.ergebnis[0].text, "[232s]");
      EXPECT_EQ(FlowBed::asked(window), 0);
    }
  }
  EXPECT_EQ(FlowBed::asked(window), 1);
  EXPECT_EQ(window.ergebnis[0].text.substr(1), " " + window.intervall[right].text);
  for (const std::int16_t code : tried) EXPECT_TRUE(window.intervall[code].enabled);
  bed.answer_row(window);
  const pugi::xml_document& document = bed.leave(window);
  const auto answers = document.child("exercise").child("lessons").child("lesson").child("answers");
  int lfd = 0;
  for (const pugi::xml_node answer : answers.children("answer")) {
    const auto facts = properties(answer);
    if (++lfd <= 4) {
      EXPECT_EQ(facts.at("Antwort"), "false");
      EXPECT_EQ(std::abs(std::stoi(facts.at("FalschIv"))),
                tried[static_cast<std::size_t>(lfd - 1)]);
    }
  }
  EXPECT_EQ(lfd, 5);
}

TEST_F(DetermineFlowTest, RepeatsStopTheAnswerClockAndAreCounted) {
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  const double before = bed.devices.now_ms();
  bed.scheduler.advance_ms(1000);
  window.wieder_click();
  EXPECT_FALSE(window.grundton.enabled);
  bed.press(window, bed.right_code(0));  // too late: the answers are closed while it sounds
  EXPECT_EQ(window.zaehler[0].text, "0");
  bed.hear_row();
  window.grundton_click();
  bed.scheduler.advance_ms(bed.beat() + 500);
  EXPECT_EQ(window.whlgzaehler.text, "1");
  EXPECT_EQ(window.GrdtonWhlg.text, "1");
  EXPECT_TRUE(window.wieder.enabled);
  bed.scheduler.advance_ms(500);
  bed.press(window, bed.right_code(0));
  EXPECT_EQ(window.zaehler[0].text, "1");
  const auto& document = bed.leave(window);
  const auto facts = properties(
      document.child("exercise").child("lessons").child("lesson").child("answers").child("answer"));
  const double tenths = std::stod(facts.at("AntwDau"));
  EXPECT_GE(tenths, 15);
  EXPECT_LT(tenths * 100, bed.devices.now_ms() - before - bed.beat() * (bed.tones() + 1));
  EXPECT_EQ(std::stod(facts.at("Anz Whlg")), 1.5);
}

TEST_F(DetermineFlowTest, TheKeynoteChordSoundsAtOnceAndOffersTheNextTask) {
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  bed.answer_row(window);
  const double from = bed.devices.now_ms();
  window.grundton_click();
  bed.scheduler.advance_ms(bed.beat() + 500);
  std::vector<RecordingDevices::Note> chord;
  for (const auto& note : bed.devices.notes()) {
    if (note.at_ms >= from) chord.push_back(note);
  }
  ASSERT_EQ(chord.size(), 4U);
  for (const auto& note : chord) EXPECT_EQ(note.at_ms, chord[0].at_ms);
  EXPECT_EQ(chord[0].note - chord[1].note, 12);
  EXPECT_TRUE(window.CmdNextAufg.open());
  EXPECT_EQ(window.GrdtonWhlg.text, "0");
}

TEST_F(DetermineFlowTest, AChosenDegreeIsGivenAndEveryAskedIntervalHasItsButton) {
  Einstellung1& settings = bed.open_settings();
  settings.click(settings.abfr_iv[1]);
  settings.click(settings.tongeschl[2]);
  settings.click(settings.ton_st_wahl[1]);
  settings.choose(settings.degree_list, 3);
  settings.choose(settings.temp_Combo, 9);
  Arbeitsblatt1& window = bed.open_exercise();
  for (int task = 0; task < 200; ++task) {
    bed.hear_row();
    ASSERT_EQ(FlowBed::asked(window), 1);
    ASSERT_EQ(window.ergebnis[0].back, signal::right);
    ASSERT_TRUE(window.intervall[bed.right_code(1)].visible);
    bed.answer_row(window);
    window.wieder2_click();
    bed.hear_row();
    window.CmdNextAufg_click();
  }
  EXPECT_EQ(window.zaehler[0].text, "200");
}

TEST_F(DetermineFlowTest, LeavingBeforeAnyAnswerLeavesADocumentWithoutLessons) {
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  const int queues = bed.devices.count(RecordingDevices::Kind::queue_started);
  const auto& document = bed.leave(window);
  const pugi::xml_node root = document.child("exercise");
  EXPECT_TRUE(root.child("lessons"));
  EXPECT_FALSE(root.child("lessons").first_child());
  EXPECT_GT(std::distance(root.child("settings").children("setting").begin(),
                          root.child("settings").children("setting").end()),
            10);
  EXPECT_EQ(bed.devices.count(RecordingDevices::Kind::queue_started), queues);
  bed.scheduler.advance_ms(60000);
  EXPECT_EQ(bed.devices.count(RecordingDevices::Kind::queue_started), queues);
}

TEST_F(DetermineFlowTest, TheProgramCanAnswerByItselfToTryAWindowOut) {
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  window.Schalter = true;
  for (int i = 0; i < 40 && FlowBed::asked(window) == 0; ++i) {
    bed.hear_row();
    bed.scheduler.advance_ms(5000);
    window.wieder_click();
  }
  EXPECT_NE(window.zaehler[0].text, "0");
}

}  // namespace
}  // namespace tonarix
