#include "sound/devices/external_port.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/main_thread.h"

namespace tonarix {
namespace {

using Bytes = std::vector<int>;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

struct FakeSink final : MidiSink {
  bool send(const unsigned char* bytes, std::size_t count) override {
    const std::lock_guard lock(mutex);
    if (!gone) sent.emplace_back(bytes, bytes + count);
    return !gone;
  }
  std::vector<Bytes> take() {
    const std::lock_guard lock(mutex);
    return std::exchange(sent, {});
  }
  std::mutex mutex;
  std::vector<Bytes> sent;
  std::atomic<bool> gone = false;
};

struct ExternalPortTest : testing::Test {
  void wait_for_end(int number) {
    ASSERT_TRUE(main.run_until([&] { return ended == number; }));
  }
  MainThread main;
  std::shared_ptr<FakeSink> sink = std::make_shared<FakeSink>();
  std::optional<ExternalPort> port{std::in_place, sink, main.poster()};
  std::vector<Bytes> opening = sink->take();
  int ended = 0;
  const std::function<void()> at_end = [this] { ++ended; };
};

TEST_F(ExternalPortTest, ItBeginsWithCentredBendsAndEndsInSilence) {
  EXPECT_EQ(opening.size(), 8u);
  EXPECT_THAT(opening, Contains(Bytes{0xE7, 0, 64}));
  port->send({0x95, 60, 100, 0, 0});
  port.reset();
  EXPECT_THAT(sink->take(), Contains(Bytes{0x85, 60, 0}));
}

TEST_F(ExternalPortTest, AQueuePlaysByTimesInTheOrderGivenAndTellsItsEndOnce) {
  port->start_queue(
      {{0x90, 60, 100, 0, 1}, {0x80, 60, 100, 30, 1}, {0x91, 40, 90, 0, 2}, {0xC0, 5, 0, 30, 3}},
      at_end);
  wait_for_end(1);
  EXPECT_THAT(sink->take(), ElementsAre(Bytes{0x90, 60, 100}, Bytes{0x91, 40, 90},
                                        Bytes{0x80, 60, 100}, Bytes{0xC0, 5}));
  port->start_queue({}, at_end);
  wait_for_end(2);
}

TEST_F(ExternalPortTest, StoppingSilencesWhatSoundsAndForgetsTheRest) {
  port->start_queue({{0x92, 60, 100, 0, 0}}, at_end);
  wait_for_end(1);
  port->start_queue({{0x83, 61, 0, 0, 0}, {0x90, 62, 100, 3'600'000, 0}}, at_end);
  sink->take();
  port->stop_queue();
  const auto silenced = sink->take();
  EXPECT_THAT(silenced, Contains(Bytes{0x82, 60, 0}));
  EXPECT_THAT(silenced, Contains(Bytes{0xB2, 123, 0}));
  port->stop_queue();
  EXPECT_THAT(sink->take(), IsEmpty());

  port->start_queue({}, at_end);
  ASSERT_TRUE(main.wait_for_post());
  port->stop_queue();
  main.run_posted();
  EXPECT_EQ(ended, 1) << "an end that was on its way is forgotten";
}

TEST_F(ExternalPortTest, TheVolumeGoesAheadOfTheNextNoteAndNotWithEveryStepOfAFade) {
  for (std::int32_t level = 65535; level >= 0; level -= 500) port->set_volume(level, level);
  port->set_volume(0, 0);
  port->send({0x90, 60, 100, 0, 0});
  const auto sent = sink->take();
  EXPECT_EQ(sent.back(), (Bytes{0x90, 60, 100}));
  EXPECT_EQ(sent.end()[-2], (Bytes{0xB7, 7, 0}));
  EXPECT_LE(sent.size(), 8u * 6 + 1);
}

TEST_F(ExternalPortTest, ADeviceThatVanishesIsAnErrorButTheQueueRunsOut) {
  port->start_queue({{0x90, 60, 100, 0, 0}, {0x80, 60, 100, 20, 0}}, at_end);
  sink->gone = true;
  wait_for_end(1);
  EXPECT_THROW(port->send({0x90, 60, 100, 0, 0}), RuntimeError);
  EXPECT_NO_THROW(port->set_volume(5, 5));
  EXPECT_NO_THROW(port->stop_queue());
}

}  // namespace
}  // namespace tonarix
