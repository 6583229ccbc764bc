#include "music/key.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

#include "base/runtime_error.h"
#include "music/analysis.h"
#include "music/degrees.h"
#include "support/key_texts.h"
#include "support/scripted_chance.h"

namespace tonarix {
namespace {

TEST(Key, EveryKeyThatCanBeDrawnHoldsItsScale) {
  for (const std::int16_t tongeschl : {0, 1, 2}) {
    const bool minor = tongeschl == 1;
    const int numbers = minor ? 7 : 6;
    std::set<int> reached;
    for (int choice = 0; choice < 2 * numbers; ++choice) {
      const int sign = choice % 2 == 0 ? 1 : -1, number = choice / 2;
      Key key;
      build_scale(key, tongeschl, Naming::from_keynote);
      ScriptedChance chance;
      chance.add_sign(sign);
      chance.add_draw(number, numbers);
      // Three fifths down from A minor is C minor: refused, and the next number counts.
      if (minor && sign < 0 && number == 3) chance.add_draw(5, numbers);
      choose_key(key, tongeschl, chance);
      EXPECT_EQ(chance.left(), 0U);
      EXPECT_TRUE(key.tonart_offset >= -5 && key.tonart_offset <= 6) << key.qz_transpos;
      EXPECT_EQ((key.tonart_offset + 12) % 12, key.chr_transpos);
      EXPECT_EQ(key.skala[0].qz, 15 + key.qz_transpos);
      for (int row = 0; row <= key.anz_stufen; ++row) {
        const Tone tone = key.skala[static_cast<std::size_t>(row)];
        EXPECT_EQ(tone.chr % 12, pitch_class(tone.qz));
        EXPECT_EQ(skala_row(key, tone.qz), row % key.anz_stufen);
        const IntervalCode code = degrees(tongeschl)[static_cast<std::size_t>(row)].code;
        EXPECT_EQ(direct_code_of_degree(key, degree_in(row)), code);
        EXPECT_EQ(direct_code_of_degree(key, static_cast<DegreeNumber>(-row - 1)), code);
      }
      EXPECT_THROW(direct_code_of_degree(key, DegreeNumber{0}), RuntimeError);
      EXPECT_THROW(direct_code_of_degree(key, degree_in(key.anz_stufen + 1)), RuntimeError);
      EXPECT_FALSE(skala_row(key, key.skala[0].qz + 6)) << "the tritone is no degree";
      reached.insert(key.qz_transpos);
    }
    EXPECT_EQ(reached, minor ? std::set({-3, -2, -1, 1, 2, 3, 4, 5, 6, 7, 8, 9})
                             : std::set({-6, -5, -4, -3, -2, -1, 1, 2, 3, 4, 5, 6}));
  }
}

TEST(Key, BuiltOnCWithTheCodesThatAreAsked) {
  Key key;
  for (const std::int16_t tongeschl : {2, 1, 0}) {
    move_to_key(key, 5);
    build_scale(key, tongeschl, Naming::from_keynote);
    EXPECT_EQ(key.iv_anzahl, key.anz_stufen);
    EXPECT_EQ(key.skala, key.basis);
    EXPECT_EQ(key.qz_transpos, 0);
    build_scale(key, tongeschl, Naming::from_tone_before);
    // The greatest code between two tones of the scale is the last that is asked.
    int greatest = 0;
    for (const Degree& one : degrees(tongeschl)) {
      for (const Degree& other : degrees(tongeschl)) {
        greatest = std::max<int>(greatest, direct_code(1, one.tone.qz, other.tone.qz));
      }
    }
    EXPECT_EQ(greatest, asked_code(key.iv_anzahl));
  }
  EXPECT_EQ(asked_code(14), 16) << "no augmented prime, no diminished octave";
  EXPECT_THROW(build_scale(key, 3, Naming::from_keynote), RuntimeError);
}

TEST(Degrees, TakeTheTonesOfTheirModeAndCountTheSteps) {
  const char* const steps[] = {"I", "II", "III", "IV", "V", "VI", "VII"};
  for (const std::int16_t tongeschl : {0, 1, 2}) {
    // From D flat to B on the line of fifths; Dur has no flats, moll neither D flat nor E.
    const auto has = [&](int qz) {
      return qz >= (tongeschl == 0 ? 14 : 10) && qz <= 20 &&
             !(tongeschl == 1 && (qz == 10 || qz == 19));
    };
    for (const Degree& degree : degrees(tongeschl).first(7U + 2U * tongeschl)) {
      const int qz = degree.tone.qz;
      EXPECT_TRUE(has(qz)) << qz;
      std::string label = steps[4 * (qz + 6) % 7];
      if (has(qz + 7)) label += "a";  // there is a natural form of the step too
      if (has(qz - 7)) label += "b";
      EXPECT_EQ(degree.label, "(" + label + ")");
    }
  }
}

TEST(DirectCode, LeadsThereAndBackBetweenAllTones) {
  for (int q1 = 0; q1 < kNamedTones; ++q1) {
    for (int q2 = 0; q2 < kNamedTones; ++q2) {
      for (const int direction : {-1, 1}) {
        const int code = direct_code(direction, q2, q1);
        EXPECT_EQ(Sgn(code), direction) << q1 << " to " << q2;
        EXPECT_EQ(next_qz(q1, code), q2);
        EXPECT_EQ(next_qz(q2, -code), q1);
        EXPECT_EQ(direct_code(-direction, q2, q1), KomplementaerIv(code));
      }
    }
  }
}

TEST(Analysis, NamesTheStepOverTheKeynoteAndFromTheToneBefore) {
  const KeyTexts texts;
  const ToneNames tone_names(texts);
  const IntervalNames names(texts);
  Key key;
  build_scale(key, 0, Naming::from_tone_before);
  move_to_key(key, 2);  // D major
  const auto analyse = [&](std::span<const Tone> row) {
    return analyse_row(row, key, tone_names, names);
  };
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
      {{62, 17}, {86, 17}, 1, "+ [449] und 1 Okt.", 1, "+ [449] und 1 Okt."},
      {{62, 17}, {74, 17}, 1, "+ [449]", 1, "+ [449]"},
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
  EXPECT_THROW(names.short_name(IntervalCode{-22}), RuntimeError);
}

TEST(Tones, TakingTheSignsAwayLeavesTheNaturalToneOfTheSameWrittenOctave) {
  const int naturals[] = {5, 0, 7, 2, 9, 4, 11};  // F, C, G, D, A, E, B
  for (std::int16_t chr = 24; chr < 96; ++chr) {
    for (std::int16_t qz = 0; qz < kNamedTones; ++qz) {
      if (pitch_class(qz) != chr % 12) continue;
      const int natural = chr - (qz / 7 - 2);
      EXPECT_EQ(natural % 12, naturals[qz % 7]);
      EXPECT_EQ(written_octave({chr, qz}), natural / 12) << chr << ", " << qz;
    }
  }
}

TEST(ToneNames, EndWhereTheMarksAndTheLineOfFifthsEnd) {
  const KeyTexts texts;
  const ToneNames names(texts);
  EXPECT_EQ(names.name({0, 15}), "[165]") << "no mark for the lowest octave";
  EXPECT_EQ(names.name({107, 20}), "[18][304]");
  // The octave 9, Cb written in it, B# below the lowest octave, and places off the line.
  for (const Tone tone : {Tone{108, 15}, {107, 8}, {0, 27}, {60, 35}, {60, -1}}) {
    EXPECT_THROW(names.name(tone), RuntimeError) << tone.chr;
  }
  EXPECT_THROW(names.ErmStatStrTon(1, std::array{Tone{60, 15}}), RuntimeError);
}

}  // namespace
}  // namespace tonarix
