#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QWheelEvent>
#include <functional>

#include "exercises/build/windows/pitch_slider.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

struct PitchSliderTest : testing::Test {
  PitchSliderTest() {
    slider.resize(500, slider.sizeHint().height());
    stand(10, 100, 50);
    slider.show();
  }
  void stand(int low, int high, int value) {
    slider.setRange(low, high);
    slider.setValue(value);
  }
  void key(int which) {
    QKeyEvent press(QEvent::KeyPress, which, Qt::NoModifier);
    QApplication::sendEvent(&slider, &press);
  }
  void turn(int x, int y) {
    QWheelEvent wheel({}, {}, {}, {x, y}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&slider, &wheel);
  }
  void hand(QEvent::Type what, double x) {
    QMouseEvent event(what, QPointF(x, 24), QPointF(x, 24), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&slider, &event);
  }
  PitchSlider slider;
};

TEST_F(PitchSliderTest, KeysWheelAndHandMoveItByTheirStepsAndOnlyWhileItIsOpen) {
  const struct {
    const char* input;
    std::function<void()> give;
    int value;
  } rows[] = {
      {"right", [this] { key(Qt::Key_Right); }, 51},
      {"up", [this] { key(Qt::Key_Up); }, 51},
      {"left", [this] { key(Qt::Key_Left); }, 49},
      {"page up", [this] { key(Qt::Key_PageUp); }, 55},
      {"page down", [this] { key(Qt::Key_PageDown); }, 45},
      {"home", [this] { key(Qt::Key_Home); }, 10},
      {"end", [this] { key(Qt::Key_End); }, 100},
      {"a notch to the hand", [this] { turn(0, -120); }, 49},
      {"a notch to the right", [this] { turn(-120, 0); }, 51},
      {"three notches at once", [this] { turn(0, 360); }, 53},
      {"half a notch", [this] { turn(0, 60); }, 50},
      {"a notch in parts", [this] { turn(0, 50), turn(0, 50), turn(0, 50); }, 51},
      {"there and back", [this] { turn(0, 110), turn(0, -110), turn(0, -20); }, 49},
      {"a press at the low end", [this] { hand(QEvent::MouseButtonPress, 0); }, 10},
      {"a press at the high end", [this] { hand(QEvent::MouseButtonPress, 499); }, 100},
      {"a press on the handle", [this] { hand(QEvent::MouseButtonPress, slider.handle_x() + 15); },
       50},
  };
  for (const bool open : {true, false}) {
    for (const auto& row : rows) {
      slider.setEnabled(false);
      slider.setEnabled(open);
      slider.setValue(50);
      row.give();
      EXPECT_EQ(slider.value(), open ? row.value : 50) << row.input << (open ? "" : ", closed");
    }
  }
}

TEST_F(PitchSliderTest, ADraggedHandleStaysUnderTheHandUntilItIsLetGoOrClosed) {
  for (const int low : {1, 60}) {
    stand(low, 127, 64 + low / 2);
    hand(QEvent::MouseButtonPress, slider.handle_x() + 9);
    for (int x = -40; x < 540; ++x) {
      hand(QEvent::MouseMove, x + 9);
      const int end = std::clamp(x, PitchSlider::kEnd, 500 - PitchSlider::kEnd);
      ASSERT_NEAR(slider.handle_x(), end, 452.0 / (127 - low) / 2 + 1e-9) << low << " " << x;
    }
    hand(QEvent::MouseButtonRelease, 540);
    hand(QEvent::MouseMove, 100);
    EXPECT_EQ(slider.value(), 127);
    hand(QEvent::MouseButtonPress, 100);
    const int left = slider.value();
    slider.setEnabled(false);
    slider.setEnabled(true);
    hand(QEvent::MouseMove, 300);
    EXPECT_EQ(slider.value(), left) << "a hand that still lies there is no new answer";
  }
}

TEST_F(PitchSliderTest, NeitherEyeNorScreenReaderLearnsTheValue) {
  slider.setAccessibleName("pitch");
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&slider);
  EXPECT_EQ(told->role(), QAccessible::Slider);
  EXPECT_EQ(spoken_name(slider), "pitch");
  EXPECT_TRUE(told->state().focusable);
  EXPECT_EQ(told->valueInterface(), nullptr);
  EXPECT_EQ(told->text(QAccessible::Value), "");
  stand(1, 127, 64);
  const QImage middle = slider.grab().toImage();
  stand(62, 126, 94);
  EXPECT_EQ(slider.grab().toImage(), middle) << "another range looks the same";
}

}  // namespace
}  // namespace tonarix
