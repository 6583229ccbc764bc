#include "results/protocol/protokoll.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <locale>

#include "support/fake_document_writer.h"
#include "support/fake_host.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

struct StandingClock final : WallClock {
  CivilTime now() const override { return {2026, 11, 21, 9, 5, 32}; }
};

using Facts = std::vector<std::pair<std::string, std::string>>;

Facts facts_of(pugi::xml_node parent, const char* item = "property") {
  Facts facts;
  for (const pugi::xml_node fact : parent.children(item)) {
    facts.emplace_back(fact.attribute("key").value(), fact.attribute("value").value());
  }
  return facts;
}

struct ProtokollTest : testing::Test {
  ProtokollTest() {
    server.ServerInit("vemo06");
    host.answers["LOGIN"] = Variant::Array{"Lovelace & Söhne", "Ada", "4711"};
  }

  pugi::xml_node read(std::size_t document = 0) {
    EXPECT_TRUE(parsed.load_string(writer.written.at(document).content.c_str()));
    return parsed.child("exercise");
  }
  LessonFacts two_intervals() const {
    LessonFacts facts;
    facts.interval = 1;
    facts.qz_tones = {17, 18, 14};
    facts.intervals = {{"+ Quinte", "+ Quinte"}, {"Stufe nicht leitereigen", "- große Terz"}};
    facts.iv_nr = 0;
    return facts;
  }

  FakeHost host;
  Server server{host.factory(), {"vemo06", "test"}};
  StandingClock clock;
  FakeDocumentWriter writer;
  std::vector<std::string> logged;
  Protokoll protokoll{
      server, clock, writer, {"/usual", "/data"}, [this](std::string_view tag, std::exception_ptr) {
        logged.emplace_back(tag);
      }};
  pugi::xml_document parsed;
};

TEST_F(ProtokollTest, AWholeExerciseReadsBackAsTold) {
  protokoll.ProtokollNeu();
  protokoll.ProtokollAufgabe(two_intervals());
  protokoll.ProtokollProperty("AntwDau", 23.0F);
  protokoll.ProtokollProperty("Antwort", "false");
  protokoll.ProtokollProperty("FalschIv", -3);
  protokoll.ProtokollMesswerte(2.25, 1.5);
  protokoll.ProtokollAntwort(2, 0);
  protokoll.ProtokollProperty("Antwort", "true");
  LessonFacts tuned = two_intervals();
  tuned.interval = 2;
  tuned.ueb_typ = 2;
  tuned.iv_nr = 1;
  tuned.pb_abweichung = {0, -5, 3};
  protokoll.ProtokollAufgabe(tuned);
  protokoll.ProtokollMesswerte(0.1F, 0, -12);
  const FinishResult result = protokoll.ProtokollSchluss("bestimmen", "tonale Intervalle",
                                                         {"4", "Tempo", "40 (Largo)", "Nr.:", ""});

  EXPECT_EQ(result.path, "/usual/EXR261121090532.xml");
  EXPECT_FALSE(result.fell_back || result.failed);
  const pugi::xml_node root = read();
  const pugi::xml_node properties = root.child("properties");
  EXPECT_STREQ(properties.attribute("programm").value(), "VEMO06");
  EXPECT_STREQ(properties.attribute("ukey").value(), "Lovelace & Söhne");
  EXPECT_STREQ(properties.child_value("exercise"), "bestimmen");
  EXPECT_STREQ(properties.child_value("timestamp"), "21.11.2026 09:05:32");
  EXPECT_STREQ(properties.child_value("description"), "Untersuchung: tonale Intervalle");
  EXPECT_THAT(facts_of(root.child("settings"), "setting"),
              ElementsAre(Pair("Tempo", "40 (Largo)"), Pair("Nr.:", "")));

  const pugi::xml_node first = root.child("lessons").child("lesson");
  EXPECT_STREQ(first.attribute("interval").value(), "1");
  EXPECT_THAT(facts_of(first.child("properties")),
              ElementsAre(Pair("number", "1"), Pair("QzTon", "17"), Pair("number", "2"),
                          Pair("QzTon", "18"), Pair("number", "3"), Pair("QzTon", "14"),
                          Pair("Stufen-Iv", "+ Quinte"), Pair("direktes-Iv", "+ Quinte"),
                          Pair("Stufen-Iv", "Stufe nicht leitereigen"),
                          Pair("direktes-Iv", "- große Terz")));
  const pugi::xml_node answer = first.child("answers").child("answer");
  EXPECT_STREQ(answer.attribute("lfd").value(), "1");
  EXPECT_THAT(
      facts_of(answer),
      ElementsAre(Pair("interval", "0"), Pair("AntwDau", "23"), Pair("Antwort", "false"),
                  Pair("FalschIv", "-3"), Pair("Dauer Antwort", "2.25"), Pair("Anz Whlg", "1.5")));
  EXPECT_STREQ(answer.next_sibling().attribute("lfd").value(), "2");
  EXPECT_THAT(facts_of(answer.next_sibling()),
              ElementsAre(Pair("interval", "0"), Pair("Antwort", "true")));

  const pugi::xml_node second = first.next_sibling();
  EXPECT_STREQ(second.attribute("interval").value(), "2");
  const Facts of_task = facts_of(second.child("properties"));
  EXPECT_THAT(Facts(of_task.end() - 3, of_task.end()),
              ElementsAre(Pair("PB-Abweichung", "0"), Pair("PB-Abweichung", "-5"),
                          Pair("PB-Abweichung", "3")));
  const Facts of_answer = facts_of(second.child("answers").child("answer"));
  EXPECT_THAT(of_answer.front(), Pair("interval", "1"));
  EXPECT_THAT(of_answer.back(), Pair("Pitch Gap", "-12"));
}

TEST_F(ProtokollTest, WritingRecordsTheTonesAndOpensItsAnswersLater) {
  LessonFacts facts = two_intervals();
  facts.ueb_typ = 4;
  facts.pb_abweichung = {1, 2, 3};
  protokoll.ProtokollNeu();
  protokoll.ProtokollAufgabe(facts);
  protokoll.ProtokollAntwort(1);
  protokoll.ProtokollProperty("Antwort", "true");
  protokoll.ProtokollSchluss("schreiben", "", {"0"});
  const pugi::xml_node lesson = read().child("lessons").child("lesson");
  EXPECT_EQ(facts_of(lesson.child("properties")).size(), 6U);
  EXPECT_THAT(facts_of(lesson.child("answers").child("answer")),
              ElementsAre(Pair("Antwort", "true")));
}

TEST_F(ProtokollTest, WhatWasNeverAnsweredIsLeftOut) {
  for (const bool answered : {false, true}) {
    protokoll.ProtokollNeu();
    protokoll.ProtokollAufgabe(two_intervals());
    if (answered) {
      protokoll.ProtokollMesswerte(1, 0);
      protokoll.ProtokollAntwort(2, 0);
    }
    protokoll.ProtokollSchluss("bestimmen", "", {});
    const pugi::xml_node lessons = read(answered ? 1 : 0).child("lessons");
    ASSERT_TRUE(lessons);
    const auto answers = lessons.child("lesson").child("answers").children();
    EXPECT_EQ(std::distance(answers.begin(), answers.end()), answered ? 1 : 0);
    EXPECT_EQ(lessons.first_child().empty(), !answered);
  }
}

TEST_F(ProtokollTest, EachExerciseHasItsOwnDocumentTheSameSecondTheSameName) {
  for (const char* caption : {"first", "second"}) {
    protokoll.ProtokollNeu();
    protokoll.ProtokollSchluss(caption, "", {});
  }
  EXPECT_EQ(writer.written.at(0).path, writer.written.at(1).path);
  const pugi::xml_node root = read(1);
  EXPECT_STREQ(root.child("properties").child_value("exercise"), "second");
  EXPECT_EQ(std::distance(root.begin(), root.end()), 3);
}

TEST_F(ProtokollTest, NumbersHaveAPointAndNoExponentWhateverTheLocale) {
  struct Comma final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
  protokoll.ProtokollNeu();
  protokoll.ProtokollAufgabe({});
  protokoll.ProtokollProperty("float", 0.1F);
  protokoll.ProtokollProperty("large", 1e300);
  protokoll.ProtokollProperty("small", 0.00001);
  protokoll.ProtokollSchluss("", "", {});
  std::locale::global(before);
  const Facts facts =
      facts_of(read().child("lessons").child("lesson").child("answers").child("answer"));
  EXPECT_EQ(facts[0].second, "0.1");
  EXPECT_EQ(facts[1].second.size(), 301U);
  EXPECT_EQ(facts[2].second, "0.00001");
}

TEST_F(ProtokollTest, AFullDiskFallsBackToTheDataFolderAndTellsWhy) {
  protokoll.ProtokollNeu();
  writer.broken_folders = {"/usual"};
  const FinishResult result = protokoll.ProtokollSchluss("bestimmen", "", {});
  EXPECT_TRUE(result.fell_back);
  EXPECT_FALSE(result.failed);
  EXPECT_EQ(result.wanted, "/usual/EXR261121090532.xml");
  EXPECT_EQ(result.path, "/data/EXR261121090532.xml");
  EXPECT_EQ(result.reason, "No space left on device");
  EXPECT_EQ(writer.written.at(0).path, result.path);
}

TEST_F(ProtokollTest, NothingIsLostWhileNoFolderTakesIt) {
  protokoll.ProtokollNeu();
  protokoll.ProtokollAufgabe(two_intervals());
  protokoll.ProtokollMesswerte(1, 0);
  writer.broken_folders = {"/usual", "/data"};
  EXPECT_TRUE(protokoll.ProtokollSchluss("bestimmen", "", {}).failed);
  EXPECT_THAT(writer.written, IsEmpty());
  writer.broken_folders.clear();
  const FinishResult result = protokoll.finish_again();
  EXPECT_FALSE(result.failed || result.fell_back);
  const pugi::xml_node root = read();
  const auto captions = root.child("properties").children("exercise");
  EXPECT_EQ(std::distance(captions.begin(), captions.end()), 1) << "the end is told once";
  EXPECT_TRUE(root.child("lessons").child("lesson"));
}

TEST_F(ProtokollTest, ATaskThatCannotBeRecordedIsLoggedAllElseSurfaces) {
  EXPECT_NO_THROW(protokoll.ProtokollAufgabe(two_intervals()));
  EXPECT_THAT(logged, ElementsAre("ProtokollAufgabe."));
  EXPECT_THROW(protokoll.ProtokollAntwort(1), RuntimeError);
  EXPECT_THROW(protokoll.ProtokollProperty("key", 1), RuntimeError);
  EXPECT_THROW(protokoll.ProtokollSchluss("", "", {}), RuntimeError);
  protokoll.ProtokollNeu();
  EXPECT_THROW(protokoll.ProtokollMesswerte(1, 1), RuntimeError);
}

TEST(ProtocolFolder, TheEnvironmentsTempGoesFirst) {
  setenv("temp", "/somewhere", 1);
  EXPECT_EQ(protocol_folder(), "/somewhere");
  unsetenv("temp");
  EXPECT_EQ(protocol_folder(), std::filesystem::temp_directory_path());
}

}  // namespace
}  // namespace tonarix
