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

struct FakeSink final : MidiSink {
  bool send(const unsigned char* bytes, std::size_t count) override {
    const std::lock_guard lock(mutex);
    if (gone) return false;
    sent.emplace_back(bytes, bytes + count);
    return true;
  }
  std::vector<Bytes> take() {
    const std::lock_guard lock(mutex);
    return std::exchange(sent, {});
  }
  std::mutex mutex;
  std::vector<Bytes> sent;
  bool gone = false;
};

struct ExternalPortTest : testing::Test {
  MainThread main;
  std::shared_ptr<FakeSink> sink = std::make_shared<FakeSink>();
  ExternalPort port{sink, main.poster()};
};

TEST_F(ExternalPortTest, AQueuePlaysInTheOrderGivenAndTellsItsEndOnce) {
  sink->take();
  int ended = 0;
  port.start_queue(
      {{0x90, 60, 100, 0, 1}, {0x80, 60, 100, 30, 1}, {0x91, 40, 90, 0, 2}, {0xC0, 5, 0, 30, 3}},
      [&] { ++ended; });
  ASSERT_TRUE(main.run_until([&] { return ended > 0; }));
  EXPECT_THAT(sink->take(), ElementsAre(Bytes{0x90, 60, 100}, Bytes{0x91, 40, 90},
                                        Bytes{0x80, 60, 100}, Bytes{0xC0, 5}));
  port.start_queue({}, [&] { ended += 10; });
  ASSERT_TRUE(main.run_until([&] { return ended > 1; }));
  EXPECT_EQ(ended, 11);
}

TEST_F(ExternalPortTest, StoppingSilencesWhatSoundsAndForgetsTheRest) {
  bool begun = false;
  port.start_queue({{0x92, 60, 100, 0, 0}}, [&] { begun = true; });
  ASSERT_TRUE(main.run_until([&] { return begun; }));
  int ended = 0;
  port.start_queue({{0x83, 61, 0, 0, 0}, {0x90, 62, 100, 3'600'000, 0}}, [&] { ++ended; });
  sink->take();
  port.stop_queue();
  const auto silenced = sink->take();
  EXPECT_THAT(silenced, Contains(Bytes{0x82, 60, 0}));
  EXPECT_THAT(silenced, Contains(Bytes{0xB2, 123, 0}));
  port.stop_queue();
  EXPECT_TRUE(sink->take().empty());
  main.run_posted();
  EXPECT_EQ(ended, 0);
}

TEST_F(ExternalPortTest, AnEndThatWasPostedBeforeTheStopIsForgotten) {
  int ended = 0;
  port.start_queue({}, [&] { ++ended; });
  ASSERT_TRUE(main.wait_for_post());
  port.stop_queue();
  main.run_posted();
  EXPECT_EQ(ended, 0);
}

TEST_F(ExternalPortTest, TheVolumeGoesAheadOfTheNextNoteAndNotWithEveryStepOfAFade) {
  sink->take();
  for (std::int32_t level = 65535; level >= 0; level -= 500) port.set_volume(level, level);
  port.set_volume(0, 0);
  port.send({0x90, 60, 100, 0, 0});
  const auto sent = sink->take();
  EXPECT_THAT(sent.back(), (Bytes{0x90, 60, 100}));
  EXPECT_THAT(sent.end()[-2], (Bytes{0xB7, 7, 0}));
  EXPECT_LE(sent.size(), 8u * 6 + 1);
  port.set_volume(65535, 65535);
  port.send({0x80, 60, 0, 0, 0});
  EXPECT_THAT(sink->take(), Contains(Bytes{0xB0, 7, 127}));
}

TEST_F(ExternalPortTest, ADeviceThatVanishesIsAnErrorButTheQueueRunsOut) {
  int ended = 0;
  port.start_queue({{0x90, 60, 100, 0, 0}, {0x80, 60, 100, 20, 0}}, [&] { ++ended; });
  {
    const std::lock_guard lock(sink->mutex);
    sink->gone = true;
  }
  ASSERT_TRUE(main.run_until([&] { return ended > 0; }));
  EXPECT_THROW(port.send({0x90, 60, 100, 0, 0}), RuntimeError);
  EXPECT_NO_THROW(port.set_volume(5, 5));
  EXPECT_NO_THROW(port.stop_queue());
}

TEST(ExternalPortLife, ItBeginsWithCentredBendsAndEndsInSilence) {
  MainThread main;
  const auto sink = std::make_shared<FakeSink>();
  {
    ExternalPort port(sink, main.poster());
    const auto opening = sink->take();
    EXPECT_EQ(opening.size(), 8u);
    EXPECT_THAT(opening, Contains(Bytes{0xE7, 0, 64}));
    port.send({0x95, 60, 100, 0, 0});
  }
  EXPECT_THAT(sink->take(), Contains(Bytes{0x85, 60, 0}));
}

}  // namespace
}  // namespace tonarix
