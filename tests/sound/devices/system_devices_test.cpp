#include "sound/devices/system_devices.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/main_thread.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

TEST(SystemDevices, TheSynthesiserIsTheLastDeviceAndTheDefault) {
  VirtualScheduler scheduler;
  MainThread main;
  SystemDevices devices(scheduler, main.poster());
  const auto list = devices.list();
  const int last = static_cast<int>(list.size()) - 1;
  EXPECT_EQ(list.back().name, "FluidSynth");
  EXPECT_EQ(devices.problem(), Synthesizer::Problem::none) << "not opened yet";
  for (const int number : {-1, last}) EXPECT_NE(devices.open(number), nullptr);
  for (const int number : {-2, last + 1}) EXPECT_THROW(devices.open(number), RuntimeError);
}

TEST(SystemDevices, WithoutASoundFontTheQueuesStillRunOut) {
  VirtualScheduler scheduler;
  MainThread main;
  SystemDevices devices(scheduler, main.poster(), {"/nonexistent/font.sf2", __FILE__});
  const auto port = devices.open(-1);
  EXPECT_EQ(devices.problem(), Synthesizer::Problem::no_sound_font);
  EXPECT_NE(devices.reason(), "");
  EXPECT_TRUE(devices.sound_hardware());
  int ended = 0;
  port->start_queue({{0x80, 60, 0, 1900, 0}, {0x90, 60, 100, 0, 0}}, [&] { ++ended; });
  scheduler.advance_ms(1899);
  EXPECT_EQ(ended, 0);
  scheduler.advance_ms(5000);
  port->start_queue({}, [&] { ++ended; });
  port->stop_queue();
  scheduler.advance_ms(5000);
  EXPECT_EQ(ended, 1);
}

}  // namespace
}  // namespace tonarix
