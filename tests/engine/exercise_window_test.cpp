#include "engine/exercise_window.h"

#include <gtest/gtest.h>

#include "engine/sounding_window.h"
#include "support/engine_bed.h"

namespace tonarix {
namespace {

/// An exercise in silence that asks the last interval of a row and takes two tries.
class SilentWindow final : public ExerciseWindow {
 public:
  explicit SilentWindow(const ExerciseContext& given) : ExerciseWindow("silent", given) {}
  void answer(bool right) {
    press(answers_open, "answer.", [&] {
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
  Control answers_open{*this, "answers_open"};
  int shown = 0;
  bool fails = false;

 private:
  std::unique_ptr<RowPlayer> make_player() override { return std::make_unique<SilentPlayer>(); }
  void prepare() override {}
  TaskTuning tune() override { return {}; }
  int first_asked() const override { return context().settings.invzahl; }
  void show_task() override {
    if (fails) throw RuntimeError::index_out_of_range("show_task");
    ++shown;
  }
  void open_answers(bool open) override { answers_open.enabled = open; }
  std::string question_text() const override { return "?"; }
};

TEST(ExerciseWindow, InSilenceATaskIsAskedAtOnceAndTheNextOneOfferedWhenItIsDone) {
  EngineBed bed;
  bed.settings.Uebungsmodus = Level::training;
  SilentWindow& window = bed.open<SilentWindow>();
  bed.scheduler.advance_ms(50);
  for (int task = 1; task <= 3; ++task) {
    EXPECT_EQ(window.phase(), Phase::answering);
    EXPECT_EQ(window.question.text, "?");
    EXPECT_EQ(window.shown, task);
    EXPECT_EQ(window.asked(), 1) << "the first interval is given";
    window.answer(false);
    window.answer(true);
    window.answer(true);  // a second press of the same answer counts nothing
    EXPECT_EQ(window.zaehler[0].text + window.zaehler[1].text,
              std::to_string(task) + std::to_string(task));
    EXPECT_EQ(window.phase(), Phase::next_offered);
    EXPECT_EQ(window.default_button(), &window.CmdNextAufg);
    window.CmdNextAufg_click();
    bed.scheduler.advance_ms(50);
  }
  EXPECT_TRUE(bed.devices.log.empty());
  float answered = 0;
  for (int row = 1; row < kStatisticRows; ++row) {
    float times = 0;
    bed.statistics.read(StatisticRow(row), 0, times);
    answered += times;
  }
  EXPECT_EQ(answered, 3) << "one interval of each row";
}

TEST(ExerciseWindow, AnErrorClosesItWithoutAskingAndWritesTheProtocol) {
  EngineBed bed;
  bed.settings.Uebungsmodus = Level::training;
  SilentWindow& window = bed.open<SilentWindow>();
  bed.scheduler.advance_ms(50);
  window.answer(true);
  window.fails = true;
  window.CmdNextAufg_click();
  EXPECT_EQ(window.phase(), Phase::broken);
  bed.scheduler.advance_ms(1000);
  EXPECT_EQ(bed.dialogs.shown.size(), 1U);
  EXPECT_EQ(bed.documents.written.size(), 1U);
  EXPECT_EQ(bed.windows.count(), 0);
}

// Whatever is open is also shown, a marked way out goes with an end, and what sounds ends where its
// answers or the way on open.
TEST(Phase, TheTableOfActionsHoldsTogether) {
  for (const Actions& row : kActions) {
    EXPECT_EQ(row.answers, row.wieder == Shown::open);
    EXPECT_FALSE(row.wieder == Shown::open && row.wieder2 == Shown::open);
    EXPECT_TRUE(!row.next_task || row.wieder2 == Shown::open);
    EXPECT_TRUE(row.way_on != Way::wieder2 || row.wieder2 == Shown::open);
    EXPECT_EQ(row.asks, row_is_asked(row.phase));
    const Phase after = after_sounding(row.phase);
    if (after == row.phase) continue;
    EXPECT_FALSE(row.grundton) << "nothing else can be started while it sounds";
    EXPECT_EQ(row.wieder == Shown::open, row.wieder2 == Shown::open);
    EXPECT_TRUE(actions_in(after).grundton);
    EXPECT_EQ(is_over(after), is_over(row.phase));
    EXPECT_TRUE(row_is_asked(row.phase) || after == Phase::next_offered ||
                sounding_again(after) == row.phase);
  }
}

}  // namespace
}  // namespace tonarix
