#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "music/interval.h"
#include "music/key.h"
#include "music/tone.h"
#include "music/tones.h"

namespace tonarix {

struct AnalysedTone {
  std::string name;
  std::int16_t qz = 0;
};

/// One interval of a finished row, named over the keynote and from tone to tone.
struct AnalysedInterval {
  std::int16_t difference = 0;  ///< semitones, upward positive
  std::int16_t degree = 0;      ///< from 1 on, with the direction; 0 when not in the key
  std::string degree_text;      ///< interval over the keynote, or "Stufe nicht leitereigen"
  std::int16_t code = 0;        ///< direct code from the tone before
  std::string interval_text;
};

/// What the record of a task tells of its row: one entry per tone, one per interval.
struct RowAnalysis {
  std::vector<AnalysedTone> tones;
  std::vector<AnalysedInterval> intervals;  ///< intervals[k] leads from tones[k] to tones[k + 1]
};

/// Analyses the tones of a row, first tone included. RuntimeError 9 for a tone or an interval that
/// has no name.
RowAnalysis analyse_row(std::span<const Tone> row, const Key& key, const ToneNames& tone_names,
                        const IntervalNames& interval_names);

}  // namespace tonarix
