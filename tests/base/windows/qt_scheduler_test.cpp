#include "base/windows/qt_scheduler.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <string>
#include <thread>

namespace tonarix {
namespace {

/// Lets the event loop work until the clock has run everything.
void run_until(const bool& over) {
  while (!over) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

TEST(QtSchedulerTest, TasksRunByDueTimeThenByPosting) {
  QtScheduler scheduler;
  std::string order;
  bool over = false;
  const Scheduler::Time start = scheduler.now();
  scheduler.post(milliseconds(12), [&] { over = true; });
  scheduler.post(milliseconds(6), [&] { order += 'd'; });
  const auto forgotten = scheduler.post(milliseconds(2), [&] { order += 'x'; });
  scheduler.post([&] {
    order += 'a';
    scheduler.post([&] { order += 'c'; });
  });
  scheduler.post([&] { order += 'b'; });
  scheduler.cancel(forgotten);
  run_until(over);
  EXPECT_EQ(order, "abcd");
  EXPECT_GE(scheduler.now() - start, milliseconds(12));
}

TEST(QtSchedulerTest, OtherThreadsHandTheirTasksOver) {
  QtScheduler scheduler;
  bool over = false;
  std::thread::id ran_on;
  std::thread([&] {
    scheduler.post_from_thread([&] { ran_on = std::this_thread::get_id(); });
    scheduler.post_from_thread([&] { over = true; });
  }).join();
  EXPECT_FALSE(over);
  run_until(over);
  EXPECT_EQ(ran_on, std::this_thread::get_id());
}

}  // namespace
}  // namespace tonarix
