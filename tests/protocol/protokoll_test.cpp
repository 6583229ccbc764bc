#include "protocol/protokoll.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <locale>

#include "support/fake_document_writer.h"
#include "support/fake_host.h"

namespace tonarix {
namespace {

struct StandingClock final : WallClock {
  CivilTime now() const override { return {2026, 11, 21, 9, 5, 32}; }
};

struct ProtokollTest : testing::Test {
  ProtokollTest() {
    server.ServerInit("vemo06");
    host.answers["LOGIN"] = Variant::Array{"Lovelace & Söhne", "Ada", "4711"};
  }
  void task(std::int16_t interval, bool tones_alone, std::int16_t iv_nr,
            std::vector<std::int16_t> pb_abweichung) {
    LessonFacts facts;
    facts.interval = interval;
    facts.tones_alone = tones_alone;
    facts.qz_tones = {17, 18, 14};
    facts.intervals = {{"+ Quinte", "+ Quinte"}, {"Stufe nicht leitereigen", "- große Terz"}};
    facts.pb_abweichung = std::move(pb_abweichung);
    facts.iv_nr = iv_nr;
    protokoll.ProtokollAufgabe(facts);
  }
  const std::string& document() const { return writer.written.at(0).content; }

  FakeHost host;
  Server server{host.factory(), {"vemo06", "test"}};
  StandingClock clock;
  FakeDocumentWriter writer;
  std::string logged;
  Protokoll protokoll{
      server, clock, writer, {"/usual", "/data"}, [this](std::string_view tag, std::exception_ptr) {
        logged += tag;
      }};
};

struct Comma final : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

TEST_F(ProtokollTest, AnExerciseReadsAsTheExampleWhateverTheLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
  protokoll.ProtokollNeu();
  task(9, false, 0, {});  // given up for a new document
  protokoll.ProtokollNeu();
  task(1, false, 0, {});
  protokoll.ProtokollProperty("AntwDau", 23.0F);
  protokoll.ProtokollProperty("Antwort", "false");
  protokoll.ProtokollProperty("FalschIv", -3);
  protokoll.ProtokollMesswerte(2.25, 1.5);
  protokoll.ProtokollAntwort(2, 0);
  protokoll.ProtokollProperty("Antwort", "true");
  task(2, false, 1, {0, -5, 3});  // tuning
  protokoll.ProtokollMesswerte(1e22, 0.00001, -12);
  protokoll.ProtokollProperty("float", 0.1F);
  task(3, true, 0, {1, 2, 3});  // writing has its answers later
  protokoll.ProtokollAntwort(1);
  protokoll.ProtokollProperty("Antwort", "true");
  protokoll.ProtokollAntwort(2);  // never given
  protokoll.ProtokollSchluss("bestimmen", "tonale Intervalle",
                             {"4", "Tempo", "40 (Largo)", "Nr.:", ""});
  std::locale::global(before);
  std::ifstream example(TONARIX_EXAMPLES "/exercise.xml");
  EXPECT_EQ(document(), std::string(std::istreambuf_iterator<char>(example), {}));
}

TEST_F(ProtokollTest, NothingIsLostWhileNoFolderTakesIt) {
  protokoll.ProtokollNeu();
  task(1, false, 0, {});
  protokoll.ProtokollMesswerte(1, 0);
  writer.broken_folders = {"/usual", "/data"};
  EXPECT_TRUE(protokoll.ProtokollSchluss("bestimmen", "", {}).failed);
  writer.broken_folders = {"/usual"};
  const FinishResult fallen_back = protokoll.finish_again();
  EXPECT_TRUE(fallen_back.fell_back && !fallen_back.failed);
  EXPECT_EQ(fallen_back.wanted, "/usual/EXR261121090532.xml");
  EXPECT_EQ(fallen_back.path, "/data/EXR261121090532.xml");
  EXPECT_EQ(fallen_back.reason, "No space left on device");
  writer.broken_folders.clear();
  const FinishResult result = protokoll.finish_again();
  EXPECT_FALSE(result.failed || result.fell_back);
  EXPECT_EQ(writer.written.at(1).path, result.wanted);
  EXPECT_EQ(writer.written[1].content, document()) << "the end is told once";
}

TEST_F(ProtokollTest, ATaskThatCannotBeRecordedIsLoggedAllElseSurfaces) {
  EXPECT_NO_THROW(task(1, false, 0, {}));
  EXPECT_EQ(logged, "ProtokollAufgabe.");
  EXPECT_THROW(protokoll.ProtokollAntwort(1), RuntimeError);
  EXPECT_THROW(protokoll.ProtokollProperty("key", 1), RuntimeError);
  EXPECT_THROW(protokoll.ProtokollSchluss("", "", {}), RuntimeError);
}

}  // namespace
}  // namespace tonarix
