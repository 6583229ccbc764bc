#pragma once

#include <cstdint>
#include <functional>

#include "base/chance.h"
#include "base/delay.h"
#include "base/scheduler.h"
#include "base/sequence.h"
#include "engine/playback.h"
#include "engine/task_tuning.h"
#include "music/tone.h"

namespace tonarix {

/// What is to sound. The numbers are those of `spiel_art`.
enum class SpielArt : std::int16_t { task = 0, wieder = 1, grundton = 2, wieder2 = 3 };

/// Lets the row of a task be heard. It knows nothing of answers and scores.
class RowPlayer {
 public:
  RowPlayer() = default;
  virtual ~RowPlayer() = default;
  RowPlayer(const RowPlayer&) = delete;
  RowPlayer& operator=(const RowPlayer&) = delete;

  /// Length of a sounding row, milliseconds; 0 where nothing sounds. A test's length is estimated
  /// from it.
  virtual std::int16_t row_ms() const = 0;
  bool audible() const { return row_ms() > 0; }
  /// A new task: its tuning, and which thirds over the keynote its row holds (`Third`).
  void begin_task(const TaskTuning& tuning, std::int16_t terz_typ) {
    tuning_ = tuning;
    terz_typ_ = terz_typ;
  }
  const TaskTuning& tuning() const { return tuning_; }
  /// Begins to play; `sounded` follows once it has sounded for its computed time.
  /// `just_answered` is the tone that the keynote chord may not contradict.
  virtual Sequence play(SpielArt what, Tone just_answered) = 0;
  /// All notes off; what was playing is not reported any more.
  virtual void silence() = 0;
  /// Gives up waiting for the end of what plays, as when the device has failed.
  virtual void forget() = 0;
  /// The device's queue has run out.
  virtual void queue_ran_out() {}

  std::function<void()> sounded;
  std::function<void(int place)> shows;  ///< the tone that sounds now, -1 for none

 protected:
  TaskTuning tuning_;
  std::int16_t terz_typ_ = 0;
};

/// Tells which tone of a row sounds now, -1 for none: the first at once, each further a beat later.
class PlaceCursor {
 public:
  PlaceCursor(Scheduler& scheduler, std::function<void(int place)> shows)
      : shows_(std::move(shows)), timer_(scheduler, [this] { go_on(); }) {}

  void begin(int tones, double beat_ms);
  /// This tone sounds on.
  void stay_at(int place);
  void stop() { stay_at(-1); }

 private:
  void go_on();
  void show(int place);

  std::function<void(int)> shows_;
  Timer timer_;
  int tones_ = 0;
  int place_ = -1;
};

/// Plays the row tone by tone over the current MIDI output, and the keynote chord.
class SoundingPlayer final : public RowPlayer {
 public:
  SoundingPlayer(Scheduler& scheduler, Waits& waits, Midi& midi, const Settings& settings,
                 const Key& key, const TaskRow& row, Chance& chance);

  std::int16_t row_ms() const override;
  Sequence play(SpielArt what, Tone just_answered) override;
  void silence() override;
  void forget() override;
  void queue_ran_out() override { cursor_.stop(); }

 private:
  Waits& waits_;
  Midi& midi_;
  const Settings& settings_;
  const Key& key_;
  Chance& chance_;
  Playback playback_;
  Timer spieltimer_;
  Timer grdton_Timer_;
  PlaceCursor cursor_;
};

/// Where a row is read and nothing sounds: every row has sounded at once.
class SilentPlayer final : public RowPlayer {
 public:
  std::int16_t row_ms() const override { return 0; }
  Sequence play(SpielArt, Tone) override;
  void silence() override {}
  void forget() override {}
};

}  // namespace tonarix
