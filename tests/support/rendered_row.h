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
  constexpr int kSilence = 1000;  // frames
  VirtualScheduler scheduler;
  SynthPort port(synthesizer, scheduler);
  port.send({0xC0, kWoodBlock, 0});
  std::vector<MidiMessage> queue;
  for (int i = 0; i < notes; ++i) {
    queue.push_back({0x90, kNote, 100, i * beat_ms});
    queue.push_back({0x80, kNote, 100, i * beat_ms + beat_ms / 4});
  }
  port.start_queue(queue, [] {});
  const std::vector<float> sound =
      synthesizer->render(static_cast<int>((notes + 0.5) * beat_ms * kFramesPerMs));

  double first_ms = 0, worst_ms = 0;
  int onsets = 0, quiet = kSilence;
  for (std::size_t frame = 0; frame < sound.size() / 2; ++frame, ++quiet) {
    if (std::abs(sound[2 * frame]) + std::abs(sound[2 * frame + 1]) <= 1e-6F) continue;
    const double at_ms = static_cast<double>(frame) / kFramesPerMs;
    if (onsets == 0) first_ms = at_ms;
    if (quiet >= kSilence) {
      worst_ms = std::max(worst_ms, std::abs(at_ms - first_ms - onsets++ * beat_ms));
    }
    quiet = 0;
  }
  return onsets == notes ? worst_ms : INFINITY;
}

}  // namespace tonarix
