#include "music/tones.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

TEST(Tones, TakingTheSignsAwayLeavesTheNaturalToneOfTheSameWrittenOctave) {
  const int naturals[] = {5, 0, 7, 2, 9, 4, 11};  // F, C, G, D, A, E, B
  for (std::int16_t chr = 24; chr < 96; ++chr) {
    for (std::int16_t qz = 0; qz < kNamedTones; ++qz) {
      if (pitch_class(qz) != chr % 12) continue;
      const int natural = chr - (qz / 7 - 2);
      EXPECT_EQ(natural % 12, naturals[qz % 7]) << "qz " << qz;
      EXPECT_EQ(written_octave({chr, qz}), natural / 12) << "chr " << chr << " qz " << qz;
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
