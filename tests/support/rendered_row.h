#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "sound/devices/synthesizer.h"
#include "support/virtual_scheduler.h"

namespace tonarix {

/// Renders a row of equal notes, a beat apart, through a synthesiser without a driver and gives the
/// greatest distance of an onset from i x beat, the first onset being 0. An onset is the first
/// frame that differs from silence: the notes are short and die out before the next begins.
inline double worst_onset_error_ms(const std::shared_ptr<Synthesizer>& synthesizer, int notes,
                                   int beat_ms) {
  constexpr std::uint8_t kNote = 72;
  constexpr std::uint8_t kWoodBlock = 115;
  constexpr double kFramesPerMs = Synthesizer::kSampleRate / 1000.0;
  VirtualScheduler scheduler;
  SynthPort port(synthesizer, scheduler);
  port.send({0xC0, kWoodBlock, 0, 0, 0});
  std::vector<MidiMessage> queue;
  for (int i = 0; i < notes; ++i) {
    queue.push_back({0x90, kNote, 100, i * beat_ms, 0});
    queue.push_back({0x80, kNote, 100, i * beat_ms + beat_ms / 4, 0});
  }
  port.start_queue(queue, [] {});
  const std::vector<float> sound =
      synthesizer->render(static_cast<int>((notes + 0.5) * beat_ms * kFramesPerMs));

  const auto sounds = [&](std::size_t frame) {
    return std::abs(sound[2 * frame]) + std::abs(sound[2 * frame + 1]) > 1e-6F;
  };
  std::vector<double> onsets;
  std::size_t quiet = 1000;
  for (std::size_t frame = 0; frame < sound.size() / 2; ++frame) {
    if (!sounds(frame)) {
      ++quiet;
      continue;
    }
    if (quiet >= 1000) onsets.push_back(static_cast<double>(frame));
    quiet = 0;
  }
  if (static_cast<int>(onsets.size()) != notes) return INFINITY;
  double worst = 0;
  for (int i = 0; i < notes; ++i) {
    const double at_ms = (onsets[static_cast<std::size_t>(i)] - onsets[0]) / kFramesPerMs;
    worst = std::max(worst, std::abs(at_ms - i * beat_ms));
  }
  return worst;
}

}  // namespace tonarix
