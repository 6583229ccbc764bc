#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

#include "base/chance.h"
#include "engine/material/acceptance.h"
#include "engine/material/frequency_box.h"
#include "engine/material/range_repair.h"
#include "music/key.h"
#include "music/tones.h"
#include "settings/settings.h"

namespace tonarix {

/// Rows of the scale, each as often as it must stand there so that a row drawn from the list gives
/// all intervals from tone to tone about the same chance. Needs a built scale. (`StufenGewichte`)
std::vector<std::int16_t> StufenGewichte(const Key& key);

/// Draws the tasks of an exercise: a key if one is due, and a row of `invzahl` + 2 tones with the
/// intervals between them, by the frequency box or at random, repaired into the range. One lives as
/// long as an exercise window.
class Material {
 public:
  Material(const Settings& settings, Key& key, TaskRow& row, FrequencyBox& box, Chance& chance);

  /// Prepares the first task; the scale and the box must be built.
  void begin();
  /// Draws one task into the row and clears the answers of the last one. RuntimeError 1000 when
  /// the settings allow no row at all. True when a new key was chosen.
  bool mat_wahl();

  bool erster_lauf = true;  ///< no task has been drawn yet: the key is due
  /// Thirds over the keynote in a Dur-moll row: 0 none, 1 minor, 2 major, 3 both.
  std::int16_t terz_typ = 0;

  /// What had to be moved into the range when the row was drawn.
  const std::vector<RangeMove>& moves() const { return built_.moves; }

  /// Rows drawn again so far, by reason.
  const std::array<std::int64_t, kRefusals>& refused() const { return refused_; }

 private:
  static constexpr int kStrictAttempts = 200;
  static constexpr int kLastAttempt = 10000;

  Tone& tone(int i) { return built_.tone(i); }
  std::int16_t& iv(int i) { return built_.iv(i); }
  Tone& skala(int r) { return key_.skala[static_cast<std::size_t>(r)]; }

  void draw_acceptable_row();
  void draw_row();
  void draw_tone(int i);
  bool draw_from_box(int i);
  void draw_freely(int i);
  void ErsterTon(int i);
  void OktavLage(int i);
  int DirektSchritt(int i);
  bool NaechsterTon(int i);
  void draw_okt_zusatz();
  bool repeats_last_task() const;
  void find_thirds();

  const Settings& settings_;
  Key& key_;
  RowUnderWay built_;
  FrequencyBox& box_;
  Chance& chance_;

  std::vector<std::int16_t> stufen_liste_;
  std::bitset<22> codes_;
  std::int16_t anz_okt_lage_ = 0;
  std::array<std::int16_t, 3> letzte_reihe_{};
  std::array<std::int64_t, kRefusals> refused_{};
};

}  // namespace tonarix
