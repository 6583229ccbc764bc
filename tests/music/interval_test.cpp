#include "music/interval.h"

#include <gtest/gtest.h>

#include <array>

#include "base/runtime_error.h"
#include "music/tones.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

TEST(DirectCode, LeadsThereAndBackBetweenAllTones) {
  for (int q1 = 0; q1 < kNamedTones; ++q1) {
    for (int q2 = 0; q2 < kNamedTones; ++q2) {
      for (const int direction : {-1, 1}) {
        SCOPED_TRACE(testing::Message() << q1 << " to " << q2 << " direction " << direction);
        const int code = direct_code(direction, q2, q1);
        EXPECT_EQ(Sgn(code), direction);
        EXPECT_EQ(next_qz(q1, code), q2);
        EXPECT_EQ(next_qz(q2, -code), q1);
        EXPECT_EQ(direct_code(-direction, q2, q1), KomplementaerIv(code));
      }
    }
  }
}

TEST(DirectCode, EveryCodeSpansTheSemitonesOfItsName) {
  constexpr std::array<int, kNamedIntervals> semitones{0, 0, 7, 5, 2,  10, 9, 3, 4, 8,  11,
                                                       1, 6, 6, 1, 11, 8,  4, 3, 9, 10, 2};
  for (int code = 1; code < kNamedIntervals; ++code) {
    const int from = 17;
    EXPECT_EQ((pitch_class(next_qz(from, code)) - pitch_class(from) + 12) % 12,
              semitones[static_cast<std::size_t>(code)])
        << "code " << code;
  }
}

TEST(AskedCodes, LeaveOutAugmentedPrimeAndDiminishedOctave) {
  EXPECT_EQ(asked_code(1), 1);
  EXPECT_EQ(asked_code(13), 13);
  EXPECT_EQ(asked_code(14), 16);
  EXPECT_EQ(asked_code(19), 21);
}

TEST(IntervalNames, TextCountsOctavesBeyondTheFirst) {
  const KeyTexts texts;
  const IntervalNames names(texts);
  const auto text = [&](int difference, int code) { return names.text(difference, code).joined(); };
  EXPECT_EQ(text(0, 1), "- [449]");
  EXPECT_EQ(text(1, 11), "+ [358]");
  EXPECT_EQ(text(-12, -1), "- [449]");
  EXPECT_EQ(text(12, 1), "+ [449]");
  EXPECT_EQ(text(13, 11), "+ [358] und 1 Okt.");
  EXPECT_EQ(text(-24, -1), "- [449] und 1 Okt.");
  EXPECT_EQ(text(24, 0), "+ [450] und 1 Okt.");
  EXPECT_EQ(text(25, 11), "+ [358] und 2 Okt.");
}

TEST(IntervalNames, HaveATextEachAndEndWithTheDiminishedThird) {
  const KeyTexts texts;
  const IntervalNames names(texts);
  EXPECT_EQ(names.long_name(-20), "[577]");
  EXPECT_EQ(names.short_name(19), "[592]");
  EXPECT_THROW(names.long_name(22), RuntimeError);
  EXPECT_THROW(names.short_name(-22), RuntimeError);
  EXPECT_EQ(texts.asked.size(), 44u);
}

}  // namespace
}  // namespace tonarix
