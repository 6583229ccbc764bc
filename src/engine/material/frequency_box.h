#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "base/chance.h"
#include "engine/material/answered_interval.h"
#include "engine/material/test_list.h"
#include "music/key.h"
#include "settings/saved_training.h"
#include "settings/settings.h"
#include "statistics/records.h"

namespace tonarix {

/// Where the training stands after a task.
struct BoxOutcome {
  std::int16_t zustand;       ///< 1 the exercise goes on, 4 the training is finished
  std::int16_t ergebnis_anz;  ///< panel that shows: 0 status, 1 solved, 2 too hard
  bool finished() const { return zustand == 4; }
};

/// Decides how often each interval is asked. In a training (levels 1 and 2) it is a set of weights
/// that grow with errors and shrink with quick right answers, until nothing is left to ask or
/// everything has become too hard. In a test (above) `test` decides. At level 0 it is empty.
///
/// An exercise window owns one.
class FrequencyBox {
 public:
  static constexpr int kMaxRows = kStatisticRows - 1;

  FrequencyBox(const Settings& settings, const Key& key, Auswertung& statistics, Chance& chance);

  /// Builds the box or the test list for the level; the scale must be built. `timing` is read in a
  /// test only.
  void BoxAufbau(const TestTiming& timing = {});
  /// Forgets what the last task took from the list.
  void begin_task();
  /// Applies the results of a finished task.
  BoxOutcome BoxAuswerten(std::span<const AnsweredInterval> answered);

  /// Sorts the rows by weight, highest first, and rebuilds `matbox` while something is
  /// left to ask and the sum is below eight times the rows less one.
  void MatboxRechnen();
  /// Refills `matbox`: each value as many times as its weight plus `add_wert`, if that is above 0.
  void MatboxFuellen(int add_wert);
  /// An interval drawn by the rule of the level, from the test's list or from `matbox`.
  std::int16_t draw_interval();
  /// Entries of the list that the level draws from.
  int entries() const;

  /// Takes over the rows of a saved training, at level 2 after `BoxAufbau`, and draws by their
  /// weights from the first task on.
  void restore(const std::vector<BoxRow>& rows);

  /// Share of the weights in their ceiling, 0 to 100: 0 is solved, 100 too hard.
  double percentage() const;

  std::int16_t box_zeilen = 0;
  std::int16_t start_gewicht = 0;
  std::array<BoxRow, kMaxRows + 1> mathaeufgk_box{};  ///< rows 1 to `box_zeilen`
  std::int16_t box_summe = 0;                         ///< sum of the positive weights

  std::vector<std::int16_t> matbox;  ///< 1 to `matboxmax`: the values repeated by weight
  std::int16_t matboxmax = 0;
  std::int16_t matbox_vorn = 0;  ///< leading entries that come from rows of positive weight

  TestList test;  ///< what a test has left, empty below

 private:
  bool training() const { return is_training(settings_.Uebungsmodus); }
  StatisticRow row_of(std::int16_t value) const { return statistic_row(value, settings_.abfr_iv); }
  int ceiling() const { return box_zeilen == 0 ? 0 : weight_ceiling(box_zeilen); }
  std::span<BoxRow> rows() { return {mathaeufgk_box.data() + 1, std::size_t(box_zeilen)}; }

  void build_training();
  void sort_and_sum();
  void fill_by_weights();
  void add_weight(std::int16_t value, float amount);
  void count_confusions(const AnsweredInterval& interval);
  void StatEintrag(StatisticRow row, float rf);
  BoxOutcome standing();

  const Settings& settings_;
  const Key& key_;
  Auswertung& statistics_;
  Chance& chance_;

  int shown_percentage_ = 0;  // as read back from the display: truncated
};

}  // namespace tonarix
