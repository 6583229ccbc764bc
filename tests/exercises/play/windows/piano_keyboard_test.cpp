#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <set>

#include "exercises/play/windows/key_name.h"
#include "support/piano_bed.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

struct PianoKeyboardTest : testing::Test {
  PianoKeyboardTest() {
    piano.resize(960, 300);
    bed.show({12, 48});
    piano.on_pressed = [this](int key, std::optional<int> band) {
      log += std::to_string(key) + (band ? "." + std::to_string(*band) : "") + " ";
    };
    piano.on_released = [this] { log += "up "; };
    piano.show();
    QApplication::setActiveWindow(&piano);
    piano.setFocus();
  }
  QPointF middle(const Field& field) const {
    const Box box = piano.geometry().band(field);
    return piano.logical({(box.left + box.right) / 2.0, (box.top + box.bottom) / 2.0});
  }
  /// To whichever widget lies there, or while a button is held to the one that took it.
  void mouse(QEvent::Type what, const QPointF& at, Qt::MouseButton button = Qt::LeftButton) {
    if (!taker || what == QEvent::MouseButtonPress) taker = piano.childAt(at.toPoint());
    const QPointF own = taker->mapFrom(&piano, at);
    QMouseEvent event(what, own, own, own, button, button, {});
    QApplication::sendEvent(taker, &event);
    if (what == QEvent::MouseButtonRelease) taker = nullptr;
  }
  void down(const Field& field) { mouse(QEvent::MouseButtonPress, middle(field)); }
  void to(const Field& field) { mouse(QEvent::MouseMove, middle(field)); }
  void up(const Field& field = {14, 1}) { mouse(QEvent::MouseButtonRelease, middle(field)); }
  /// What the keyboard doesn't take is left to its window.
  void key(QEvent::Type what, int key, bool repeated = false, Qt::KeyboardModifiers with = {}) {
    QKeyEvent event(what, key, with, {}, repeated);
    QApplication::sendEvent(&piano, &event);
    if (!event.isAccepted()) log += "window ";
  }
  void stroke(int which) { key(QEvent::KeyPress, which); }
  void repeat(int which) { key(QEvent::KeyPress, which, true); }
  void let_go(int which) { key(QEvent::KeyRelease, which); }
  void screen_reader_press() {
    auto* actions = QAccessible::queryAccessibleInterface(&piano)->actionInterface();
    const QString press = QAccessibleActionInterface::pressAction();
    EXPECT_EQ(actions->actionNames().contains(press), piano.open());
    actions->doAction(press);
  }
  void all_keys(const KeyState& state) {
    for (int number = 0; number < kPianoKeys; ++number) piano.set_state(number, state);
    log += "set ";
  }

  PianoBed bed{TONARIX_CATALOGUES, "Deutsch"};
  PianoKeyboard& piano = bed.piano;
  QWidget* taker = nullptr;
  std::string log;
};

TEST_F(PianoKeyboardTest, TheMousePressesTheFieldThatLiesUnderIt) {
  for (const KeyRange& keys : {piano_keys(2, 0), piano_keys(5, 6)}) {
    bed.show(keys);
    for (int number = keys.lowest; number <= keys.highest; ++number) {
      for (int band = 1; band <= kBands; ++band) {
        const Field field{number, band};
        log.clear();
        ASSERT_EQ(piano.childAt(middle(field).toPoint()), &piano.key(number));
        down(field);
        up(field);
        const std::string press = std::to_string(number) + "." + std::to_string(band) + " up ";
        ASSERT_EQ(log, spelling(field) ? press : "");
      }
    }
  }
}

TEST_F(PianoKeyboardTest, AKeyIsHeldUntilItIsLetGoAndTakesNothingWhileClosed) {
  constexpr Field kD{14, 1};
  constexpr KeyState kClosed;
  constexpr KeyState kLocked{true, true, false};
  const struct {
    const char* input;
    std::function<void()> give;
    const char* log;
  } rows[] = {
      {"pressed, moved within the key",
       [&] {
         down(kD), to({14, 3}), log += "there ", up();
       },
       "14.1 there up "},
      {"left",
       [&] {
         down(kD), to({16, 1}), log += "there ", to(kD), up();
       },
       "14.1 up there "},
      {"pressed twice",
       [&] { down(kD), up(), mouse(QEvent::MouseButtonDblClick, middle(kD)), up(); },
       "14.1 up 14.1 up "},
      {"another button",
       [&] { mouse(QEvent::MouseButtonPress, middle(kD), Qt::RightButton), up(); }, ""},
      {"above the bands",
       [&] {
         mouse(QEvent::MouseButtonPress, piano.logical({10, 20})), up({12, 1});
       },
       "12 up "},
      {"closed and locked by the press",
       [&] { down(kD), all_keys(kLocked), all_keys(kClosed), up(); }, "14.1 set set up "},
      {"disabled while held", [&] { down(kD), piano.key(14).setEnabled(false), up(); }, "14.1 up "},
      {"disabled", [&] { piano.key(14).setEnabled(false), down(kD), up(); }, ""},
      {"hidden while held",
       [&] {
         down(kD), piano.set_keys({24, 48}), log += "gone ";
       },
       "14.1 up gone "},
      {"closed", [&] { all_keys(kClosed), down(kD), up(); }, "set "},
      {"locked", [&] { all_keys(kLocked), down(kD), up(); }, "set "},
      {"Return",
       [&] {
         stroke(Qt::Key_Return), repeat(Qt::Key_Return), log += "on ", let_go(Qt::Key_Return);
       },
       "36.1 on up "},
      {"Return, closed by the press",
       [&] {
         stroke(Qt::Key_Return), all_keys(kClosed), repeat(Qt::Key_Return), let_go(Qt::Key_Return);
       },
       "36.1 set up "},
      {"Return while closed", [&] { all_keys(kClosed), stroke(Qt::Key_Return); }, "set window "},
      {"Return while locked", [&] { all_keys(kLocked), stroke(Qt::Key_Return); }, "set "},
      {"Return held from before",
       [&] { repeat(Qt::Key_Return), all_keys(kClosed), repeat(Qt::Key_Return); }, "set "},
      {"Ctrl and Return",
       [&] { key(QEvent::KeyPress, Qt::Key_Return, false, Qt::ControlModifier); }, "window "},
      {"a screen reader's press", [&] { screen_reader_press(); }, "36.1 up "},
      {"a screen reader's press while closed", [&] { all_keys(kClosed), screen_reader_press(); },
       "set "},
      {"focus lost", [&] { stroke(Qt::Key_Space), piano.clearFocus(), log += "there "; },
       "36.1 up there "},
      {"window left",
       [&] {
         QEvent away(QEvent::WindowDeactivate);
         down(kD), QApplication::sendEvent(&piano, &away), log += "there ", up();
       },
       "14.1 up there "},
      {"moved on while held", [&] { stroke(Qt::Key_Enter), stroke(Qt::Key_Left), log += "there "; },
       "36.1 up there "},
      {"mouse and key",
       [&] { stroke(Qt::Key_Space), down(kD), let_go(Qt::Key_Space), log += "there ", up(); },
       "36.1 up 14.1 window there up "},
  };
  for (const auto& row : rows) {
    bed.show({12, 48});
    piano.key(14).setEnabled(true);
    piano.setFocus();
    while (piano.focused_field().key < 36) stroke(Qt::Key_Right);
    log.clear();
    row.give();
    EXPECT_EQ(log, row.log) << row.input;
    up();
  }
}

TEST_F(PianoKeyboardTest, TheFieldUnderThePointerIsOutlinedWithinItsBandWhileItMayBePressed) {
  bed.show({12, 36});
  piano.clearFocus();
  piano.set_finished_tone(Field{17, 2});
  for (const KeyState& state : {KeyState{true, false, false}, {true, false, true}, {}}) {
    for (int number = 12; number <= 24; ++number) {
      for (int band = 1; band <= kBands; ++band) {
        const Field field{number, band};
        piano.set_state(number, state);
        const QImage before = piano.grab().toImage();
        to(field);
        const QImage pointed = piano.grab().toImage();
        const Box box = piano.geometry().outline(field);
        QImage outside = pointed;
        QPainter(&outside).drawImage(box.left, box.top, before, box.left, box.top, box.width(),
                                     box.height());
        ASSERT_EQ(pointed != before, state.open && spelling(field)) << number << " " << band;
        const bool labelled = piano.picture().label_place(field).has_value();
        ASSERT_TRUE(labelled || outside == before) << number << " " << band;
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&piano.key(number), &leave);
        ASSERT_EQ(piano.grab().toImage(), before);
        taker = nullptr;
      }
    }
  }
}

TEST_F(PianoKeyboardTest, TheRingOfTheFocusCoversNoNameOfTheNextKeys) {
  bed.show(piano_keys(5, 0));
  piano.clearFocus();
  const QImage before = piano.grab().toImage();
  piano.setFocus();
  for (int number = 37; is_black(number) || number < 48; ++number) {
    stroke(Qt::Key_Right);
    const Field field = piano.focused_field();
    if (piano.picture().label_place(field)) continue;
    const Box box = piano.geometry().band(field);
    QImage focused = piano.grab().toImage();
    ASSERT_NE(focused, before);
    QPainter(&focused).drawImage(box.left - 1, box.top - 1, before, box.left - 1, box.top - 1,
                                 box.width() + 2, box.height() + 2);
    ASSERT_EQ(focused, before) << number;
  }
}

TEST_F(PianoKeyboardTest, ACIsBlueAndRedWhileItSounds) {
  const auto has = [&](QColor colour) {
    const QImage image = piano.grab().toImage();
    const QRect name = piano.picture().name_place({24, 1}).toAlignedRect();
    for (int x = name.left(); x <= name.right(); ++x) {
      for (int y = name.top(); y <= name.bottom(); ++y) {
        if (image.pixelColor(x, y) == colour) return true;
      }
    }
    return false;
  };
  const QColor blue(0, 0, 255);
  const QColor red(255, 0, 0);
  piano.resize(1900, 600);
  EXPECT_TRUE(has(blue) && !has(red));
  piano.set_state(24, {true, false, true});
  EXPECT_TRUE(has(red) && !has(blue));
}

TEST_F(PianoKeyboardTest, AScreenReaderIsToldEachStrokeOnceAndTheKeysByPitch) {
  int told = 0;
  QString last;
  piano.on_field_focused = [&](const QString& spoken) { ++told, last = spoken; };
  piano.set_locked_word("locked");
  int strokes = 0;
  for (const int which : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down,
                          Qt::Key_End, Qt::Key_End, Qt::Key_Right, Qt::Key_PageUp}) {
    stroke(which);
    EXPECT_EQ(told, ++strokes);
  }
  repeat(Qt::Key_Right);
  stroke(Qt::Key_Return), let_go(Qt::Key_Return);
  EXPECT_EQ(told, strokes) << "neither a held key at the end nor a tone";
  piano.set_state(48, {true, true, false});
  stroke(Qt::Key_Return);
  EXPECT_EQ(told, strokes + 1);
  EXPECT_TRUE(last.endsWith(", locked"));
  EXPECT_EQ(piano.accessibleName(), "") << "a name that is set is told a second time";

  const auto* all = QAccessible::queryAccessibleInterface(&piano);
  ASSERT_EQ(all->childCount(), kPianoKeys);
  for (int number = 0; number < kPianoKeys; ++number) {
    ASSERT_EQ(all->child(number)->object(), &piano.key(number));
    ASSERT_EQ(all->indexOfChild(all->child(number)), number);
  }
  const Box black = piano.geometry().key(25);
  const QPoint over_c = piano.mapToGlobal(QPoint(black.left + 2, black.bottom - 2));
  EXPECT_EQ(all->childAt(over_c.x(), over_c.y())->object(), &piano.key(25));
}

TEST_F(PianoKeyboardTest, KeysAloneReachEveryFieldAndTellIt) {
  QString told;
  piano.on_field_focused = [&](const QString& spoken) { told = spoken; };
  EXPECT_EQ(piano.focused_field(), (Field{36, 1})) << "the c next above the middle";
  for (int octaves = 2; octaves <= 5; ++octaves) {
    for (int offset = -5; offset <= 6; ++offset) {
      const KeyRange keys = piano_keys(octaves, offset);
      bed.show(keys);
      ASSERT_TRUE(piano.geometry().has(piano.focused_field().key));
      stroke(Qt::Key_End);
      ASSERT_EQ(piano.focused_field().key, keys.highest);
      stroke(Qt::Key_Home);
      int fields = 0;
      for (int number = keys.lowest; number <= keys.highest; ++number) {
        for (int band = 1; band <= kBands; ++band) {
          const Field field{number, band};
          if (!spelling(field)) continue;
          ++fields;
          ASSERT_EQ(piano.focused_field(), field);
          ASSERT_EQ(spoken_name(piano), piano.spoken(field));
          ASSERT_TRUE(fields == 1 || told == piano.spoken(field));
          stroke(Qt::Key_Up);
        }
        for (int band = 1; band < kBands; ++band) stroke(Qt::Key_Down);
        stroke(Qt::Key_Right);
      }
    }
  }
  bed.show({12, 48});
  stroke(Qt::Key_Home), stroke(Qt::Key_Up), stroke(Qt::Key_Up), stroke(Qt::Key_PageUp);
  EXPECT_EQ(piano.focused_field(), (Field{24, 3}));
  for (int i = 0; i < 8; ++i) stroke(Qt::Key_Right);
  EXPECT_EQ(piano.focused_field(), (Field{32, 2})) << "the key with two names";
  stroke(Qt::Key_Right);
  EXPECT_EQ(piano.focused_field(), (Field{33, 3}));
  stroke(Qt::Key_PageDown), stroke(Qt::Key_PageDown);
  EXPECT_EQ(piano.focused_field(), (Field{21, 3})) << "no octave further down";
  piano.set_locked_word("locked");
  piano.set_state(21, {true, true, false});
  EXPECT_TRUE(spoken_name(piano).endsWith(", locked"));
}

TEST_F(PianoKeyboardTest, NamesStayOnTheirFieldAtEverySizeInEveryLanguage) {
  for (const char* language : {"Deutsch", "English"}) {
    PianoBed named(TONARIX_CATALOGUES, language);
    for (const KeyRange& keys : {piano_keys(2, 0), piano_keys(3, -5), piano_keys(5, 0),
                                 piano_keys(5, 6), KeyRange{7, 79}}) {
      for (int width = 460; width <= 2000; width += 55) {
        named.piano.resize(width, 150 + width / 6);
        named.show(keys);
        named.piano.grab();
        const KeyboardGeometry& geometry = named.piano.geometry();
        const QRect whole(0, 0, geometry.width(), geometry.height());
        for (int number = geometry.keys().lowest; number <= geometry.keys().highest; ++number) {
          for (int band = 1; band <= kBands; ++band) {
            const Field field{number, band};
            const Box box = geometry.band(field);
            const QRectF place(box.left, box.top, box.width(), box.height());
            const QRectF name = named.piano.picture().name_place(field);
            const auto label = named.piano.picture().label_place(field);
            ASSERT_TRUE(name.isEmpty() || place.contains(name)) << width << " " << number;
            ASSERT_EQ(label.has_value(), spelling(field) && name.isEmpty());
            ASSERT_TRUE(!label || (whole.contains(*label) && !place.intersects(*label)));
            const bool octave = number % 12 == 0 && band == 1;
            ASSERT_FALSE(octave && name.isEmpty() && number < 72) << "no c to find the octave by";
            ASSERT_TRUE(name.isEmpty() ||
                        name.height() >= QFontMetricsF(key_font(octave ? 8 : 9)).height());
          }
          const int low = is_black(number) ? 1 : 2;
          ASSERT_EQ(named.piano.picture().name_place({number, low}).height(),
                    named.piano.picture().name_place({number, low + 1}).height())
              << "half of a choice";
        }
      }
    }
  }
}

}  // namespace
}  // namespace tonarix
