#include <gtest/gtest.h>

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
  ASSERT_EQ(bed.dialogs.shown.size(), 1U);
  EXPECT_EQ(bed.dialogs.shown[0].text, "[1128s]");
  bed.dialogs.answer(Reply::ok);
  EXPECT_EQ(bed.windows.newest(), &window);
  EXPECT_TRUE(window.wieder.open());
  bed.answer_row(window);
  bed.devices.refuses = false;
  const int playbacks = bed.playbacks();
  window.wieder2_click();
  bed.hear_row();
  EXPECT_EQ(bed.playbacks(), playbacks + 1);
  EXPECT_TRUE(window.CmdNextAufg.open());
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
    bed.devices.refuses = false;
    window.CmdNextAufg_click();
    bed.hear_row();
    EXPECT_EQ(FlowBed::asked(window), 0);
    bed.answer_row(window);
    EXPECT_EQ(window.zaehler[0].text, "4");
  }
}

TEST_F(TroubleFlowTest, NoDeviceAtAllStillRunsTheExercise) {
  FlowBed bed(host);
  bed.devices.refuses = true;
  Arbeitsblatt1& window = bed.begin();
  EXPECT_FALSE(bed.dialogs.shown.empty());
  bed.answer_row(window);
  EXPECT_EQ(window.zaehler[0].text, "2");
  bed.leave(window);
}

TEST_F(TroubleFlowTest, AFullDiskOffersToTryAgainAndLosesNothing) {
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin();
  bed.answer_row(window);
  bed.documents.broken_folders = {"/protocols", "/data"};
  window.zurueck_click();
  bed.scheduler.advance_ms(400);
  bed.result().cmdOk_click();
  bed.scheduler.advance_ms(50);
  ASSERT_TRUE(bed.dialogs.open());
  EXPECT_EQ(bed.windows.newest(), &window);
  bed.documents.broken_folders = {"/protocols"};
  bed.dialogs.answer(Reply::yes);
  bed.scheduler.advance_ms(50);
  EXPECT_EQ(bed.documents.written.at(0).path, "/data/EXR261121090532.xml");
  EXPECT_NE(bed.dialogs.shown.back().text.find("/data/EXR261121090532.xml"), std::string::npos);
  bed.settings();
}

TEST_F(TroubleFlowTest, AHostThatFailsInTheExerciseClosesNothing) {
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin();
  host.failing = {"LOGMESS", "LOGERR", "READ", "STORE", "LOGIN", "LANG"};
  bed.answer_row(window);
  bed.next_task(window);
  bed.answer_row(window);
  bed.leave(window);
  EXPECT_EQ(bed.documents.written.size(), 1U);
}

TEST_F(TroubleFlowTest, LeavingInTheMiddleOfAnythingNeverStartsASound) {
  for (double at_ms = 0; at_ms < 400; at_ms += 10) {
    FlowBed bed(host);
    bed.open_settings();
    bed.settings().click(bed.settings().cmdOk);
    bed.scheduler.advance_ms(at_ms);
    Arbeitsblatt1& window = bed.exercise();
    window.title_bar_close();
    const int playbacks = bed.playbacks();
    bed.scheduler.advance_ms(400);
    bed.result().title_bar_close();
    bed.scheduler.advance_ms(60000);
    EXPECT_EQ(bed.playbacks(), playbacks) << at_ms;
    bed.settings().title_bar_close();
    bed.scheduler.advance_ms(50);
    bed.selection().cmdEnde_click();
    bed.scheduler.advance_ms(50);
    EXPECT_TRUE(bed.ended);
    EXPECT_EQ(host.calls_of("MENUE").size(), 1U);
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
      if (bed.ended) {
        EXPECT_EQ(std::string(key), "STATUS");
        EXPECT_EQ(bed.dialogs.shown.size(), 1U);
        continue;
      }
      Arbeitsblatt1& window = bed.begin();
      bed.answer_row(window);
      bed.leave(window);
      EXPECT_EQ(bed.documents.written.size(), 1U) << key;
    }
  }
}

}  // namespace
}  // namespace tonarix
