#include "music/analysis.h"

#include <gtest/gtest.h>

#include <array>

#include "base/runtime_error.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

class Analysis : public testing::Test {
 protected:
  void SetUp() override {
    build_scale(key, 0, 1);
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

TEST_F(Analysis, NamesEachToneAndBothIntervals) {
  // d' up to the second f sharp, down to a, down to the d two octaves lower
  const std::array<Tone, 4> row{{{62, 17}, {78, 21}, {57, 18}, {26, 17}}};
  const RowAnalysis result = analyse(row);

  ASSERT_EQ(result.tones.size(), 4u);
  EXPECT_EQ(result.tones[0].name, "[15][183]");
  EXPECT_EQ(result.tones[1].name, "[16][228]");
  EXPECT_EQ(result.tones[2].name, "[68]");
  EXPECT_EQ(result.tones[3].name, "[20][184]");

  ASSERT_EQ(result.intervals.size(), 3u);
  const AnalysedInterval& third = result.intervals[0];
  EXPECT_EQ(third.degree, 3);
  EXPECT_EQ(third.degree_text, "+ [284] und 1 Okt.");
  EXPECT_EQ(third.code, 8);
  EXPECT_EQ(third.interval_text, "+ [284] und 1 Okt.");

  const AnalysedInterval& sixth = result.intervals[1];
  EXPECT_EQ(sixth.degree, -5);
  EXPECT_EQ(sixth.degree_text, "- [452] und 1 Okt.");
  EXPECT_EQ(sixth.code, -6);
  EXPECT_EQ(sixth.interval_text, "- [283] und 1 Okt.");

  const AnalysedInterval& keynote = result.intervals[2];
  EXPECT_EQ(keynote.degree, -1);
  EXPECT_EQ(keynote.degree_text, "- [449] und 2 Okt.");
  EXPECT_EQ(keynote.interval_text, "- [452] und 2 Okt.");
}

TEST_F(Analysis, OnlyAToneOutsideTheKeyIsForeign) {
  const std::array<Tone, 4> row{{{62, 17}, {65, 14}, {62, 17}, {61, 22}}};
  const RowAnalysis result = analyse(row);
  EXPECT_EQ(result.intervals[0].degree, 0);
  EXPECT_EQ(result.intervals[0].degree_text, "Stufe nicht leitereigen");
  EXPECT_EQ(result.intervals[0].code, 7);
  EXPECT_EQ(result.intervals[0].interval_text, "+ [361]");
  EXPECT_EQ(result.intervals[2].degree, -7);  // falling, and yet in the key
  EXPECT_EQ(result.intervals[2].degree_text, "- [282]");
}

TEST_F(Analysis, RepeatedToneIsAPrimeAndNoOctave) {
  const std::array<Tone, 2> row{{{69, 18}, {69, 18}}};
  const AnalysedInterval same = analyse(row).intervals.at(0);
  EXPECT_EQ(same.degree_text, "- [452]");
  EXPECT_EQ(same.interval_text, "- [449]");
}

TEST_F(Analysis, RefusesRowsThatCannotBeNamed) {
  const std::array<Tone, 2> nameless_interval{{{60, 1}, {71, 20}}};
  EXPECT_THROW(analyse(nameless_interval), RuntimeError);
  const std::array<Tone, 1> nameless_tone{{{60, 40}}};
  EXPECT_THROW(analyse(nameless_tone), RuntimeError);
  EXPECT_TRUE(analyse({}).tones.empty());
}

}  // namespace
}  // namespace tonarix
