#include "exercises/play/key_names.h"

#include <gtest/gtest.h>

#include <set>

#include "base/arithmetic.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

// By double flat, flat, plain, sharp, double sharp on a white and on a black key.
constexpr int kBandOf[2][5] = {{3, 3, 1, 2, 2}, {3, 2, 0, 1, 3}};

TEST(Spellings, EveryToneHasOneFieldAndEveryKeyItsNames) {
  std::set<std::pair<int, int>> fields;
  for (int qz = 0; qz < kNamedTones; ++qz) {
    EXPECT_EQ(band_of(qz), kBandOf[is_black(pitch_class(qz))][qz / 7]) << qz;
    fields.insert({pitch_class(qz), band_of(qz)});
  }
  EXPECT_EQ(fields.size(), 35U);
  for (int key = -12; key < 80; ++key) {
    const int pitch = (key + 12) % 12;
    EXPECT_EQ(is_black(key), std::string("010100101010")[static_cast<std::size_t>(pitch)] == '1');
    for (int band = 0; band <= 4; ++band) {
      const auto name = spelling({key, band});
      EXPECT_EQ(name.has_value(), fields.contains({pitch, band}));
      EXPECT_TRUE(!name || pitch_class(*name) == pitch);
    }
  }
}

TEST(KeyNames, PrintTheOctaveOnTheLowestFieldOfAC) {
  KeyTexts texts;
  texts.given = {{21, "-2"}, {14, "-1"}, {165, "C"}, {1375, "c"}, {244, "G"}, {245, "g"}};
  const ToneNames tones(texts);
  const KeyNames names(texts, tones);
  const char* printed[] = {"c[13]", "c[20]", "C", "c", "c[15]", "c[16]", "c[17]", "c[18]"};
  for (int note = 12; note < 108; ++note) {
    const auto octave = static_cast<std::size_t>(note / 12);
    for (int band = 1; band <= kBands; ++band) {
      const Field field{note, band};
      const auto qz = spelling(field);
      const bool c = note % 12 == 0 && band == 1;
      const std::string plain = qz ? texts.Wort({1360 + *qz}) : "";
      EXPECT_EQ(names.caption(field, note), c ? printed[octave - 1] : plain);
      if (!qz) continue;
      const Tone tone{to_int16(note), to_int16(*qz)};
      if (written_octave(tone) % 9 == 0) continue;
      EXPECT_EQ(names.spoken(tone),
                tones.lower(*qz) + ", " + KeyTexts::shown({1338 + written_octave(tone)}));
    }
  }
  const char* written[] = {"G[20]", "G", "g", "g[15]", "g[16]", "g[17]"};
  for (int octave = 2; octave <= 7; ++octave) {
    EXPECT_EQ(names.written({to_int16(octave * 12 + 7), 16}), written[octave - 2]);
  }
  EXPECT_EQ(names.written({48, 27}), "[305]") << "it is written an octave below where it sounds";
  for (int band = 1; band <= kBands; ++band) {
    EXPECT_EQ(names.band(band), KeyTexts::shown({1335 + band}));
  }
}

}  // namespace
}  // namespace tonarix
