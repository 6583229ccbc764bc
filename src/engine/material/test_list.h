#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "base/chance.h"
#include "music/key.h"
#include "settings/settings.h"
#include "statistics/records.h"

namespace tonarix {

/// Five eighths of the tasks, rounded down: what a test that takes too long is cut to.
std::int16_t five_eighths(std::int16_t tasks);
/// Three quarters, rounded: what a test of played rows that takes too long is cut to.
std::int16_t three_quarters(std::int16_t tasks);

/// What a test's length is estimated from.
struct TestTiming {
  std::int16_t spieltimer = 0;   ///< length of a sounding row, milliseconds; 0 where nothing sounds
  std::int16_t WahlAutomat = 0;  ///< pause before the next task, milliseconds
  std::int16_t zeit_grenze = 0;  ///< free time of an answer, tenths of a second
  std::int16_t (*shortened)(std::int16_t tasks) = five_eighths;
  bool one_degree_is_long = true;  ///< a test of a single degree is cut whatever time it takes
};

/// The intervals that half a test asks, to be used up, and how many tasks and seconds are left.
class TestList {
 public:
  TestList(const Settings& settings, const Key& key, Auswertung& statistics, Chance& chance);

  /// Sizes the test and fills its list; the scale must be built.
  void build(const TestTiming& timing);
  /// Enters each interval once, so that all occur, then draws by chance to the end.
  void TestListeFuellen();
  /// One task less; at half the list is filled again. True when it was the last.
  bool finish_task();
  /// So many seconds less. True when the time is used up.
  bool pass_time(std::int16_t seconds);
  /// Length of a test of `aufg_gesamt` tasks in seconds, rounded up to whole tens.
  std::int16_t estimate(const TestTiming& timing) const;

  /// An entry drawn by chance, by preference of an interval that was asked least.
  std::int16_t draw_interval();
  /// Takes the first entry with this value; false when there is none.
  bool take(std::int16_t value);
  /// Puts back what has been taken since the last `keep_taken`, when a row was refused.
  void give_back();
  void keep_taken() { taken_count_ = 0; }

  std::int16_t aufg_gesamt = 0;  ///< tasks of the test
  std::int16_t aufg_rest = 0;    ///< of these left
  std::int16_t aufg_dauer = 0;   ///< seconds left; at first the length of the test

  std::vector<std::int16_t> matbox;                         ///< entries not used yet
  std::int16_t matboxmax = 0;                               ///< entries of the full list
  std::array<std::int16_t, kStatisticRows> test_haeufgk{};  ///< uses of each statistic row

 private:
  static constexpr std::int16_t kFilledAgain = -1;  // no place left to go back to

  struct Taken {
    std::int16_t place;
    std::int16_t value;
  };

  int asked_per_task() const { return settings_.invzahl + (settings_.ton_st_wahl == 1 ? 0 : 1); }
  StatisticRow row_of(std::int16_t value) const { return statistic_row(value, settings_.abfr_iv); }
  std::int16_t& uses(std::int16_t value) { return test_haeufgk[place_of(row_of(value))]; }
  std::int16_t draw_offered();

  const Settings& settings_;
  const Key& key_;
  Auswertung& statistics_;
  Chance& chance_;

  int box_zeilen_ = 0;  // intervals that the test asks
  std::array<Taken, 8> taken_{};
  std::size_t taken_count_ = 0;
};

}  // namespace tonarix
