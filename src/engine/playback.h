#pragma once

#include <array>
#include <cstdint>

#include "base/delay.h"
#include "base/sequence.h"
#include "engine/keynote.h"
#include "engine/task_tuning.h"
#include "music/key.h"
#include "settings/settings.h"
#include "sound/midi.h"

namespace tonarix {

/// Time for a device to fall silent, milliseconds.
inline constexpr double kResetPause = 50;

/// Sounds the row of the task and the keynote check over the current MIDI output. Each operation is
/// ended by the closing of `waits`; the queue then does not start.
class Playback {
 public:
  Playback(Midi& midi, const Settings& settings, const Key& key, const TaskRow& row)
      : midi_(midi), settings_(settings), key_(key), row_(row) {}

  /// Sends programs and bends, queues the row and starts the queue.
  Sequence SpieleAufgabe(const TaskTuning& tuning, Waits& waits);
  /// The keynote chord, all its notes at once.
  Sequence SpieleGrundton(const KeynoteChord& chord, const TaskTuning& tuning, Waits& waits);

  /// Beat in milliseconds.
  std::int16_t beat() const {
    return settings_.tempo_ms.at(static_cast<std::size_t>(settings_.tempo));
  }
  int tones() const { return settings_.invzahl + 2; }

 private:
  bool bent() const;
  void queue_tone(int place, std::int16_t note, std::int16_t deviation, double start);
  void queue_keynote(const TaskTuning& tuning);

  Midi& midi_;
  const Settings& settings_;
  const Key& key_;
  const TaskRow& row_;
  std::int32_t tag_ = 0;
};

}  // namespace tonarix
