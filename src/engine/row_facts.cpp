#include "engine/row_facts.h"

#include <span>

#include "base/arithmetic.h"
#include "music/analysis.h"

namespace tonarix {

LessonFacts row_facts(const ExerciseContext& context, int first_asked) {
  const auto tones = static_cast<std::size_t>(context.settings.invzahl) + 2;
  const RowAnalysis analysis = analyse_row(std::span(context.row.inv_ton).first(tones), context.key,
                                           context.tone_names, context.interval_names);
  LessonFacts facts;
  facts.iv_nr = to_int16(first_asked);
  for (const AnalysedTone& tone : analysis.tones) facts.qz_tones.push_back(tone.qz);
  for (const AnalysedInterval& interval : analysis.intervals) {
    facts.intervals.push_back({interval.degree_text, interval.interval_text});
  }
  return facts;
}

}  // namespace tonarix
