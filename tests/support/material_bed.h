#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/arithmetic.h"
#include "engine/material/material.h"
#include "music/interval.h"
#include "music/tones.h"

namespace tonarix {

/// An exercise without a window: draws tasks and answers them, so that boxes and lists wear on as
/// they do under a student.
class MaterialBed {
 public:
  static constexpr TestTiming kTiming{4500, 1800, 25};

  MaterialBed(const Settings& chosen, std::uint64_t seed)
      : settings(chosen),
        chance(seed),
        box(settings, key, statistics, chance),
        material(settings, key, row, box, chance) {
    begin();
  }

  /// A new exercise with the same settings, as if the window had been opened again.
  void begin() {
    statistics.init_arr(3, kStatisticRows - 1);
    build_scale(key, settings.tongeschl, settings.abfr_iv);
    box.BoxAufbau(kTiming);
    material.begin();
  }

  /// Answers all intervals of the row, each wrong at first with the chance `wrong`; then counts the
  /// task. False when the training or the test has ended.
  bool answer(double wrong) {
    if (settings.Uebungsmodus == Level::free) return true;
    std::vector<AnsweredInterval> answered;
    for (int i = settings.ton_st_wahl; i <= settings.invzahl; ++i) {
      AnsweredInterval interval{row.iv[static_cast<std::size_t>(i)], -4, lateness, 0, {}};
      if (chance.Rnd() < wrong) {
        interval.rf = 2;
        interval.f_antw_wert[1] = to_int16(-interval.interval);
      }
      answered.push_back(interval);
    }
    const BoxOutcome outcome = box.BoxAuswerten(answered);
    if (!is_test(settings.Uebungsmodus)) return outcome.zustand == 1;
    return !box.test.finish_task();
  }

  float lateness = 0;  ///< of right answers
  Settings settings;
  Key key;
  TaskRow row;
  Auswertung statistics;
  SeededChance chance;
  FrequencyBox box;
  Material material;
};

/// The first law that a finished row breaks, or an empty text. `strict_range` is off for a row that
/// was only found beyond the range.
inline std::string broken_law(const MaterialBed& bed, bool strict_range = true) {
  const Settings& s = bed.settings;
  int thirds = 0;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(s.invzahl) + 1; ++i) {
    const Tone tone = bed.row.inv_ton[i];
    if (!has_name(tone.qz)) return "qz outside the table";
    if (tone.chr % 12 != pitch_class(tone.qz)) return "a tone that is not what its name says";
    if (!skala_row(bed.key, tone.qz)) return "a tone outside the key";
    const int above = tone.chr - bed.key.tonart_offset;
    if (strict_range && (above < s.tonraum_min || above > s.tonraum_max)) return "out of range";
    if (i == 0 && tone.qz != bed.key.skala[0].qz) return "a row without the keynote first";
    if (i == 0) continue;
    const Tone before = bed.row.inv_ton[i - 1];
    if (i >= 2 && tone.chr == bed.row.inv_ton[i - 2].chr)
      return "a tone equal to the one two before";
    const int pitch_over_keynote = (tone.chr - bed.key.skala[0].chr + 120) % 12;
    if (pitch_over_keynote == 3) thirds |= 1;
    if (pitch_over_keynote == 4) thirds |= 2;
    const int iv = bed.row.iv[i - 1];
    const int direction = tone.chr > before.chr ? 1 : -1;
    if (tone.chr == before.chr || (iv > 0) != (direction > 0)) return "a false direction";
    const int fifths = tone.qz - before.qz;
    const int size = std::abs(iv);
    if (s.abfr_iv == Naming::from_tone_before &&
        fifths != (size % 2 == 0 ? direction : -direction) * (size / 2)) {
      return "a code that is not the step";
    }
    if (s.abfr_iv == Naming::from_keynote &&
        bed.key.skala.at(static_cast<std::size_t>(size - 1)).qz != tone.qz) {
      return "a degree that is not the tone";
    }
    if (s.ton_st_wahl == 1 && i == 1 &&
        tone.qz != bed.key.skala[static_cast<std::size_t>(s.stufe_wahl)].qz) {
      return "a second tone that is not the chosen degree";
    }
    const int semitones = std::abs(tone.chr - before.chr);
    const int most = s.ivg == 0 ? 12 : 24;
    const int least = s.ivg == 1 ? 13 : 1;
    if (semitones > most || semitones < least) return "an interval beyond the chosen size";
  }
  if (s.tongeschl == 2 && bed.material.terz_typ != thirds) return "thirds that aren't remembered";
  return {};
}

/// One cell of the statistics.
inline float statistic(const MaterialBed& bed, StatisticRow row, int column) {
  float value = -1000;
  bed.statistics.read(row, static_cast<float>(column), value);
  return value;
}

}  // namespace tonarix
