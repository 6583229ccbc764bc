#include "music/interval.h"

#include <gtest/gtest.h>

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

TEST(IntervalNames, CountOctavesBeyondTheFirst) {
  const KeyTexts texts;
  const IntervalNames names(texts);
  struct Row {
    int difference, code;
    const char* text;
  };
  const Row rows[] = {
      {0, 1, "- [449]"},
      {1, 11, "+ [358]"},
      {12, 1, "+ [449]"},
      {13, 11, "+ [358] und 1 Okt."},
      {-24, -1, "- [449] und 1 Okt."},
      {25, 11, "+ [358] und 2 Okt."},
  };
  for (const Row& row : rows)
    EXPECT_EQ(names.text(row.difference, static_cast<IntervalCode>(row.code)).joined(), row.text);
  EXPECT_THROW(names.short_name(IntervalCode{-22}), RuntimeError);
}

}  // namespace
}  // namespace tonarix
