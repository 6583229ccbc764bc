#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "engine/material/answered_interval.h"

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
  void restart(double now) { spent_ = 0, started_ = now, runs_ = true; }
  void go_on(double now);
  void pause(double now);
  /// Lets it stand; its time in tenths of a second, half a tenth counting up.
  float stop(double now);

 private:
  double spent_ = 0;
  double started_ = 0;
  bool runs_ = false;
};

/// How often the row and its keynote were heard since the last answer to a place.
struct Hearing {
  std::int16_t repeats = 0;
  std::int16_t keynotes = 0;
  /// A keynote counts half a repeat. (`wdh_gesamt`)
  constexpr float total() const { return static_cast<float>(repeats) + 0.5F * keynotes; }
};

/// What one task has come to so far: for each interval of the row whether it is asked, its error
/// score, lateness, repeats and wrong answers. How an answer is given, and by which control, is
/// none of its business. Places count from 0, as the intervals of the row do.
class AnswerBook {
 public:
  static constexpr int kMostPlaces = 6;

  struct Rules {
    int first_asked = 0;            ///< the places before it are given
    int first_scored = 0;           ///< the places before it count for nothing
    std::int16_t zeit_grenze = 20;  ///< free time of an answer, tenths of a second
    bool rewarded = true;           ///< whether a right first answer earns anything
  };

  /// Opens the book for a row.
  void begin_task(std::span<const std::int16_t> intervals, const Rules& rules);

  /// The lowest place that is still open; the number of places when none is.
  int asked() const;
  bool open(int place) const { return open_.at(at(place)); }
  bool done() const { return asked() == count_; }
  /// Plain wrong tries on a place so far, 0 to 4.
  int wrong_tries(int place) const;
  /// Tries until the solution is given.
  int tries_left(int place) const;
  const AnsweredInterval& place(int place) const { return places_.at(at(place)); }

  // The verdicts. A place that is not open takes none: RuntimeError 9.

  /// A right answer after `tenths` closes its place.
  Verdict right(int place, float tenths);
  Verdict near_miss(int place);
  /// `value` is the signed interval that was answered, 0 where none is named.
  Verdict wrong(int place, std::int16_t value = 0);
  /// Lateness beyond a free time that counts for a place before it is answered.
  void add_lateness(int place, float tenths, std::int16_t zeit_grenze);

  /// The row was heard once more for the place that is asked.
  void count_repeat();
  /// The keynote was heard: half a repeat, rounded to even.
  void count_keynote();
  /// What was heard for a place since its last answer.
  const Hearing& heard(int place) const { return heard_.at(at(place)); }

  /// The intervals of the row that are scored, from the first on.
  std::span<const AnsweredInterval> answered() const;

 private:
  static std::size_t at(int place) { return static_cast<std::size_t>(place); }
  AnsweredInterval& answer_to(int place);

  std::array<AnsweredInterval, kMostPlaces> places_{};
  std::array<Hearing, kMostPlaces> heard_{};
  std::array<bool, kMostPlaces> open_{};
  int count_ = 0;
  Rules rules_;
};

}  // namespace tonarix
