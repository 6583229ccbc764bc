#include "sound/devices/synthesizer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "support/rendered_row.h"

namespace tonarix {
namespace {

constexpr int kRate = Synthesizer::kSampleRate;
constexpr std::int16_t kFlute = 73;
constexpr std::int16_t kSquare = 80;  // without vibrato

/// The left side only.
std::vector<float> mono(const std::vector<float>& stereo) {
  std::vector<float> left;
  for (std::size_t i = 0; i < stereo.size(); i += 2) left.push_back(stereo[i]);
  return left;
}

double loudness(const std::vector<float>& sound) {
  return std::sqrt(std::inner_product(sound.begin(), sound.end(), sound.begin(), 0.0) /
                   static_cast<double>(sound.size()));
}

/// Pitch of a tone near a' (440 Hz) by autocorrelation over many periods at once, the lag
/// interpolated between frames.
double pitch_hz(const std::vector<float>& stereo) {
  const std::vector<float> sound = mono(stereo);
  const auto match = [&](std::size_t lag) {
    return std::inner_product(sound.begin(), sound.begin() + 8192,
                              sound.begin() + static_cast<std::ptrdiff_t>(lag), 0.0);
  };
  const auto period_near = [&](double period, int periods, double range) {
    const double centre = period * periods;
    std::size_t best = 0;
    double most = 0;
    for (auto lag = static_cast<std::size_t>(centre * (1 - range)); lag <= centre * (1 + range);
         ++lag) {
      if (match(lag) > most) most = match(best = lag);
    }
    const double before = match(best - 1);
    const double after = match(best + 1);
    const double top = 0.5 * (before - after) / (before - 2 * most + after);
    return (static_cast<double>(best) + top) / periods;
  };
  const double coarse = period_near(kRate / 440.0, 8, 0.04);
  return kRate / period_near(coarse, 40, 0.008);
}

double cents(double above, double below) {
  return 1200 * std::log2(above / below);
}

struct SynthesizerTest : testing::Test {
  SynthesizerTest() {
    if (synthesizer->problem() != Synthesizer::Problem::none)
      ADD_FAILURE() << synthesizer->reason();
  }
  void render_ms(double ms) { sound = synthesizer->render(static_cast<int>(ms * kRate / 1000)); }
  MidiMessage note_on(int channel, int note) {
    return {static_cast<std::uint8_t>(0x90 | channel), static_cast<std::uint8_t>(note), 100, 0, 0};
  }
  double pitch_with_bend(int bend) {
    SynthPort port(synthesizer, scheduler);
    port.send({0xC2, kSquare, 0, 0, 0});
    port.send({0xE2, 0, static_cast<std::uint8_t>(bend), 0, 0});
    port.send(note_on(2, 69));
    render_ms(600);
    render_ms(500);
    return pitch_hz(sound);
  }

  VirtualScheduler scheduler;
  std::vector<std::function<void()>> posted;
  std::shared_ptr<Synthesizer> synthesizer =
      std::make_shared<Synthesizer>(Synthesizer::Output::rendered_by_caller, sound_font_places(),
                                    [this](std::function<void()> task) { posted.push_back(task); });
  std::vector<float> sound;
};

TEST_F(SynthesizerTest, OnsetsLieWithinOneBlockOfTheirTimes) {
  const double block_ms = 1000.0 * Synthesizer::kBlock / kRate;
  for (const int beat : {250, 333, 1517}) {
    EXPECT_LE(worst_onset_error_ms(synthesizer, 6, beat), block_ms) << beat;
  }
}

TEST_F(SynthesizerTest, ABendStepIsAnEvenThirtySecondOfASemitone) {
  const double centre = pitch_with_bend(64);
  EXPECT_NEAR(cents(centre, 440.0), 0, 1.5);
  for (const int bend : {48, 60, 63, 65, 70, 80}) {
    EXPECT_NEAR(cents(pitch_with_bend(bend), centre), (bend - 64) * 3.125, 1.5) << bend;
  }
}

TEST_F(SynthesizerTest, StoppingOrClosingSilencesAtOnceAndOpeningCentresTheBends) {
  SynthPort port(synthesizer, scheduler);
  int ended = 0;
  port.start_queue({note_on(0, 60), {0x80, 60, 0, 1000, 0}}, [&] { ++ended; });
  render_ms(200);
  EXPECT_GT(loudness(sound), 0.001);
  port.stop_queue();
  render_ms(20);
  render_ms(200);
  EXPECT_EQ(loudness(sound), 0);
  render_ms(1000);
  EXPECT_TRUE(posted.empty());
  {
    SynthPort other(synthesizer, scheduler);
    other.send({0xE0, 0, 127, 0, 0});
    other.send(note_on(0, 60));
    render_ms(100);
    EXPECT_GT(loudness(sound), 0.001);
  }
  render_ms(20);
  render_ms(100);
  EXPECT_EQ(loudness(sound), 0);
  port.send({0xC0, kSquare, 0, 0, 0});
  const SynthPort reopened(synthesizer, scheduler);
  port.send(note_on(0, 69));
  render_ms(600);
  render_ms(500);
  EXPECT_NEAR(cents(pitch_hz(sound), 440.0), 0, 1.5);
}

TEST_F(SynthesizerTest, AQueueTellsItsEndOnceAndNeverAfterItWasStopped) {
  SynthPort port(synthesizer, scheduler);
  int ended = 0;
  port.start_queue({note_on(0, 60), {0x80, 60, 0, 300, 0}}, [&] { ++ended; });
  render_ms(299);
  EXPECT_TRUE(posted.empty());
  render_ms(1000);
  ASSERT_EQ(posted.size(), 1u);
  posted[0]();
  EXPECT_EQ(ended, 1);

  port.start_queue({note_on(0, 60)}, [&] { ++ended; });
  render_ms(10);
  ASSERT_EQ(posted.size(), 2u);
  port.stop_queue();
  posted[1]();
  EXPECT_EQ(ended, 1);

  port.start_queue({}, [&] { ++ended; });
  render_ms(10);
  ASSERT_EQ(posted.size(), 3u);
  posted[2]();
  EXPECT_EQ(ended, 2);
}

TEST_F(SynthesizerTest, AQueueWhoseSoundNobodyTakesIsEnded) {
  SynthPort port(synthesizer, scheduler);
  int ended = 0;
  port.start_queue({note_on(0, 60), {0x80, 60, 0, 300, 0}}, [&] { ++ended; });
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
    port.send({0xC0, kFlute, 0, 0, 0});
    port.send(note_on(0, 69));
    render_ms(300);
    render_ms(300);
    return loudness(sound);
  };
  const double full = loudness_at(65535, 65535);
  EXPECT_NEAR(loudness_at(32768, 32768) / full, 0.5, 0.03);
  EXPECT_NEAR(loudness_at(65535, 0) / full, 0.5, 0.03);
  EXPECT_EQ(loudness_at(0, 0), 0);
}

TEST_F(SynthesizerTest, SixLoudTonesAndTheKeynoteStayUnclipped) {
  SynthPort port(synthesizer, scheduler);
  for (int channel = 1; channel < 8; ++channel) {
    port.send({static_cast<std::uint8_t>(0x90 | channel),
               static_cast<std::uint8_t>(48 + 4 * channel), 127, 0, 0});
  }
  render_ms(500);
  EXPECT_LT(*std::max_element(sound.begin(), sound.end()), 1.0F);
}

TEST(SynthesizerProblems, AMissingOrBrokenFontIsTold) {
  const Synthesizer synthesizer(Synthesizer::Output::rendered_by_caller,
                                {"/nonexistent/font.sf2", __FILE__}, {});
  EXPECT_EQ(synthesizer.problem(), Synthesizer::Problem::no_sound_font);
  EXPECT_NE(synthesizer.reason(), "");
}

}  // namespace
}  // namespace tonarix
