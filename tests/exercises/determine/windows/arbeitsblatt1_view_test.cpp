#include "exercises/determine/windows/arbeitsblatt1_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>

#include "base/arithmetic.h"
#include "base/windows/presenter.h"
#include "exercises/determine/windows/scale_picture.h"
#include "flow/flow_bed.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

/// An exercise of two intervals named from tone to tone, in its real window.
struct Arbeitsblatt1ViewTest : testing::Test {
  Arbeitsblatt1ViewTest() {
    settings.click(settings.abfr_iv[1]);
    settings.click(settings.tongeschl[2]);
    presenter.add<Arbeitsblatt1, Arbeitsblatt1View>("arbeitsblatt1", bed.language);
  }
  void open() {
    window = &bed.open_exercise();
    view = presenter.view_of(*window);
    view->resize(1024, 600);
    apply();
    come_up(bed.scheduler);
  }
  void apply() {
    view->apply();
    QApplication::processEvents();
  }
  template <typename Kind = Button>
  Kind& child(const QString& name) const {
    return *view->findChild<Kind*>(name);
  }
  AnswerButton& answer(int code) const {
    return child<AnswerButton>(QStringLiteral("intervall_%1").arg(code));
  }
  AnswerField& field(int index) const {
    return static_cast<AnswerField&>(child<Label>(QStringLiteral("ergebnis_%1").arg(index)));
  }
  void stroke(int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(view, &press);
  }

  FakeHost host;
  FlowBed bed{host, 3};
  Einstellung1& settings = bed.open_settings();
  Presenter presenter{bed.windows};
  Arbeitsblatt1* window = nullptr;
  WindowView* view = nullptr;
};

TEST_F(Arbeitsblatt1ViewTest, RealButtonsAndDigitsInReadingOrderAnswerWhenTheRowHasSounded) {
  open();
  const int right = bed.right_code(0);
  EXPECT_FALSE(answer(right).isEnabled()) << "while the row sounds";
  std::string keys;
  int wrong = 0;
  int key_of_wrong = 0;
  int place = 0;
  for (const int code : kAnswerOrder) {
    if (!answer(code).isVisible()) continue;
    keys += answer(code).key().toStdString();
    EXPECT_FALSE(answer(code).spoken_key().isEmpty());
    if (code != right) {
      wrong = code;
      key_of_wrong = place < 9    ? Qt::Key_1 + place
                     : place == 9 ? Qt::Key_0
                                  : Qt::Key_F2 + place - 10;
    }
    ++place;
  }
  EXPECT_EQ(keys, "1234567890F2F3F4F5F6F7F8F9F10");
  const auto counts = [&] { return window->zaehler[0].text + window->zaehler[1].text; };
  stroke(Qt::Key_1);
  EXPECT_EQ(counts(), "00") << "while the row sounds";
  bed.hear_row();
  for (int presses = 1; presses <= 2; ++presses) {
    stroke(key_of_wrong);
    EXPECT_FALSE(answer(wrong).isEnabled());
    EXPECT_EQ(counts(), "01") << "a locked answer is not given twice";
  }
  EXPECT_EQ(field(0).sign(), Label::Sign::wrong);
  child("wieder").click();
  bed.hear_row();
  EXPECT_EQ(child<Label>("whlgzaehler").text(), "1");
  answer(right).click();
  EXPECT_EQ(field(0).sign(), Label::Sign::right);
  EXPECT_EQ(counts(), "11");
}

TEST_F(Arbeitsblatt1ViewTest, TheWayOnIsReturnAndNothingIsLeftByAccident) {
  open();
  bed.hear_row();
  stroke(Qt::Key_Return);
  EXPECT_TRUE(window->zurueck.enabled);
  bed.answer_row(*window);
  const Button &repeat = child("wieder2"), &next = child("CmdNextAufg");
  EXPECT_TRUE(repeat.primary());
  const QRect place = repeat.parentWidget()->geometry();
  child("wieder2").setFocus();
  stroke(Qt::Key_Return);
  bed.hear_row();
  EXPECT_TRUE(next.isVisible() && next.primary() && !repeat.primary());
  EXPECT_EQ(view->focusWidget(), &repeat);
  stroke(Qt::Key_Return);
  EXPECT_EQ(FlowBed::asked(*window), 0) << "the focus is left from the step before";
  QApplication::processEvents();
  EXPECT_EQ(repeat.parentWidget()->geometry(), place) << "the actions don't move either";
}

TEST_F(Arbeitsblatt1ViewTest, ReturnTakesAWaitingTaskBackOnlyWhereTabHasJustLedToIt) {
  settings.click(settings.abfrage[1]);
  open();
  bed.hear_row();
  bed.answer_row(*window);
  child("wieder2").setFocus();
  for (const bool by_tab : {false, true}) {
    window->wieder2_click();
    bed.hear_row();
    ASSERT_TRUE(window->LbNextAufg.visible);
    QWidget* focus = &child("wieder2");
    do {
      if (!by_tab) break;
      QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
      QApplication::sendEvent(focus, &tab);
      focus = view->focusWidget();
    } while (focus != &child("wieder2"));
    stroke(Qt::Key_Return);
    EXPECT_EQ(window->phase(), by_tab ? Phase::control_sounding : Phase::next_offered);
  }
}

TEST_F(Arbeitsblatt1ViewTest, ALetterPressesItsActionWithoutAltButNeverTheWayOutOfATest) {
  settings.choose(settings.training_Combo, 3);
  open();
  bed.hear_row();
  window->wieder.text = "xylophone";
  apply();
  stroke(Qt::Key_X, "x");
  EXPECT_FALSE(child("wieder").isEnabled()) << "it plays";
  bed.hear_row();
  window->zurueck.text = "zebra";
  apply();
  stroke(Qt::Key_Z, "z");
  EXPECT_FALSE(bed.dialogs.open()) << "never the way out";
  stroke(Qt::Key_Escape);
  ASSERT_TRUE(bed.dialogs.open());
  bed.dialogs.answer(Reply::no);
  EXPECT_EQ(window->phase(), Phase::answering);
  child("zurueck").click();
  EXPECT_FALSE(bed.dialogs.open()) << "too soon after Escape";
}

TEST_F(Arbeitsblatt1ViewTest, EachGroupHasANameAndTheBarOfATrainingANumberButAtItsSolvedEnd) {
  settings.choose(settings.training_Combo, 1);
  open();
  for (const bool solved : {false, true}) {
    window->matboxanz[15].text = solved ? "0" : "37";
    apply();
    EXPECT_EQ(child<QWidget>("matboxanz_15").accessibleName(),
              solved ? "[1100s]" : "[1100s] [1132s]");
  }
  for (QFrame* frame : view->findChildren<QFrame*>()) {
    auto* group = dynamic_cast<Card*>(frame);
    EXPECT_TRUE(!group || group->isHidden() || !spoken_name(*group).isEmpty());
  }
}

TEST_F(Arbeitsblatt1ViewTest, WhatSoundsIsMarkedByItsPlaceAndNothingNamesTheSolution) {
  open();
  bed.scheduler.advance_ms(bed.beat());
  int marks = 0;
  for (int i = 0; i <= 5; ++i) {
    const auto& mark = child<QWidget>(QStringLiteral("sounding_%1").arg(i));
    if (!mark.isVisible()) continue;
    ++marks;
    EXPECT_TRUE(i == 0 || mark.x() > field(i - 1).geometry().right());
    EXPECT_LT(mark.geometry().right(), field(i).x());
  }
  EXPECT_EQ(marks, 1);
  bed.hear_row();
  const QString name = answer(bed.right_code(0)).text();
  for (const QWidget* widget : view->findChildren<QWidget*>()) {
    if (dynamic_cast<const AnswerButton*>(widget)) continue;
    const auto* label = dynamic_cast<const QLabel*>(widget);
    const QString told = widget->accessibleName() + (label ? label->text() : QString());
    EXPECT_FALSE(told.contains(name)) << widget->objectName().toStdString();
  }
}

TEST_F(Arbeitsblatt1ViewTest, AnswersKeepTheirPlacesAllFitAndNarrowWindowsScroll) {
  settings.click(settings.invzahl[4]);
  open();
  const QRect before = answer(3).geometry();
  window->intervall[2].visible = window->intervall[8].visible = false;
  apply();
  EXPECT_FALSE(answer(2).isVisible());
  EXPECT_EQ(answer(3).geometry(), before) << "while others hide";
  EXPECT_LT(answer(1).y(), answer(5).y()) << "by size of interval";
  for (Control& button : window->intervall) {
    button.visible = true;
    button.text = "Augmented seventh, and more";
  }
  apply();
  const auto* area = view->findChild<QScrollArea*>();
  EXPECT_EQ(area->verticalScrollBar()->maximum() + area->horizontalScrollBar()->maximum(), 0);
  for (const QSize size : {QSize(1024, 600), QSize(512, 300), QSize(341, 200)}) {
    view->resize(size);
    QApplication::processEvents();
    EXPECT_EQ(view->size(), size);
    for (const int code : kAnswerOrder) {
      const AnswerButton& button = answer(code);
      EXPECT_GE(button.width(), button.sizeHint().width());
      EXPECT_TRUE(button.parentWidget()->rect().contains(button.geometry()));
    }
  }
  EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
  view->resize(508, 264);
  bed.hear_row();
  child("wieder").click();
  for (int time = 0; time < 2; ++time) QApplication::processEvents();
  const QRect shown(field(0).mapTo(area->viewport(), QPoint()), field(0).size());
  EXPECT_TRUE(area->viewport()->rect().contains(shown)) << "a new row is in sight";
}

/// "C Db D= Eb" for the notes c, d flat, d natural, e flat.
std::string written(std::int16_t tongeschl) {
  std::string text;
  for (const auto& line : scale_lines(tongeschl)) {
    int end = 31;  // of the clef
    for (const ScaleNote& note : line) {
      const char sign = "b=#x "[static_cast<int>(note.code) - static_cast<int>(DrawingCode::flat)];
      text += "CDEFGABc"[(104 - note.at.y) / kStepHeight];
      text += note.code == DrawingCode::plain ? " " : std::string{sign, ' '};
      EXPECT_GT(note.at.x - (note.code == DrawingCode::plain ? 4 : 12), end);
      EXPECT_TRUE(is_odd(note.at.x));
      end = note.at.x + 5;
    }
    EXPECT_TRUE(end > 175 && end < 200) << end;
  }
  return text;
}

TEST(ScalePictureTest, WritesEachScaleOnC) {
  EXPECT_EQ(written(0), "C D E F G A B c ");
  EXPECT_EQ(written(1), "C D Eb F G Ab A= Bb B= c ");
  EXPECT_EQ(written(2), "C Db D= Eb E= F G Ab A= Bb B= c ");
}

TEST(ScalePictureTest, FillsItsRoomWithWholePixels) {
  ScalePicture picture(2, nullptr);
  for (const auto& [size, times] : {std::pair{QSize(204, 128), 1}, {QSize(400, 300), 2}}) {
    picture.resize(size);
    const QImage image = picture.grab().toImage();
    for (int y = 0; y < 128 * times; ++y) {
      const int at = y / times % 64 + 50;  // in the picture of the staff
      const bool line = at >= 64 && at <= 96 && at % 8 == 0;
      EXPECT_EQ(image.pixelColor(1, y) == QColor(Qt::black), line) << times << " " << y;
    }
  }
}

}  // namespace
}  // namespace tonarix
