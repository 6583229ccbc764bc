#include "music/tones.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "base/runtime_error.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

TEST(Tones, PitchClassFollowsLetterAndSigns) {
  const std::string letters = "FCGDAEB";
  constexpr std::array<int, 7> naturals{5, 0, 7, 2, 9, 4, 11};
  for (int qz = 0; qz < kNamedTones; ++qz) {
    const int signs = qz / 7 - 2;
    const int natural = naturals[static_cast<std::size_t>(qz % 7)];
    EXPECT_EQ(pitch_class(qz), (natural + signs + 12) % 12)
        << letters[static_cast<std::size_t>(qz % 7)] << " with " << signs << " signs";
  }
}

TEST(Tones, TheWrittenOctaveIsThatOfTheLetter) {
  // Taking its signs away from a tone leaves the natural tone of the same written octave.
  for (int chr = 24; chr < 96; ++chr) {
    for (int qz = 0; qz < kNamedTones; ++qz) {
      if (pitch_class(qz) != chr % 12) continue;
      const int natural = chr - (qz / 7 - 2);
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
  EXPECT_EQ(names.name({36, 15}), "[165]");      // great octave
  EXPECT_EQ(names.name({47, 20}), "[303]");      // B of the great octave
  EXPECT_EQ(names.name({48, 15}), "[164]");      // small octave
  EXPECT_EQ(names.name({60, 15}), "[15][164]");  // one line
  EXPECT_EQ(names.name({59, 8}), "[15][181]");   // Cb, written above where it sounds
  EXPECT_EQ(names.name({58, 1}), "[15][182]");   // Cbb
  EXPECT_EQ(names.name({60, 27}), "[306]");      // B#, written below where it sounds
  EXPECT_EQ(names.name({61, 34}), "[307]");      // B##
  EXPECT_EQ(names.name({96, 15}), "[18][164]");
  EXPECT_EQ(names.name({107, 20}), "[18][304]");
}

TEST(ToneNames, RefuseWhatHasNoName) {
  const KeyTexts texts;
  const ToneNames names(texts);
  const std::array<Tone, 2> row{{{60, 15}, {62, 17}}};
  EXPECT_EQ(names.ErmStatStrTon(1, row), "[15][183]");
  const auto number_of = [](auto&& work) {
    try {
      work();
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  };
  EXPECT_EQ(number_of([&] { names.ErmStatStrTon(2, row); }), 9);
  EXPECT_EQ(number_of([&] { names.ErmStatStrTon(-1, row); }), 9);
  EXPECT_EQ(number_of([&] { names.name({108, 15}); }), 9);  // octave 9
  EXPECT_EQ(number_of([&] { names.name({107, 8}); }), 9);   // Cb, written in octave 9
  EXPECT_EQ(number_of([&] { names.name({0, 27}); }), 9);    // B# below the lowest octave
  EXPECT_EQ(number_of([&] { names.name({60, 35}); }), 9);
  EXPECT_EQ(number_of([&] { names.name({60, -1}); }), 9);
}

TEST(ToneNames, LoadEachTextOnce) {
  const KeyTexts texts;
  const ToneNames names(texts);
  names.name({60, 15});
  EXPECT_EQ(texts.asked.size(), 78u);
  for (const auto& [key, times] : texts.asked) EXPECT_EQ(times, 1) << "key " << key;
}

}  // namespace
}  // namespace tonarix
