#include <gtest/gtest.h>

#include "flow/flow_bed.h"

namespace tonarix {
namespace {

struct TroubleFlowTest : testing::Test {
  FakeHost host;
};

TEST_F(TroubleFlowTest, ADeviceThatVanishesLeavesTheExerciseOpenAndComesBack) {
  FlowBed bed(host);
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  bed.press(window, bed.right_code(0));
  bed.devices.refuses = true;
  window.wieder_click();
  bed.hear_row();
  ASSERT_EQ(bed.dialogs.shown.size(), 1U);
  EXPECT_EQ(bed.dialogs.shown[0].text, "[1128s]");
  EXPECT_EQ(bed.windows.newest(), &window);
  EXPECT_TRUE(window.wieder.open());
  bed.answer_row(window);
  bed.devices.refuses = false;
  const int queues = bed.devices.count(RecordingDevices::Kind::queue_started);
  window.wieder2_click();
  bed.hear_row();
  EXPECT_EQ(bed.devices.count(RecordingDevices::Kind::queue_started), queues + 1);
  EXPECT_TRUE(window.CmdNextAufg.open());
  EXPECT_EQ(window.zaehler[0].text, "2");
  bed.leave(window);
}

TEST_F(TroubleFlowTest, ADeviceGoneAfterTheRowOpensNoAnswers) {
  for (const bool by_keynote : {false, true}) {
    FlowBed bed(host);
    bed.open_settings();
    Arbeitsblatt1& window = bed.open_exercise();
    bed.hear_row();
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

TEST_F(TroubleFlowTest, ReadingAMessageIsNotAnswerTime) {
  FlowBed bed(host);
  bed.dialogs.hold = true;
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  bed.devices.refuses = true;
  window.wieder_click();
  bed.scheduler.advance_ms(60000);
  ASSERT_TRUE(bed.dialogs.open());
  bed.dialogs.answer(Reply::ok);
  bed.scheduler.advance_ms(1000);
  bed.press(window, bed.right_code(0));
  bed.devices.refuses = false;
  const pugi::xml_node answer = bed.leave(window)
                                    .child("exercise")
                                    .child("lessons")
                                    .child("lesson")
                                    .child("answers")
                                    .child("answer");
  const auto time = answer.find_child_by_attribute("key", "AntwDau").attribute("value");
  EXPECT_LT(time.as_double(), 30);
}

TEST_F(TroubleFlowTest, NoDeviceAtAllStillRunsTheExercise) {
  FlowBed bed(host);
  bed.devices.refuses = true;
  bed.open_settings();
  bed.scheduler.advance_ms(50);
  EXPECT_FALSE(bed.dialogs.shown.empty());
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  bed.answer_row(window);
  EXPECT_EQ(window.zaehler[0].text, "2");
  bed.leave(window);
  EXPECT_EQ(bed.windows.newest()->name(), "einstellung1");
}

TEST_F(TroubleFlowTest, AFullDiskOffersToTryAgainAndLosesNothing) {
  FlowBed bed(host);
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
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
  EXPECT_EQ(bed.windows.newest()->name(), "einstellung1");
}

TEST_F(TroubleFlowTest, AHostThatFailsInTheExerciseClosesNothing) {
  FlowBed bed(host);
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
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
    const int queues = bed.devices.count(RecordingDevices::Kind::queue_started);
    bed.scheduler.advance_ms(400);
    bed.result().title_bar_close();
    bed.scheduler.advance_ms(60000);
    EXPECT_EQ(bed.devices.count(RecordingDevices::Kind::queue_started), queues) << at_ms;
    EXPECT_EQ(bed.windows.newest()->name(), "einstellung1");
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
  const Variant nonsense[] = {Variant(),
                              Variant(""),
                              Variant("x"),
                              Variant(7.0),
                              Variant(Variant::Array{}),
                              Variant(Variant::Array{"NIL"})};
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
      bed.open_settings();
      Arbeitsblatt1& window = bed.open_exercise();
      bed.hear_row();
      bed.answer_row(window);
      bed.leave(window);
      EXPECT_EQ(bed.documents.written.size(), 1U) << key;
    }
  }
}

}  // namespace
}  // namespace tonarix
