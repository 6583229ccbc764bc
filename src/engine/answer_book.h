#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "engine/material/frequency_box.h"

namespace tonarix {

/// How an answer turned out.
enum class Verdict : std::uint8_t {
  right,
  near_miss,  ///< half right: it closes its place and costs a little
  wrong,      ///< it may be tried again
  given_up,   ///< wrong once too often: the solution is given
};

/// Time spent on an answer. It runs while the student can answer and stands while something sounds.
/// Moments are seconds of steady time.
class AnswerClock {
 public:
  void restart(double now) { spent_ = 0, started_ = now; }
  void go_on(double now) { started_ = now; }
  void pause(double now) { spent_ += now - started_; }
  /// Ends the answer; its time in tenths of a second, half a tenth counting up.
  float stop(double now);

 private:
  double spent_ = 0;
  double started_ = 0;
};

/// What one task has come to so far: for each interval of the row whether it is asked, its error
/// score, lateness, repeats and wrong answers. How an answer is given, and by which control, is
/// none of its business. Places count from 0, as the intervals of the row do.
class AnswerBook {
 public:
  static constexpr float RF = 8;  ///< error score at which the solution is given: four wrong tries
  static constexpr int kMostPlaces = 6;

  struct Rules {
    std::int16_t zeit_grenze = 20;  ///< free time of an answer, tenths of a second
    bool rewarded = true;           ///< whether a right first answer earns anything
  };

  /// Opens the book for a row; the places before `first_asked` are given and not asked.
  void begin_task(std::span<const std::int16_t> intervals, int first_asked, Rules rules);

  /// The lowest place that is still open; the number of places when none is.
  int asked() const;
  bool open(int place) const { return open_.at(at(place)); }
  bool done() const { return asked() == count_; }
  /// Plain wrong tries on a place so far, 0 to 4.
  int wrong_tries(int place) const;
  const AnsweredInterval& place(int place) const { return places_.at(at(place)); }

  /// A right answer after `tenths` closes its place.
  Verdict right(int place, float tenths);
  Verdict near_miss(int place);
  /// `value` is the signed interval that was answered, 0 where none is named.
  Verdict wrong(int place, std::int16_t value = 0);
  /// Lateness that counts for a place before it is answered.
  void add_lateness(int place, float tenths);

  /// The row was heard once more for the place that is asked.
  void count_repeat();
  /// The keynote was heard: half a repeat, and the first one of a place is free.
  void count_keynote();
  /// Repeats since the last answer, a keynote counting half.
  float wdh_gesamt() const { return wdh_gesamt_; }

  /// The asked intervals of the row, from the first on.
  std::span<const AnsweredInterval> answered() const;

 private:
  static std::size_t at(int place) { return static_cast<std::size_t>(place); }
  void close(int place);

  std::array<AnsweredInterval, kMostPlaces> places_{};
  std::array<bool, kMostPlaces> open_{};
  int count_ = 0;
  int first_asked_ = 0;
  Rules rules_;
  float wdh_gesamt_ = 0;
};

}  // namespace tonarix
