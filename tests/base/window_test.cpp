#include "base/window.h"

#include <gtest/gtest.h>

#include "base/dialogs.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

class StoryWindow final : public Window {
 public:
  StoryWindow(Scheduler& scheduler, WindowList& list) : Window(scheduler, "story"), list_(list) {}

  void title_bar_close() override { list_.unload(*this); }
  void failed(std::string_view tag, std::exception_ptr) override { failures += tag; }

  void press_go() {
    press(go, "go_click.", [this] { return story(); });
  }
  void press_break() {
    handle("break_click.", [] { throw RuntimeError::overflow("break"); });
  }
  void stop_waiting() { waits().close(); }

  Control go{*this, "go"};
  ControlArray<Control, 1, 3> mark{*this, "mark"};
  std::string told;
  std::string failures;
  bool leave_at_end = false;
  bool break_at_end = false;

 private:
  Sequence chapter(char letter) {
    co_await Delay(50);
    told += letter;
  }
  Sequence story() {
    told += '(';
    co_await chapter('a');
    if (waits().closed()) co_return;
    co_await chapter('b');
    if (break_at_end) throw RuntimeError::overflow("story");
    told += ')';
    if (leave_at_end) list_.unload(*this);
  }

  WindowList& list_;
};

struct WindowTest : testing::Test {
  VirtualScheduler scheduler;
  WindowList list{scheduler};
  StoryWindow& window = list.open(std::make_unique<StoryWindow>(scheduler, list));
};

TEST_F(WindowTest, ARoutineWaitsInVirtualTimeAndAnnouncesEachStep) {
  int announced = 0;
  window.on_changed = [&] { ++announced; };
  window.press_go();
  scheduler.advance_ms(49.9);
  EXPECT_EQ(window.told, "(");
  scheduler.advance_ms(0.1);
  EXPECT_EQ(window.told, "(a");
  const int before = announced;
  scheduler.advance_ms(50);
  EXPECT_EQ(window.told, "(ab)");
  EXPECT_GT(announced, before);
}

TEST_F(WindowTest, ClosingTheWaitsEndsThemAtOnceAndDestroyingTheOwnerForgetsThem) {
  window.press_go();
  window.stop_waiting();
  scheduler.settle();
  EXPECT_EQ(window.told, "(a");
  EXPECT_TRUE(scheduler.idle());

  auto& other = list.open(std::make_unique<StoryWindow>(scheduler, list));
  other.press_go();
  other.title_bar_close();
  scheduler.settle();
  EXPECT_TRUE(scheduler.idle());
}

TEST_F(WindowTest, ARoutineMayCloseItsOwnWindow) {
  window.leave_at_end = true;
  window.press_go();
  scheduler.advance_ms(100);
  EXPECT_EQ(list.count(), 0);
}

TEST_F(WindowTest, FailuresReachTheOneErrorPathWithTheirTag) {
  window.press_break();
  window.break_at_end = true;
  window.press_go();
  scheduler.advance_ms(100);
  EXPECT_EQ(window.failures, "break_click.go_click.");
}

TEST_F(WindowTest, ControlsAreFoundByNameAndClosedOnesTakeNoLateClicks) {
  EXPECT_EQ(window.find("mark_3"), &window.mark[3]);
  EXPECT_EQ(window.find("mark_4"), nullptr);
  for (const int index : {0, 4}) EXPECT_THROW(window.mark[index], RuntimeError);
  for (bool* open : {&window.go.enabled, &window.go.visible}) {
    *open = false;
    window.press_go();
    *open = true;
  }
  EXPECT_EQ(window.told, "");
}

struct PatientDialogs final : Dialogs {
  void show(const Message&, std::function<void(Reply)> done) override { answer = std::move(done); }
  std::function<void(Reply)> answer;
};

TEST_F(WindowTest, AnAnswerThatComesAfterTheRoutineIsForgotten) {
  PatientDialogs dialogs;
  Waits waits(scheduler);
  Reply got = Reply::ok;
  const auto routine = [](Waits& w, Dialogs& d, Reply& reply) -> Sequence {
    const Message question;
    reply = co_await ask(w, d, question);
  };
  {
    Sequence asking = routine(waits, dialogs, got);
    asking.start();
  }
  dialogs.answer(Reply::yes);
  EXPECT_EQ(got, Reply::ok);
  Sequence asking = routine(waits, dialogs, got);
  asking.start();
  dialogs.answer(Reply::no);
  EXPECT_EQ(got, Reply::no);
}

}  // namespace
}  // namespace tonarix
