#include "sound/devices/synthesizer.h"

#include <fluidsynth.h>
#include <gtest/gtest.h>

#include <complex>
#include <memory>
#include <numbers>

#include "sound/instruments.h"
#include "support/main_thread.h"
#include "support/rendered_row.h"

namespace tonarix {
namespace {

constexpr int kRate = Synthesizer::kSampleRate;
constexpr std::uint8_t kFlute = 73;
constexpr std::uint8_t kClarinet = 71;
constexpr std::uint8_t kAccordion = 21;  // of the steadiest pitch

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

/// Frames of one turn of a tone of 392 to 494 Hz, by how well the left channel repeats itself.
double period(const Sound& sound) {
  constexpr int kShortest = 90, kLongest = 130;
  const auto likeness = [&](int lag) {
    double sum = 0;
    for (std::size_t i = 0; i + 2 * kLongest < sound.size(); i += 2) {
      sum += sound[i] * sound[i + 2 * static_cast<std::size_t>(lag)];
    }
    return sum;
  };
  int best = kShortest;
  for (int lag = kShortest; lag < kLongest; ++lag) {
    if (likeness(lag) > likeness(best)) best = lag;
  }
  const double before = likeness(best - 1), at = likeness(best), after = likeness(best + 1);
  return best + (before - after) / (2 * (before - 2 * at + after));
}

double greatest_jump(const Sound& sound) {
  double jump = 0;
  for (std::size_t i = 2; i < sound.size(); ++i) {
    jump = std::max<double>(jump, std::abs(sound[i] - sound[i - 2]));
  }
  return jump;
}

struct SynthesizerTest : testing::Test {
  SynthesizerTest() { EXPECT_EQ(synthesizer->reason(), ""); }
  Sound render_ms(double ms) { return synthesizer->render(static_cast<int>(ms * kRate / 1000)); }
  /// What sounds once the attacks and endings are over.
  Sound settled() {
    render_ms(500);
    return render_ms(1000);
  }
  VirtualScheduler scheduler;
  MainThread main;
  std::shared_ptr<Synthesizer> synthesizer = std::make_shared<Synthesizer>(
      Synthesizer::Output::rendered_by_caller, sound_font_places(), main.poster());
  int ended = 0;
  const std::function<void()> at_end = [this] { ++ended; };
  const std::vector<MidiMessage> note{{0x90, 60, 100}, {0x80, 60, 0, 300}};
};

TEST_F(SynthesizerTest, OnsetsLieWithinOneBlockOfTheirTimes) {
  const double block_ms = 1000.0 * Synthesizer::kBlock / kRate;
  for (const int beat : {250, 333, 1517}) {
    EXPECT_LE(worst_onset_error_ms(synthesizer, 6, beat), block_ms) << beat;
  }
}

TEST_F(SynthesizerTest, ABendStepIsAnEvenThirtySecondOfASemitone) {
  for (const std::uint8_t bend : {48, 60, 63, 64, 65, 70, 80}) {
    SynthPort port(synthesizer, scheduler);
    port.send({0xC2, kAccordion, 0});
    port.send({0xE2, 0, bend});
    port.send({0x92, 69, 100});
    EXPECT_NEAR(cents_above_440(settled()), (bend - 64) * 3.125, 1.5) << bend;
  }
}

// A tone that is formed by hand: from one end of the slider to the other in a second.
TEST_F(SynthesizerTest, ATonesPitchFollowsItsBendsWithoutAClick) {
  SynthPort port(synthesizer, scheduler);
  port.send({0xC4, kClarinet, 0});
  port.send({0xE4, 0, 127});
  port.send({0x94, 69, 100});
  const double own_jump = greatest_jump(settled());
  port.send({0xE4, 0, 1});
  render_ms(100);
  Sound slide;
  for (std::uint8_t bend = 1; bend <= 127; ++bend) {
    port.send({0xE4, 0, bend});
    const Sound step = render_ms(8);
    slide.insert(slide.end(), step.begin(), step.end());
  }
  EXPECT_LE(greatest_jump(slide), own_jump);
  constexpr std::size_t kWindow = 2 * kRate / 25;
  double before = 1000;
  for (std::size_t at = 0; at + kWindow <= slide.size(); at += kWindow) {
    const auto from = slide.begin() + static_cast<std::ptrdiff_t>(at);
    const double now = period(Sound(from, from + kWindow));
    EXPECT_LT(now, before);
    before = now;
  }
  EXPECT_NEAR(1200 * std::log2(kRate / before / 440), 190, 15);
}

TEST_F(SynthesizerTest, StoppingOrClosingSilencesAtOnceAndOpeningCentresTheBends) {
  {
    SynthPort port(synthesizer, scheduler);
    port.start_queue(note, at_end);
    EXPECT_GT(loudness(render_ms(200)), 0.001);
    port.stop_queue();
    render_ms(20);
    EXPECT_EQ(loudness(render_ms(1000)), 0);
    main.run_posted();
    EXPECT_EQ(ended, 0);
    port.send({0xC0, kAccordion, 0});
    port.send({0xE0, 0, 80});
    port.send({0x90, 60, 100});
    EXPECT_GT(loudness(render_ms(100)), 0.001);
  }
  render_ms(20);
  EXPECT_EQ(loudness(render_ms(100)), 0);
  SynthPort reopened(synthesizer, scheduler);
  reopened.send({0x90, 69, 100});
  EXPECT_NEAR(cents_above_440(settled()), 0, 1.5);
}

TEST_F(SynthesizerTest, AQueueTellsItsEndOnceAndNeverAfterItWasStopped) {
  SynthPort port(synthesizer, scheduler);
  const auto ended_after = [&](double ms) {
    render_ms(ms);
    main.run_posted();
    return ended;
  };
  port.start_queue(note, at_end);
  EXPECT_EQ(ended_after(299), 0);
  EXPECT_EQ(ended_after(1000), 1);
  port.start_queue({note[0]}, at_end);
  render_ms(10);
  ASSERT_TRUE(main.wait_for_post());
  port.stop_queue();
  EXPECT_EQ(ended_after(0), 1);
  port.start_queue({}, at_end);
  EXPECT_EQ(ended_after(10), 2);
}

TEST_F(SynthesizerTest, AQueueWhoseSoundNobodyTakesIsEnded) {
  SynthPort port(synthesizer, scheduler);
  port.start_queue(note, at_end);
  scheduler.advance_ms(2299);
  EXPECT_EQ(ended, 0);
  scheduler.advance_ms(1);
  EXPECT_EQ(ended, 1);
  EXPECT_TRUE(synthesizer->stalled());
  render_ms(1000);
  main.run_posted();
  EXPECT_EQ(ended, 1);
}

TEST_F(SynthesizerTest, TheVolumeScalesTheSoundEvenly) {
  const auto loudness_at = [&](std::int32_t left, std::int32_t right) {
    SynthPort port(synthesizer, scheduler);
    port.set_volume(left, right);
    port.send({0xC0, kFlute, 0});
    port.send({0x90, 69, 100});
    return loudness(settled());
  };
  const double full = loudness_at(65535, 65535);
  EXPECT_NEAR(loudness_at(32768, 32768) / full, 0.5, 0.03);
  EXPECT_NEAR(loudness_at(65535, 0) / full, 0.5, 0.03);
  EXPECT_EQ(loudness_at(0, 0), 0);
}

TEST_F(SynthesizerTest, SixLoudTonesAndTheKeynoteStayUnclipped) {
  SynthPort port(synthesizer, scheduler);
  for (std::uint8_t note_on = 0x91, tone = 52; note_on <= 0x97; ++note_on, tone += 4) {
    port.send({note_on, tone, 127});
  }
  const Sound sound = render_ms(500);
  EXPECT_LT(*std::max_element(sound.begin(), sound.end()), 1.0F);
}

TEST(ProgramNames, NoTwoExchangedWouldFitTheSoundFontBetter) {
  const std::unique_ptr<fluid_settings_t, void (*)(fluid_settings_t*)> settings(
      new_fluid_settings(), delete_fluid_settings);
  const std::unique_ptr<fluid_synth_t, void (*)(fluid_synth_t*)> synth(
      new_fluid_synth(settings.get()), delete_fluid_synth);
  fluid_settings_setint(settings.get(), "synth.dynamic-sample-loading", 1);
  ASSERT_GE(fluid_synth_sfload(synth.get(), sound_font_places().front().c_str(), 0), 0);
  std::array<std::string, 128> presets;
  for (int program = 0; program < 128; ++program) {
    presets[program] = fluid_preset_get_name(
        fluid_sfont_get_preset(fluid_synth_get_sfont(synth.get(), 0), 0, program));
  }
  const auto fit = [&presets](std::size_t name, std::size_t sound) {
    const std::string_view words = general_midi_programs[name];
    int shared_pairs = 0;
    for (std::size_t at = 0; at + 2 <= words.size(); ++at) {
      shared_pairs += presets[sound].find(words.substr(at, 2)) != std::string::npos;
    }
    return shared_pairs;
  };
  for (std::size_t one = 0; one < 128; ++one) {
    for (std::size_t other = 0; other < one; ++other) {
      EXPECT_NE(general_midi_programs[one], general_midi_programs[other]);
      if (one == 91 && other == 85) continue;  // the lead is a "Solo Vox", the pad a "Space Voice"
      EXPECT_GE(fit(one, one) + fit(other, other), fit(one, other) + fit(other, one))
          << general_midi_programs[one] << ", " << general_midi_programs[other];
    }
  }
}

}  // namespace
}  // namespace tonarix
