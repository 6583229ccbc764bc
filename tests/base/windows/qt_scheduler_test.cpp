#include "base/windows/qt_scheduler.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <string>
#include <thread>

namespace tonarix {
namespace {

TEST(QtSchedulerTest, TasksRunByDueTimeThenByPostingAlsoThoseOfOtherThreads) {
  QtScheduler scheduler;
  std::string order;
  bool over = false;
  std::thread::id ran_on;
  const Scheduler::Time start = scheduler.now();
  scheduler.post(milliseconds(120), [&] { over = true; });
  scheduler.post(milliseconds(110), [&] { order += 'd'; });
  const auto forgotten = scheduler.post(milliseconds(2), [&] { order += 'x'; });
  scheduler.post([&] {
    order += 'a';
    scheduler.post([&] { order += 'c'; });
  });
  scheduler.post([&] { order += 'b'; });
  scheduler.cancel(forgotten);
  const auto work = [&] { ran_on = std::this_thread::get_id(); };
  std::thread([&] { scheduler.post_from_thread(work); }).join();
  EXPECT_EQ(ran_on, std::thread::id());
  while (!over) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_EQ(order, "abcd");
  EXPECT_GE(scheduler.now() - start, milliseconds(120));
  EXPECT_EQ(ran_on, std::this_thread::get_id());
}

}  // namespace
}  // namespace tonarix
