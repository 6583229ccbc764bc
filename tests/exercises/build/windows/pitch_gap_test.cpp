#include <gtest/gtest.h>

#include <QRegion>

#include "exercises/build/windows/pitch_gap.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

TEST(PitchGapTest, NothingTouchesOrLeavesTheWidgetWhereverThePitchesAre) {
  const GapTexts usual{{118, 15}, {133, 15}, {219, 18}};
  const GapTexts large{{260, 30}, {170, 30}, {700, 36}};
  const auto fine = [](int width, int low, int formed, int target, const GapTexts& texts) {
    const GapPlaces at = gap_places(width, low, 127, formed, target, texts);
    const int half = kGapTriangle.width() / 2;
    const QRect above({at.formed_x - half, at.line - kGapTriangle.height()}, kGapTriangle);
    const QRect below({at.target_x - half, at.line + 1}, kGapTriangle);
    const QRect all(0, 0, width, at.sentence.bottom() + 1);
    QRegion taken;
    for (const QRect& box : {at.formed, at.target, at.sentence, above, below}) {
      if (!all.contains(box) || taken.intersects(box)) return false;
      taken += box;
    }
    return formed == target ? at.formed_x == at.target_x
                            : (formed > target) == (at.formed_x > at.target_x) ||
                                  std::max(formed, target) <= low;
  };
  for (const GapTexts& texts : {usual, large}) {
    for (const int width : {narrowest_gap(texts), narrowest_gap(texts) + 1, 1400}) {
      for (int pair = 0; pair < 127 * 127; ++pair) {
        for (const int low : {1, 60}) {
          ASSERT_TRUE(fine(width, low, pair / 127 + 1, pair % 127 + 1, texts))
              << width << " " << low << " " << pair / 127 + 1 << " " << pair % 127 + 1;
        }
      }
    }
  }
}

TEST(PitchGapTest, ItIsCalledByItsSentenceAndKeepsItsPlaceWhenItIsEmpty) {
  PitchGap gap;
  QWidget ground;
  for (QWidget* each : {&ground, static_cast<QWidget*>(&gap)}) each->resize(500, 70);
  const QImage empty = ground.grab().toImage();
  const int height = gap.sizeHint().height();
  gap.show_pitches(1, 127, 71, 67, "formed 71", "asked 67", "4 steps too high");
  EXPECT_EQ(spoken_name(gap), "4 steps too high");
  EXPECT_NE(gap.grab().toImage(), empty);
  EXPECT_EQ(gap.sizeHint().height(), height);
  gap.clear();
  EXPECT_EQ(spoken_name(gap), "");
  EXPECT_EQ(gap.grab().toImage(), empty);
}

}  // namespace
}  // namespace tonarix
