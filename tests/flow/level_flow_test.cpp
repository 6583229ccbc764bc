#include <gtest/gtest.h>

#include <array>
#include <set>

#include "flow/level_bed.h"

namespace tonarix {
namespace {

int percent(const Arbeitsblatt1& window) {
  return std::stoi(window.matboxanz[15].text);
}
TEST_F(LevelFlowTest, ATrainingEndsSolvedOrTooHard) {
  LevelBed bed(host);
  Arbeitsblatt1& window = bed.begin(1);
  EXPECT_EQ(percent(window), 50);
  EXPECT_TRUE(window.ergebnis_anz[0].visible);
  std::string told;
  window.on_announced = [&](const std::string& news) { told = news; };
  bed.play(window, 0);
  EXPECT_TRUE(told.ends_with("[1166s]. [1101s]. [1144s]")) << told;
  EXPECT_TRUE(window.ergebnis_anz[1].visible && !window.ergebnis_anz[0].visible);
  EXPECT_EQ(percent(window), 0);
  EXPECT_EQ(window.zurueck.text, "[625s]");
  EXPECT_EQ(window.zurueck.back, RGB(255, 255, 0));
  EXPECT_EQ(window.default_button(), &window.zurueck);
  EXPECT_EQ(state(), Variant::strings({"False"}));

  // The row can still be heard, but no further task is offered.
  window.wieder2_click();
  bed.hear_row();
  EXPECT_FALSE(window.CmdNextAufg.visible);
  bed.leave(window);
  EXPECT_TRUE(bed.dialogs.shown.empty()) << "a finished training is not offered for saving";
  EXPECT_EQ(bed.saved_training_entry(), "---------------");
  EXPECT_EQ(bed.settings().training_Combo.selected, 1);

  Arbeitsblatt1& hard = bed.open_exercise();
  bed.hear_row();
  bed.play(hard, 1);
  EXPECT_TRUE(hard.ergebnis_anz[2].visible);
  EXPECT_EQ(percent(hard), 100);
}

TEST_F(LevelFlowTest, ASavedTrainingGoesOnByItsFlagInANewProcessAsItWasLeft) {
  const auto standing = [](const Arbeitsblatt1& window) {
    return std::array{window.zaehler[1].text, window.whlgzaehler.text, window.matboxanz[15].text};
  };
  std::array<std::string, 3> left;
  {
    LevelBed bed(host, 7);
    Arbeitsblatt1& window = bed.begin(1);
    window.wieder_click();
    bed.hear_row();
    for (int task = 0; task < 9; ++task) {
      if (task > 0) bed.next_task(window);
      bed.answer_row(window, 2.5, 0.4);
    }
    left = standing(window);
    EXPECT_NE(left[0], "0");
    bed.save(window);
    EXPECT_EQ(bed.dialogs.shown.at(0).text, "[495s]");
    EXPECT_EQ(bed.saved_training_entry(), "[565s]");
    EXPECT_EQ(bed.settings().training_Combo.selected, 1);
  }
  const Variant saved = state();
  for (const char* flag : {"True", "False", "NIL", ""}) {
    Variant::Array changed = saved.array();
    changed.at(0) = flag;
    state() = changed;
    LevelBed bed(host);
    bed.open_settings();
    EXPECT_EQ(bed.saved_training_entry(), "---------------") << flag;
  }
  state() = saved;
  LevelBed bed(host, 8);
  bed.open_settings().choose(bed.settings().training_Combo, 2);
  host.failing = {"READ"};  // it goes on as it was read when it was chosen
  Arbeitsblatt1& window = bed.open_exercise();
  EXPECT_EQ(standing(window), left);
  EXPECT_EQ(window.zaehler[0].text, "0");

  // Leaving at once asks nothing and leaves the record; one task later the state is stored anew.
  bed.leave(window);
  EXPECT_EQ(bed.work, "0 [1239s] [1246s], 0 [1247s], 0 [1248s]") << "of this sitting";
  EXPECT_TRUE(bed.dialogs.shown.empty());
  EXPECT_EQ(state(), saved);
  host.failing.clear();
  Arbeitsblatt1& again = bed.open_exercise();
  EXPECT_EQ(standing(again), left);
  bed.hear_row();
  bed.answer_row(again, 1);
  bed.save(again);
  EXPECT_EQ(bed.dialogs.shown.back().text, "[495s]") << "it replaces its own state";
  EXPECT_NE(state(), saved);
  EXPECT_EQ(state().array().size(), saved.array().size());
}

TEST_F(LevelFlowTest, TheQuestionTellsThatAnotherSavedTrainingWouldBeReplaced) {
  LevelBed bed(host);
  for (const char* question : {"[495s]", "[495s] [1138s]", "[495s]"}) {
    Arbeitsblatt1& window = bed.dialogs.shown.empty() ? bed.begin(1) : bed.open_exercise();
    bed.hear_row();
    bed.answer_row(window);
    bed.save(window);
    EXPECT_EQ(bed.dialogs.shown.back().text, question);
    if (bed.dialogs.shown.size() == 2) state() = Variant::strings({"False"});
  }
  host.together = true;
  host.failing = {"READ"};
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  bed.answer_row(window);
  bed.save(window);
  EXPECT_EQ(bed.dialogs.shown.back().text, "[495s] [1139s]") << "perhaps";
}

TEST_F(LevelFlowTest, EveryExamHasItsSettingsAndEndsByTasksAndByTime) {
  struct Exam {
    int tempo, invzahl, tongeschl, abfr_iv, tasks;
    const char* time;
    std::size_t intervals;  ///< of both directions
  };
  constexpr Exam kExams[] = {{1, 1, 0, 0, 38, "[461s] 6 [394s] 40 [480s]", 14},
                             {2, 2, 1, 0, 28, "[461s] 5 [394s] 30 [480s]", 18},
                             {1, 1, 0, 1, 44, "[461s] 8 [394s] 20 [480s]", 26},
                             {2, 2, 1, 1, 34, "[461s] 7 [394s] 40 [480s]", 34},
                             {3, 3, 2, 1, 28, "[461s] 7 [394s] 20 [480s]", 38}};
  for (int prfnr = 1; prfnr <= 5; ++prfnr) {
    SCOPED_TRACE(prfnr);
    const Exam& exam = kExams[prfnr - 1];
    LevelBed bed(host);
    // What was chosen before, another exam at last, leaves no trace.
    Einstellung1& choices = bed.open_settings();
    choices.click(choices.abfr_iv[1 - exam.abfr_iv]);
    choices.click(choices.ton_st_wahl[1]);
    choices.choose(choices.degree_list, 2);
    choices.choose(choices.training_Combo, 4);
    for (const int chosen : {prfnr % 5, prfnr - 1}) choices.choose(choices.prfnr_Comb, chosen);
    EXPECT_EQ(choices.temp_Combo.selected, exam.tempo);

    Arbeitsblatt1& window = bed.open_exercise();
    while (window.phase() != Phase::answering) bed.scheduler.advance_ms(1);
    const Settings& now = bed.module.settings();
    EXPECT_EQ((std::array<int, 6>{now.tempo, now.invzahl, now.tongeschl,
                                  static_cast<int>(now.abfr_iv), now.abfrage, now.ton_st_wahl}),
              (std::array{exam.tempo, exam.invzahl, exam.tongeschl, exam.abfr_iv, 1, 0}));
    EXPECT_EQ(window.lab_aufgaben.text, "[462s] " + std::to_string(exam.tasks));
    EXPECT_EQ(window.stop_uhr.text, exam.time);
    window.cmd_test_aus_click();
    EXPECT_FALSE(window.lab_aufgaben.visible || window.stop_uhr.visible ||
                 window.cmd_test_aus.enabled);
    window.cmd_test_ein_click();
    EXPECT_TRUE(window.lab_aufgaben.visible && window.stop_uhr.visible);
    std::set<int> asked;
    int tasks = 0;
    for (; !is_over(window.phase()) && tasks < 300; ++tasks) {
      // By the automatic order.
      while (tasks > 0 && window.phase() != Phase::answering) bed.scheduler.advance_ms(1);
      EXPECT_GE(asked.size() + 2, tasks * 2 < exam.tasks ? 0 : exam.intervals) << "at half time";
      const auto row = bed.module.row().iv.begin();
      asked.insert(row, row + exam.invzahl + 1);
      // The estimate reckons with two seconds an answer, but not with the pauses before a row.
      bed.answer_row(window, prfnr == 2 ? 1.9 : 2);
    }
    EXPECT_EQ(asked.size(), exam.intervals);
    EXPECT_EQ(tasks, exam.tasks);
    EXPECT_EQ(window.lab_aufgaben.text, "[462s] 0") << "two seconds an answer must do";
    EXPECT_FALSE(window.wieder.enabled);
    EXPECT_EQ(std::ssize(FlowBed::lessons(bed.leave(window))), tasks);
    EXPECT_TRUE(bed.dialogs.shown.empty());

    Arbeitsblatt1& slow = bed.open_exercise();
    bed.scheduler.advance_ms(60.0 * 60 * 1000);
    EXPECT_TRUE(is_over(slow.phase()));
    EXPECT_EQ(slow.stop_uhr.text, "[461s] 0 [394s] 0 [480s]");
    EXPECT_EQ(FlowBed::asked(slow), -1);
    for (const Control& button : slow.st_int) EXPECT_FALSE(button.enabled);
    bed.leave(slow);
  }
}

}  // namespace
}  // namespace tonarix
