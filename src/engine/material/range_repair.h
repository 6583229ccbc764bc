#pragma once

#include <cstdint>
#include <vector>

#include "music/key.h"
#include "music/tones.h"
#include "settings/settings.h"

namespace tonarix {

/// A tone that lay beyond the range, and what became of it.
struct RangeMove {
  int tone = 0;                 ///< its place in the row
  std::int16_t chr = 0;         ///< MIDI note it was moved to
  std::int16_t iv_before = 0;   ///< the interval that changed, or the one that leads to the tone
  std::int16_t iv = 0;          ///< the same after the move
  bool seeming_octave = false;  ///< it would equal the tone two before it, so it is drawn again
};

/// A row of tones that is being built, and what is known of its newest interval.
struct RowUnderWay {
  TaskRow& row;
  std::int16_t richtung = 1;    ///< direction of the interval, 1 up or -1 down
  std::int16_t okt_zusatz = 0;  ///< octaves added to it, in semitones
  bool pruef_frei = false;      ///< in a test: the interval before it was no longer on its list

  std::vector<RangeMove> moves{};  ///< of this row so far

  // By place, as the rules count: iv(i - 1) leads to tone i.
  Tone& tone(int i) { return row.inv_ton[static_cast<std::size_t>(i)]; }
  std::int16_t& iv(int i) { return row.iv[static_cast<std::size_t>(i)]; }
  void move(int i, int semitones) {
    tone(i).chr = static_cast<std::int16_t>(tone(i).chr + semitones);
  }
};

/// Brings tone `i`, 2 or above, back when it lies beyond the range, by changing the melody as
/// little as its interval allows. False when the tone must be drawn again.
bool TonraumTest(RowUnderWay& built, int i, const Settings& settings, const Key& key);

}  // namespace tonarix
