#include "engine/exercise_window.h"

#include <gtest/gtest.h>

#include "engine/sounding_window.h"
#include "settings/saved_settings.h"
#include "support/engine_bed.h"

namespace tonarix {
namespace {

/// An exercise in silence that asks the last interval of a row and takes two tries.
class SilentWindow final : public ExerciseWindow {
 public:
  explicit SilentWindow(const ExerciseContext& given) : ExerciseWindow("silent", given) {}
  void answer(bool right) {
    press(answers_open, "answer.", [&] {
      fail();
      const float tenths = answers().take();
      if (right) {
        answers().right(answers().asked(), tenths);
      } else if (answers().wrong(answers().asked(), 0) == Verdict::wrong) {
        answers().open_next(0);
      }
      go_on_after_answer();
    });
  }
  int asked() { return answers().asked(); }
  TaskAnswers::Counts& counts() { return answers().counts; }
  Control answers_open{*this, "answers_open"};
  int shown = 0;
  bool fails = false;

 private:
  std::unique_ptr<RowPlayer> make_player() override { return std::make_unique<SilentPlayer>(); }
  void prepare() override {}
  TaskTuning tune() override { return {}; }
  int first_asked() const override { return context().settings.invzahl; }
  void fail() const {
    if (fails) throw RuntimeError::index_out_of_range("fail");
  }
  void show_task() override {
    fail();
    ++shown;
  }
  void open_answers(bool open) override { answers_open.enabled = open; }
  std::string question_text() const override { return "?"; }
};

struct ExerciseWindowTest : testing::Test, EngineBed {
  SilentWindow& start() {
    settings.Uebungsmodus = Level::training;
    SilentWindow& opened = open<SilentWindow>();
    scheduler.advance_ms(50);
    return opened;
  }
  SilentWindow& window = start();
};

TEST_F(ExerciseWindowTest, InSilenceATaskIsAskedAtOnceAndTheNextOneOfferedWhenItIsDone) {
  for (int task = 1; task <= 3; ++task) {
    EXPECT_EQ(window.phase(), Phase::answering);
    EXPECT_EQ(window.question.text, "?");
    EXPECT_EQ(window.shown, task);
    EXPECT_EQ(window.asked(), 1) << "the first interval is given";
    window.answer(false);
    window.answer(true);
    window.answer(true);  // a second press of the same answer counts nothing
    EXPECT_EQ(window.zaehler[0].text, std::to_string(task));
    EXPECT_EQ(window.zaehler[1].text, std::to_string(task));
    EXPECT_EQ(window.phase(), Phase::next_offered);
    EXPECT_EQ(window.default_button(), &window.CmdNextAufg);
    window.CmdNextAufg_click();
    scheduler.advance_ms(50);
  }
  EXPECT_TRUE(devices.log.empty());
}

TEST_F(ExerciseWindowTest, TheSheetIsToldTheWorkUpToTheMomentOfLeaving) {
  scheduler.advance_ms(20'000);
  window.answer(false);
  window.answer(true);
  scheduler.advance_ms(10'000);
  window.CmdNextAufg_click();
  scheduler.advance_ms(9000);
  window.answer(false);  // a row that is left open is no task done
  window.zurueck_click();
  scheduler.advance_ms(60'000);  // before the question whether to save
  dialogs.answer(Reply::no);
  EXPECT_EQ(work, (WorkDone{1, {}, 39, 1, 2}));
}

TEST_F(ExerciseWindowTest, ATestIsToldInAllAndItsTimeEndsWithItself) {
  settings.Uebungsmodus = Level::exam;
  const auto leave = [&](SilentWindow& test) {
    scheduler.advance_ms(3'600'000);  // reads its end
    test.zurueck_click();
    scheduler.advance_ms(1000);
    protocol.ProtokollNeu();
    return work;
  };
  auto& late = open<SilentWindow>();
  scheduler.advance_ms(1'000);
  late.answer(true);
  late.CmdNextAufg_click();
  const WorkDone first = leave(late);
  const int in_all = first.tasks_in_all.value_or(0);
  EXPECT_GT(in_all, 2);
  EXPECT_GT(first.seconds, 100);
  EXPECT_EQ(first.seconds % 10, 0) << "its time was up";
  EXPECT_EQ(first, (WorkDone{1, in_all, first.seconds, 1, 0}));

  auto& quick = open<SilentWindow>();
  for (int task = 0; task < in_all; ++task) {
    scheduler.advance_ms(1'000);
    quick.answer(true);
    quick.CmdNextAufg_click();
  }
  EXPECT_EQ(leave(quick), (WorkDone{in_all, in_all, in_all, in_all, 0}));
}

TEST_F(ExerciseWindowTest, ATaskIsKeptWithoutTheNextOneHoweverSoonThatBegins) {
  window.answer(true);
  window.CmdNextAufg_click();
  const std::string document = kept.own.value().document;
  EXPECT_NE(document.find("<lesson interval=\"1\">"), std::string::npos);
  EXPECT_EQ(document.find("<lesson interval=\"2\">"), std::string::npos);
}

TEST_F(ExerciseWindowTest, AnErrorClosesItWithoutAskingAndWritesTheProtocol) {
  window.answer(true);
  window.fails = true;
  window.CmdNextAufg_click();
  EXPECT_EQ(window.phase(), Phase::broken);
  scheduler.advance_ms(1000);
  EXPECT_TRUE(documents.written.size() == 1 && windows.count() == 0);
  EXPECT_EQ(dialogs.shown.size(), 2U);
  EXPECT_EQ(dialogs.shown.back().text, "[1174]") << "without settings nothing can be gone on with";
  EXPECT_FALSE(kept.own);
}

TEST_F(ExerciseWindowTest, AnErrorBehindAQuestionWaitsForTheAnswer) {
  settings.Uebungsmodus = Level::exam;
  auto& test = open<SilentWindow>();
  scheduler.advance_ms(50);
  test.zurueck_click();  // asks whether to break off
  test.fails = true;
  test.answer(true);
  scheduler.advance_ms(1000);
  EXPECT_EQ(test.phase(), Phase::broken);
  dialogs.answer(Reply::no);
  scheduler.advance_ms(1000);
  EXPECT_EQ(documents.written.size(), 1U);
}

TEST_F(ExerciseWindowTest, WhatIsKeptIsWholeTasksOfWhoBeganTheExercise) {
  const auto next = [&](SilentWindow& of) {
    of.answer(true);
    of.CmdNextAufg_click();
    scheduler.advance_ms(50);
    return kept.own.value().user;
  };
  host.failing = {"LOGIN"};
  auto& late = open<SilentWindow>();
  scheduler.advance_ms(50);
  EXPECT_EQ(next(late), "");
  host.failing.clear();
  for (const char* name : {"Ada", "Bob", "unbekannt"}) {
    host.answers["LOGIN"] = Variant::Array{name};
    EXPECT_EQ(next(late), "Ada;") << "looked for until it was told";
    EXPECT_FALSE(server.user_known()) << "asked by nobody whom it serves";
  }
  late.answer(false);
  late.zurueck_click();
  dialogs.answer(Reply::no);
  const KeptExercise left = kept.own.value();
  EXPECT_FALSE(left.training);
  EXPECT_NE(left.document.find("<lesson interval=\"4\">"), std::string::npos);
  EXPECT_EQ(left.document.find("<lesson interval=\"5\">"), std::string::npos);
}

TEST_F(ExerciseWindowTest, ATrainingThatAnErrorEndsIsStoredAsItStoodAfterItsLastTask) {
  texts.given[1168] = "%1 %2 %3";
  settings.EinstSicherung = build_EinstSicherung(settings, SettingsKind::einstellung1);
  for (const std::string trouble : {"a task", "a count", "the store"}) {
    const bool store_works = trouble != "the store";
    dialogs.shown.clear();
    auto& broken = open<SilentWindow>();
    scheduler.advance_ms(50);
    broken.answer(true);
    scheduler.advance_ms(1);
    const auto state = Variant::strings(kept.own.value().training.value().state);
    if (!store_works) host.failing = {"STORE"};
    broken.fails = trouble != "a count";
    broken.CmdNextAufg_click();
    scheduler.advance_ms(100);
    broken.counts().right = 32767;
    broken.answer(true);
    scheduler.advance_ms(1000);
    EXPECT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown.at(1).text, store_works ? "1 [221][700][291] ([564]) [565]" : "[1171]");
    const std::string document = documents.written.back().content;
    EXPECT_EQ(document.find("<lesson interval=\"2\">") != std::string::npos, trouble == "a count");
    EXPECT_EQ(host.records["vemo06/A1"] == state, store_works);
    EXPECT_EQ(kept.left.size(), store_works ? 0U : 1U) << "what could not be stored stays kept";
    EXPECT_FALSE(kept.own);
    protocol.ProtokollNeu();
    host.records["vemo06/A1"] = Variant::Array{"False"};
  }
}

}  // namespace
}  // namespace tonarix
