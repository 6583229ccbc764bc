#include "music/key.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "base/runtime_error.h"
#include "music/degrees.h"
#include "support/key_texts.h"
#include "support/scripted_chance.h"

namespace tonarix {
namespace {

void expect_sound_key(const Key& key, std::int16_t tongeschl) {
  SCOPED_TRACE(testing::Message() << "qz_transpos " << key.qz_transpos);
  EXPECT_GE(key.chr_transpos, 1);
  EXPECT_GE(key.tonart_offset, -5);
  EXPECT_LE(key.tonart_offset, 6);
  EXPECT_EQ((key.tonart_offset + 12) % 12, key.chr_transpos);
  EXPECT_EQ(key.skala[0].qz, 15 + key.qz_transpos);
  for (int row = 0; row <= key.anz_stufen; ++row) {
    const Tone tone = key.skala[static_cast<std::size_t>(row)];
    EXPECT_TRUE(has_name(tone.qz));
    EXPECT_EQ(tone.chr % 12, pitch_class(tone.qz));
    EXPECT_EQ(skala_row(key, tone.qz), row % key.anz_stufen);
    const IntervalCode code = degrees(tongeschl)[static_cast<std::size_t>(row)].code;
    EXPECT_EQ(direct_code_of_degree(key, degree_in(row)), code);
    EXPECT_EQ(direct_code_of_degree(key, static_cast<DegreeNumber>(-row - 1)), code);
  }
  EXPECT_THROW(direct_code_of_degree(key, DegreeNumber{0}), RuntimeError);
  EXPECT_THROW(direct_code_of_degree(key, degree_in(key.anz_stufen + 1)), RuntimeError);
  EXPECT_FALSE(skala_row(key, key.skala[0].qz + 6)) << "the tritone is no degree";
}

TEST(Key, EveryKeyThatCanBeDrawnHoldsItsScale) {
  for (const std::int16_t tongeschl : {0, 1, 2}) {
    const bool minor = tongeschl == 1;
    const int numbers = minor ? 7 : 6;
    std::set<int> reached;
    for (const int sign : {-1, 1}) {
      for (int number = 0; number < numbers; ++number) {
        Key key;
        build_scale(key, tongeschl, Naming::from_keynote);
        ScriptedChance chance;
        chance.add_sign(sign);
        chance.add_draw(number, numbers);
        // Three fifths down from A minor is C minor: refused, and the next number counts.
        if (minor && sign < 0 && number == 3) chance.add_draw(5, numbers);
        choose_key(key, tongeschl, chance);
        EXPECT_EQ(chance.left(), 0u);
        expect_sound_key(key, tongeschl);
        reached.insert(key.qz_transpos);
      }
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

TEST(Degrees, HaveACaptionThatNamesTheOctaveBesideThePrime) {
  const KeyTexts texts;
  const IntervalNames names(texts);
  EXPECT_EQ(degree_caption(0, degree_in(0), names, texts), "(I) [449] [701] [450]");
  EXPECT_EQ(degree_caption(1, degree_in(5), names, texts), "(VIa) [360]");
  EXPECT_THROW(degree_caption(0, degree_in(7), names, texts), RuntimeError);
}

}  // namespace
}  // namespace tonarix
