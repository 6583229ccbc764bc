#include "music/analysis.h"

#include "music/degrees.h"

namespace tonarix {
namespace {

AnalysedInterval analyse_interval(Tone from, Tone to, const Key& key, const IntervalNames& names) {
  AnalysedInterval interval;
  interval.difference = to_int16(to.chr - from.chr);
  // A repeated tone is a prime and no octave; it counts as falling, as its sign tells.
  const int direction = interval.difference > 0 ? 1 : -1;
  const int position = position_in_list(to.qz, key.skala, key.anz_stufen);
  interval.degree = to_int16(position * direction);
  interval.degree_text =
      position == 0 ? "Stufe nicht leitereigen"
                    : names
                          .text(interval.difference,
                                direct_code_of_degree(key, DegreeNumber{to_int16(position)}))
                          .joined();
  interval.code = direct_code(direction, to.qz, from.qz);
  interval.interval_text = names.text(interval.difference, IntervalCode{interval.code}).joined();
  return interval;
}

}  // namespace

RowAnalysis analyse_row(std::span<const Tone> row, const Key& key, const ToneNames& tone_names,
                        const IntervalNames& interval_names) {
  RowAnalysis analysis;
  for (std::size_t i = 0; i < row.size(); ++i) {
    analysis.tones.push_back({tone_names.name(row[i]), row[i].qz});
    if (i > 0) {
      analysis.intervals.push_back(analyse_interval(row[i - 1], row[i], key, interval_names));
    }
  }
  return analysis;
}

}  // namespace tonarix
