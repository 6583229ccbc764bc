#include <gmock/gmock.h>

#include "flow/flow_bed.h"

namespace tonarix {
namespace {

struct TroubleFlowTest : testing::Test {
  FakeHost host;
};

TEST_F(TroubleFlowTest, ADeviceThatVanishesLeavesTheExerciseOpenAndComesBack) {
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin();
  bed.press(window, bed.right_code(0));
  bed.dialogs.hold = true;
  bed.devices.refuses = true;
  window.wieder_click();
  bed.scheduler.advance_ms(60000);
  EXPECT_EQ(bed.dialogs.shown.at(0).text, "[1128s]");
  bed.dialogs.answer(Reply::ok);
  EXPECT_TRUE(window.wieder.open());
  bed.answer_row(window);
  bed.devices.refuses = false;
  const int playbacks = bed.devices.queues_started;
  bed.next_task(window);
  EXPECT_EQ(bed.devices.queues_started, playbacks + 2);
  EXPECT_EQ(window.zaehler[0].text, "2");
  const auto answers = FlowBed::lessons(bed.leave(window)).at(0);
  EXPECT_LT(std::stod(answers.at(1).at("AntwDau")), 30) << "reading a message is not answer time";
}

TEST_F(TroubleFlowTest, ADeviceGoneAfterTheRowOpensNoAnswers) {
  for (const bool by_keynote : {false, true}) {
    FlowBed bed(host);
    Arbeitsblatt1& window = bed.begin();
    bed.answer_row(window);
    bed.devices.refuses = true;
    by_keynote ? window.grundton_click() : window.wieder2_click();
    bed.hear_row();
    EXPECT_EQ(bed.dialogs.shown.size(), 1U);
    for (const Control& button : window.st_int) EXPECT_FALSE(button.enabled);
    EXPECT_TRUE(window.CmdNextAufg.open());
  }
}

TEST_F(TroubleFlowTest, AFullDiskOffersToTryAgainAndLosesNothing) {
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin();
  bed.documents.broken_folders = {"/protocols", "/data"};
  window.zurueck_click();
  bed.scheduler.advance_ms(400);
  bed.result().cmdOk_click();
  bed.scheduler.advance_ms(50);
  ASSERT_TRUE(bed.dialogs.open() && bed.windows.newest() == &window);
  bed.documents.broken_folders = {"/protocols"};
  bed.dialogs.answer(Reply::yes);
  bed.scheduler.advance_ms(50);
  EXPECT_EQ(bed.documents.written.at(0).path, "/data/EXR261121090532.xml");
  EXPECT_EQ(bed.dialogs.shown.back().text,
            "[1112s] /protocols/EXR261121090532.xml: [1014s]\n[1135s]\n/data/EXR261121090532.xml");
  EXPECT_EQ(host.calls_of("LOGERR").at(0).input.at(2).text(),
            "/protocols/EXR261121090532.xml: No space left on device")
      << "the system's own words are for the log";
  bed.settings();
}

TEST_F(TroubleFlowTest, WithoutADeviceAndAHostTheExerciseStillRuns) {
  FlowBed bed(host);
  bed.devices.refuses = true;
  Arbeitsblatt1& window = bed.begin();
  EXPECT_FALSE(bed.dialogs.shown.empty());
  host.failing = {"LOGMESS", "LOGERR", "READ", "STORE", "LOGIN", "LANG"};
  bed.answer_row(window);
  bed.next_task(window);
  bed.answer_row(window);
  EXPECT_EQ(window.zaehler[0].text, "4");
  EXPECT_EQ(FlowBed::lessons(bed.leave(window)).size(), 2U);
}

TEST_F(TroubleFlowTest, LeavingInTheMiddleOfAnythingNeverStartsASound) {
  for (double at_ms = 0; at_ms < 400; at_ms += 10) {
    FlowBed bed(host);
    bed.open_settings().click(bed.settings().cmdOk);
    bed.scheduler.advance_ms(at_ms);
    const int playbacks = bed.devices.queues_started;
    bed.exercise().title_bar_close();
    bed.scheduler.advance_ms(at_ms);
    bed.result().title_bar_close();
    bed.scheduler.advance_ms(450);
    const pugi::xml_node exercise = bed.written();
    EXPECT_TRUE(exercise.child("lessons") && exercise.child("settings").first_child());
    EXPECT_FALSE(exercise.child("lessons").first_child()) << "nothing was answered";
    bed.scheduler.advance_ms(60000);
    EXPECT_EQ(bed.devices.queues_started, playbacks) << at_ms;
    bed.settings().title_bar_close();
    bed.scheduler.advance_ms(50);
    bed.selection().cmdEnde_click();
    bed.scheduler.advance_ms(50);
    EXPECT_TRUE(bed.ended && host.calls_of("MENUE").size() == 1);
    host.calls.clear();
  }
}

TEST_F(TroubleFlowTest, WhateverTheHostAnswersTheProgramStartsOrEndsCleanly) {
  const std::vector<Variant> nonsense{
      Variant(), "", "x", 7.0, Variant::Array{}, Variant::Array{"NIL"}};
  for (const char* key : {"STATUS", "MIDI", "LOGIN", "LANG", "READ"}) {
    for (const Variant& answer : nonsense) {
      FakeHost strange;
      strange.answers[key] = answer;
      FlowBed bed(strange);
      EXPECT_EQ(bed.ended, std::string(key) == "STATUS" && !bed.dialogs.shown.empty());
      if (bed.ended) continue;
      Arbeitsblatt1& window = bed.begin();
      bed.answer_row(window);
      EXPECT_EQ(FlowBed::lessons(bed.leave(window)).size(), 1U) << key;
    }
  }
}

}  // namespace
}  // namespace tonarix
