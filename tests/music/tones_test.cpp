#include "music/tones.h"

#include <gtest/gtest.h>

#include <array>

#include "base/runtime_error.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

TEST(Tones, TakingTheSignsAwayLeavesTheNaturalToneOfTheSameWrittenOctave) {
  constexpr std::array<int, 7> naturals{5, 0, 7, 2, 9, 4, 11};  // F, C, G, D, A, E, B
  for (int chr = 24; chr < 96; ++chr) {
    for (int qz = 0; qz < kNamedTones; ++qz) {
      if (pitch_class(qz) != chr % 12) continue;
      const int natural = chr - (qz / 7 - 2);
      EXPECT_EQ(natural % 12, naturals[static_cast<std::size_t>(qz % 7)]) << "qz " << qz;
      EXPECT_EQ(written_octave({static_cast<std::int16_t>(chr), static_cast<std::int16_t>(qz)}),
                natural / 12)
          << "chr " << chr << " qz " << qz;
    }
  }
}

TEST(ToneNames, MarkTheOctaveAndChooseTheCase) {
  const KeyTexts texts;
  const ToneNames names(texts);
  EXPECT_EQ(names.name({0, 15}), "[165]");       // no mark for the lowest octave
  EXPECT_EQ(names.name({12, 15}), "[13][165]");  // C in the octave 1
  EXPECT_EQ(names.name({24, 15}), "[20][165]");  // contra octave
  EXPECT_EQ(names.name({47, 20}), "[303]");      // B of the great octave
  EXPECT_EQ(names.name({48, 15}), "[164]");      // small octave
  EXPECT_EQ(names.name({60, 15}), "[15][164]");  // one line
  EXPECT_EQ(names.name({59, 8}), "[15][181]");   // Cb, written above where it sounds
  EXPECT_EQ(names.name({58, 1}), "[15][182]");   // Cbb
  EXPECT_EQ(names.name({60, 27}), "[306]");      // B#, written below where it sounds
  EXPECT_EQ(names.name({61, 34}), "[307]");      // B##
  EXPECT_EQ(names.name({107, 20}), "[18][304]");
}

TEST(ToneNames, RefuseWhatHasNoName) {
  const KeyTexts texts;
  const ToneNames names(texts);
  const std::array<Tone, 2> row{{{60, 15}, {62, 17}}};
  EXPECT_EQ(names.ErmStatStrTon(1, row), "[15][183]");
  EXPECT_THROW(names.ErmStatStrTon(2, row), RuntimeError);
  EXPECT_THROW(names.ErmStatStrTon(-1, row), RuntimeError);
  EXPECT_THROW(names.name({108, 15}), RuntimeError);  // octave 9
  EXPECT_THROW(names.name({107, 8}), RuntimeError);   // Cb, written in octave 9
  EXPECT_THROW(names.name({0, 27}), RuntimeError);    // B# below the lowest octave
  EXPECT_THROW(names.name({60, 35}), RuntimeError);
  EXPECT_THROW(names.name({60, -1}), RuntimeError);
}

}  // namespace
}  // namespace tonarix
