#include "base/window.h"

#include <gtest/gtest.h>

#include "support/window_bed.h"

namespace tonarix {
namespace {

class StoryWindow final : public Window {
 public:
  explicit StoryWindow(const WindowContext& common) : Window(common, "story") {}

  void close_requested() override { common().windows.unload(*this); }
  void failed(std::string_view tag, std::exception_ptr) override { told += tag; }

  void press_go() {
    press(go, "go_click.", [this] { return story(); });
  }
  using Window::handle, Window::tell, Window::waits;

  Control go{*this, "go"};
  ControlArray<Control, 1, 3> mark{*this, "mark"};
  std::string told;
  std::function<void()> at_end = [this] { told += ')'; };

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
    at_end();
  }
};

struct WindowTest : testing::Test, WindowBed {
  StoryWindow& window = windows.open(std::make_unique<StoryWindow>(common));
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

TEST_F(WindowTest, AFadeIsAnnouncedOnceItsLastStepIsDone) {
  int announced = 0;
  Waits waits(scheduler, [&] { ++announced; });
  const auto fade = [](Waits& own) -> Sequence {
    for (int step = 0; step < 131; ++step) co_await own.Yield();
    co_await own.Delay(100);
  };
  Sequence routine = fade(waits);
  routine.start();
  scheduler.advance_ms(99);
  EXPECT_EQ(announced, 1);
  scheduler.advance_ms(1);
  EXPECT_EQ(announced, 2);
  EXPECT_TRUE(routine.done());
}

TEST_F(WindowTest, ClosingTheWaitsEndsThemAtOnceAndDestroyingTheOwnerForgetsThem) {
  window.press_go();
  window.waits().close();
  scheduler.settle();
  EXPECT_EQ(window.told, "(a");
  EXPECT_TRUE(scheduler.idle());

  windows.open(std::make_unique<StoryWindow>(common)).press_go();
  windows.newest()->title_bar_close();
  scheduler.settle();
  EXPECT_TRUE(scheduler.idle());
}

TEST_F(WindowTest, FailuresReachTheOneErrorPathWithTheirTagAndARoutineMayCloseItsOwnWindow) {
  window.handle("break_click.", [] { throw RuntimeError::overflow("break"); });
  window.at_end = [] { throw RuntimeError::overflow("story"); };
  window.press_go();
  scheduler.advance_ms(100);
  EXPECT_EQ(window.told, "break_click.(abgo_click.");
  window.at_end = [this] { windows.unload(window); };
  window.press_go();
  scheduler.advance_ms(100);
  EXPECT_EQ(windows.count(), 0);
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

TEST_F(WindowTest, AnAnswerThatComesAfterTheRoutineOrTheWindowIsForgotten) {
  dialogs.hold = true;
  Waits waits(scheduler);
  Reply got = Reply::ok;
  const auto routine = [](Waits& w, Dialogs& d, Reply& reply) -> Sequence {
    const Message question;
    reply = co_await ask(w, d, question);
  };
  for (const bool lives : {false, true}) {
    std::optional<Sequence> asking(routine(waits, dialogs, got));
    asking->start();
    if (!lives) asking.reset();
    dialogs.answer(Reply::no);
    EXPECT_EQ(got, lives ? Reply::no : Reply::ok);
  }

  window.tell("a warning", [&] { window.told += "read"; });
  dialogs.answer(Reply::ok);
  EXPECT_EQ(window.told, "read");
  window.tell("another", [] { ADD_FAILURE() << "the window has gone"; });
  windows.clear();
  dialogs.answer(Reply::ok);
}

TEST_F(WindowTest, WhatIsHiddenOrLeavesTakesNoInputAndIsForgotten) {
  const WindowRef ref(window);
  window.hide();
  window.press_go();
  window.title_bar_close();
  EXPECT_EQ(window.told, "");
  EXPECT_EQ(ref.get(), &window);
  window.show();
  window.enabled = false;
  window.title_bar_close();
  ASSERT_EQ(ref.get(), &window);
  window.enabled = true;
  window.title_bar_close();
  EXPECT_EQ(ref.get(), nullptr) << "also while it is not released yet";
  window.press_go();
  EXPECT_EQ(window.told, "");
}

TEST_F(WindowTest, AWindowThatCantBeShownIsNone) {
  windows.on_opened = [](Window&) { throw std::runtime_error("no room"); };
  EXPECT_THROW(windows.open(std::make_unique<StoryWindow>(common)), std::runtime_error);
  EXPECT_EQ(windows.newest(), &window);
}

TEST(InputGuardTest, TakesNothingAtFirstAndNoSecondPress) {
  InputGuard guard;
  int ok = 0, other = 0;
  const auto at = [](double ms) { return milliseconds(1000 + ms); };
  EXPECT_TRUE(guard.admits(&ok, at(0)));
  EXPECT_FALSE(guard.admits(&ok, at(249)));
  EXPECT_FALSE(guard.admits(&ok, at(490))) << "hammering";
  EXPECT_TRUE(guard.admits(&other, at(491)));
  EXPECT_TRUE(guard.admits(&ok, at(500)));
  EXPECT_TRUE(guard.admits(&ok, at(750)));
  guard.shown();
  EXPECT_FALSE(guard.settled(at(5000))) << "not drawn yet";
  guard.seen(at(5000));
  guard.seen(at(5290));
  EXPECT_FALSE(guard.settled(at(5299)));
  EXPECT_TRUE(guard.settled(at(5300)));
}

}  // namespace
}  // namespace tonarix
