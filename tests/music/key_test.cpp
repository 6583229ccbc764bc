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

/// The key that a sign and the numbers drawn after it lead to; every number must be used.
Key drawn_key(std::int16_t tongeschl, int sign, std::initializer_list<int> numbers) {
  Key key;
  build_scale(key, tongeschl, 0);
  ScriptedChance chance;
  chance.add_sign(sign);
  for (const int number : numbers) chance.add_draw(number, tongeschl == 1 ? 7 : 6);
  choose_key(key, tongeschl, chance);
  EXPECT_EQ(chance.left(), 0u);
  return key;
}

void expect_sound_key(const Key& key) {
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
    EXPECT_EQ(skala_row(key, tone.qz), row == key.anz_stufen ? 0 : row);
  }
  int in_key = 0;
  for (int qz = 0; qz < kNamedTones; ++qz) in_key += skala_row(key, qz).has_value() ? 1 : 0;
  EXPECT_EQ(in_key, key.anz_stufen);
}

TEST(Key, EveryKeyThatCanBeDrawnHoldsItsScale) {
  for (const std::int16_t tongeschl : {0, 2}) {
    std::set<int> reached;
    for (const int sign : {-1, 1}) {
      for (int number = 0; number < 6; ++number) {
        const Key key = drawn_key(tongeschl, sign, {number});
        expect_sound_key(key);
        reached.insert(key.qz_transpos);
      }
    }
    EXPECT_EQ(reached, (std::set<int>{-6, -5, -4, -3, -2, -1, 1, 2, 3, 4, 5, 6}));
  }
  std::set<int> minor;
  for (const int sign : {-1, 1}) {
    for (int number = 0; number < 7; ++number) {
      // Three fifths down from A minor is C minor: refused, and the next number counts.
      const bool refused = sign < 0 && number == 3;
      const Key key = refused ? drawn_key(1, sign, {3, 3, 5}) : drawn_key(1, sign, {number});
      expect_sound_key(key);
      minor.insert(key.qz_transpos);
      if (refused) {
        EXPECT_EQ(key.qz_transpos, -2);
      }
    }
  }
  EXPECT_EQ(minor, (std::set<int>{-3, -2, -1, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(Key, BuiltOnCWithTheCodesThatAreAsked) {
  Key key;
  for (const std::int16_t tongeschl : {2, 1, 0}) {
    move_to_key(key, 5);
    build_scale(key, tongeschl, 0);
    EXPECT_EQ(key.iv_anzahl, key.anz_stufen);
    EXPECT_EQ(key.skala, key.basis);
    EXPECT_EQ(key.qz_transpos, 0);
    build_scale(key, tongeschl, 1);
    // The greatest code between two tones of the scale is the last that is asked.
    int greatest = 0;
    for (int one = 0; one <= key.anz_stufen; ++one) {
      for (int other = 0; other < one; ++other) {
        const int code = direct_code(-1, key.skala[static_cast<std::size_t>(one)].qz,
                                     key.skala[static_cast<std::size_t>(other)].qz);
        greatest = std::max({greatest, -code, int{KomplementaerIv(code)}});
      }
    }
    EXPECT_EQ(greatest, asked_code(key.iv_anzahl));
  }
  EXPECT_THROW(build_scale(key, 3, 0), RuntimeError);
}

TEST(Degrees, CodeOverTheKeynoteIsTheSameInEveryKey) {
  for (const std::int16_t tongeschl : {0, 1, 2}) {
    Key key;
    build_scale(key, tongeschl, 0);
    for (int qz_transpos = -6; qz_transpos <= 9; ++qz_transpos) {
      move_to_key(key, qz_transpos);
      int number = 0;
      for (const Degree& degree : degrees(tongeschl)) {
        ++number;
        EXPECT_EQ(direct_code_of_degree(key, number), degree.code);
        EXPECT_EQ(direct_code_of_degree(key, -number), degree.code);
      }
    }
    EXPECT_THROW(direct_code_of_degree(key, 0), RuntimeError);
    EXPECT_THROW(direct_code_of_degree(key, key.anz_stufen + 2), RuntimeError);
  }
}

TEST(Degrees, Captions) {
  const KeyTexts texts;
  const IntervalNames names(texts);
  EXPECT_EQ(degree_caption(0, 0, names, texts), "(I) [449] [701] [450]");
  EXPECT_EQ(degree_caption(1, 5, names, texts), "(VIa) [360]");
  EXPECT_EQ(degree_caption(2, 10, names, texts), "(VIIb) [282]");
  EXPECT_THROW(degree_caption(0, 7, names, texts), RuntimeError);
}

}  // namespace
}  // namespace tonarix
