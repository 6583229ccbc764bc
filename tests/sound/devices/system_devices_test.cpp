#include "sound/devices/system_devices.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/main_thread.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

struct SystemDevicesTest : testing::Test {
  VirtualScheduler scheduler;
  MainThread main;
};

TEST_F(SystemDevicesTest, TheSynthesiserIsTheLastDeviceAndTheDefault) {
  SystemDevices devices(scheduler, main.poster());
  const auto list = devices.list();
  ASSERT_FALSE(list.empty());
  EXPECT_EQ(list.back().name, "FluidSynth");
  EXPECT_EQ(list.back().id, static_cast<int>(list.size()) - 1);
  EXPECT_EQ(devices.problem(), Synthesizer::Problem::none) << "not opened yet";
  EXPECT_NE(devices.open(-1), nullptr);
  EXPECT_NE(devices.open(static_cast<int>(list.size()) - 1), nullptr);
  EXPECT_THROW(devices.open(static_cast<int>(list.size())), RuntimeError);
  EXPECT_THROW(devices.open(-2), RuntimeError);
}

TEST_F(SystemDevicesTest, WithoutASoundFontTheQueuesStillRunOut) {
  SystemDevices devices(scheduler, main.poster(), {"/nonexistent/font.sf2"});
  const auto port = devices.open(-1);
  EXPECT_EQ(devices.problem(), Synthesizer::Problem::no_sound_font);
  EXPECT_NE(devices.reason(), "");
  EXPECT_TRUE(devices.sound_hardware());
  int ended = 0;
  port->set_volume(0, 0);
  port->send({0x90, 60, 100, 0, 0});
  port->start_queue({{0x80, 60, 0, 1900, 0}, {0x90, 60, 100, 0, 0}}, [&] { ++ended; });
  scheduler.advance_ms(1899);
  EXPECT_EQ(ended, 0);
  scheduler.advance_ms(5000);
  EXPECT_EQ(ended, 1);
  port->start_queue({}, [&] { ++ended; });
  port->stop_queue();
  scheduler.advance_ms(5000);
  EXPECT_EQ(ended, 1);
}

}  // namespace
}  // namespace tonarix
