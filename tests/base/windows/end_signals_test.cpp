#include "base/windows/end_signals.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>

namespace tonarix {
namespace {

TEST(EndSignals, EachIsHeardOnceOnTheThreadOfTheWindowsAndASwitchedOffOneNever) {
  std::signal(SIGHUP, SIG_IGN);
  {
    int heard = 0;
    const EndSignals signals([&] { ++heard; });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
      std::raise(number);
      EXPECT_EQ(heard, 0) << "not in the handler";
      QCoreApplication::processEvents();
      EXPECT_EQ(heard, number == SIGHUP ? 0 : 1);
      heard = 0;
    }
    const pid_t child = fork();
    if (child == 0) {
      std::raise(SIGTERM);
      std::_Exit(0);
    }
    int ended = 0;
    waitpid(child, &ended, 0);
    EXPECT_TRUE(WIFSIGNALED(ended)) << "a second one ends a program that does not react";
  }
  EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
  EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL);
}

}  // namespace
}  // namespace tonarix
