#include "music/analysis.h"

#include <gtest/gtest.h>

#include <array>

#include "base/runtime_error.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

struct Analysis : testing::Test {
  Analysis() {
    build_scale(key, 0, Naming::from_tone_before);
    move_to_key(key, 2);  // D major
  }
  RowAnalysis analyse(std::span<const Tone> row) const {
    return analyse_row(row, key, tone_names, interval_names);
  }
  KeyTexts texts;
  ToneNames tone_names{texts};
  IntervalNames interval_names{texts};
  Key key;
};

TEST_F(Analysis, NamesTheStepOverTheKeynoteAndFromTheToneBefore) {
  struct Step {
    Tone from, to;
    int degree;
    const char* degree_text;
    int code;
    const char* interval_text;
  };
  const Step steps[] = {
      {{62, 17}, {78, 21}, 3, "+ [284] und 1 Okt.", 8, "+ [284] und 1 Okt."},
      {{78, 21}, {57, 18}, -5, "- [452] und 1 Okt.", -6, "- [283] und 1 Okt."},
      {{57, 18}, {26, 17}, -1, "- [449] und 2 Okt.", -2, "- [452] und 2 Okt."},
      {{62, 17}, {65, 14}, 0, "Stufe nicht leitereigen", 7, "+ [361]"},
      {{62, 17}, {61, 22}, -7, "- [282]", -11, "- [358]"},  // falling, and yet in the key
      {{69, 18}, {69, 18}, -5, "- [452]", -1, "- [449]"},   // a prime and no octave
  };
  for (const Step& step : steps) {
    const RowAnalysis result = analyse(std::array{step.from, step.to});
    EXPECT_EQ(result.tones.at(0).name, tone_names.name(step.from));
    const AnalysedInterval& interval = result.intervals.at(0);
    EXPECT_EQ(interval.difference, step.to.chr - step.from.chr);
    EXPECT_EQ(interval.degree, step.degree);
    EXPECT_EQ(interval.degree_text, step.degree_text);
    EXPECT_EQ(interval.code, step.code);
    EXPECT_EQ(interval.interval_text, step.interval_text);
  }
  EXPECT_THROW(analyse(std::array{Tone{60, 1}, Tone{71, 20}}), RuntimeError);
  EXPECT_TRUE(analyse({}).tones.empty());
}

}  // namespace
}  // namespace tonarix
