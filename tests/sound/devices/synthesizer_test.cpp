#include "sound/devices/synthesizer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "support/rendered_row.h"

namespace tonarix {
namespace {

constexpr int kRate = Synthesizer::kSampleRate;
constexpr int kFlute = 73;
constexpr int kAccordion = 21;  // of the steadiest pitch

using Sound = std::vector<float>;  // frames of left and right

double loudness(const Sound& sound) {
  double sum = 0;
  for (const float sample : sound) sum += sample * sample;
  return std::sqrt(sum / static_cast<double>(sound.size()));
}

/// How far a tone near a' lies above 440 Hz: by how much its phase runs ahead, in hops short enough
/// for half a semitone either way.
double cents_above_440(const Sound& sound) {
  constexpr double kTurn = 2 * std::numbers::pi;
  constexpr std::size_t kWindow = kRate / 10;
  constexpr std::size_t kHop = kRate / 40;
  const auto phase_at = [&](std::size_t start) {
    std::complex<double> sum = 0;
    for (std::size_t i = 0; i < kWindow; ++i) {
      const auto weight = 1 - std::cos(kTurn * static_cast<double>(i) / kWindow);
      sum += std::polar(weight * sound[2 * (start + i)],
                        -kTurn * 440.0 * static_cast<double>(start + i) / kRate);
    }
    return sum;
  };
  double turned = 0;
  std::size_t at = 0;
  for (; 2 * (at + kHop + kWindow) <= sound.size(); at += kHop) {
    turned += std::arg(phase_at(at + kHop) / phase_at(at));
  }
  return 1200 * std::log2(1 + turned / kTurn * kRate / static_cast<double>(at) / 440.0);
}

MidiMessage message(int status, int data1, int data2, std::int32_t time = 0) {
  return {static_cast<std::uint8_t>(status), static_cast<std::uint8_t>(data1),
          static_cast<std::uint8_t>(data2), time, 0};
}

struct SynthesizerTest : testing::Test {
  SynthesizerTest() { EXPECT_EQ(synthesizer->reason(), ""); }
  Sound render_ms(double ms) { return synthesizer->render(static_cast<int>(ms * kRate / 1000)); }
  /// What sounds once the attacks and endings are over.
  Sound settled() {
    render_ms(500);
    return render_ms(1000);
  }
  void run_posted() {
    for (const auto& task : std::exchange(posted, {})) task();
  }

  VirtualScheduler scheduler;
  std::vector<std::function<void()>> posted;
  std::shared_ptr<Synthesizer> synthesizer =
      std::make_shared<Synthesizer>(Synthesizer::Output::rendered_by_caller, sound_font_places(),
                                    [this](std::function<void()> task) { posted.push_back(task); });
  int ended = 0;
  const std::function<void()> at_end = [this] { ++ended; };
  const std::vector<MidiMessage> note{message(0x90, 60, 100), message(0x80, 60, 0, 300)};
};

TEST_F(SynthesizerTest, OnsetsLieWithinOneBlockOfTheirTimes) {
  const double block_ms = 1000.0 * Synthesizer::kBlock / kRate;
  for (const int beat : {250, 333, 1517}) {
    EXPECT_LE(worst_onset_error_ms(synthesizer, 6, beat), block_ms) << beat;
  }
}

TEST_F(SynthesizerTest, ABendStepIsAnEvenThirtySecondOfASemitone) {
  for (const int bend : {48, 60, 63, 64, 65, 70, 80}) {
    SynthPort port(synthesizer, scheduler);
    port.send(message(0xC2, kAccordion, 0));
    port.send(message(0xE2, 0, bend));
    port.send(message(0x92, 69, 100));
    EXPECT_NEAR(cents_above_440(settled()), (bend - 64) * 3.125, 1.5) << bend;
  }
}

TEST_F(SynthesizerTest, StoppingOrClosingSilencesAtOnceAndOpeningCentresTheBends) {
  SynthPort port(synthesizer, scheduler);
  port.start_queue(note, at_end);
  EXPECT_GT(loudness(render_ms(200)), 0.001);
  port.stop_queue();
  render_ms(20);
  EXPECT_EQ(loudness(render_ms(1000)), 0);
  EXPECT_TRUE(posted.empty());
  {
    SynthPort other(synthesizer, scheduler);
    other.send(message(0xC0, kAccordion, 0));
    other.send(message(0xE0, 0, 80));
    other.send(message(0x90, 60, 100));
    EXPECT_GT(loudness(render_ms(100)), 0.001);
  }
  render_ms(20);
  EXPECT_EQ(loudness(render_ms(100)), 0);
  SynthPort reopened(synthesizer, scheduler);
  reopened.send(message(0x90, 69, 100));
  EXPECT_NEAR(cents_above_440(settled()), 0, 1.5);
}

TEST_F(SynthesizerTest, AQueueTellsItsEndOnceAndNeverAfterItWasStopped) {
  SynthPort port(synthesizer, scheduler);
  port.start_queue(note, at_end);
  render_ms(299);
  EXPECT_TRUE(posted.empty());
  render_ms(1000);
  run_posted();
  EXPECT_EQ(ended, 1);

  port.start_queue({note[0]}, at_end);
  render_ms(10);
  ASSERT_EQ(posted.size(), 1u);
  port.stop_queue();
  run_posted();
  EXPECT_EQ(ended, 1);

  port.start_queue({}, at_end);
  render_ms(10);
  run_posted();
  EXPECT_EQ(ended, 2);
}

TEST_F(SynthesizerTest, AQueueWhoseSoundNobodyTakesIsEnded) {
  SynthPort port(synthesizer, scheduler);
  port.start_queue(note, at_end);
  scheduler.advance_ms(1500);
  EXPECT_EQ(ended, 0);
  scheduler.advance_ms(1000);
  EXPECT_EQ(ended, 1);
  EXPECT_TRUE(synthesizer->stalled());
  render_ms(1000);
  EXPECT_TRUE(posted.empty());
}

TEST_F(SynthesizerTest, TheVolumeScalesTheSoundEvenly) {
  const auto loudness_at = [&](std::int32_t left, std::int32_t right) {
    SynthPort port(synthesizer, scheduler);
    port.set_volume(left, right);
    port.send(message(0xC0, kFlute, 0));
    port.send(message(0x90, 69, 100));
    return loudness(settled());
  };
  const double full = loudness_at(65535, 65535);
  EXPECT_NEAR(loudness_at(32768, 32768) / full, 0.5, 0.03);
  EXPECT_NEAR(loudness_at(65535, 0) / full, 0.5, 0.03);
  EXPECT_EQ(loudness_at(0, 0), 0);
}

TEST_F(SynthesizerTest, SixLoudTonesAndTheKeynoteStayUnclipped) {
  SynthPort port(synthesizer, scheduler);
  for (int i = 1; i < 8; ++i) port.send(message(0x90 | i, 48 + 4 * i, 127));
  const Sound sound = render_ms(500);
  EXPECT_LT(*std::max_element(sound.begin(), sound.end()), 1.0F);
}

}  // namespace
}  // namespace tonarix
