#include "exercises/determine/windows/arbeitsblatt1_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <map>

#include "base/windows/presenter.h"
#include "flow/flow_bed.h"

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
    bed.scheduler.advance_ms(100);
    view = presenter.view_of(*window);
    view->resize(1024, 600);
    QApplication::processEvents();
  }
  void stroke(int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(view, &press);
  }
  AnswerButton& answer(int code) const {
    return *view->findChild<AnswerButton*>(QStringLiteral("intervall_%1").arg(code));
  }
  AnswerField& field(int index) const {
    return *static_cast<AnswerField*>(
        view->findChild<Label*>(QStringLiteral("ergebnis_%1").arg(index)));
  }
  void press_digit(const AnswerButton& button) { stroke(Qt::Key_0 + button.digit()); }
  std::map<int, QRect> places() const {
    std::map<int, QRect> found;
    for (const int code : kAnswerOrder) found[code] = answer(code).geometry();
    return found;
  }
  bool scrolls() const {
    const auto* area = view->findChild<QScrollArea*>();
    return area->verticalScrollBar()->maximum() > 0 || area->horizontalScrollBar()->maximum() > 0;
  }

  FakeHost host;
  FlowBed bed{host, 3};
  Einstellung1& settings = bed.open_settings();
  Presenter presenter{bed.windows};
  Arbeitsblatt1* window = nullptr;
  WindowView* view = nullptr;
};

TEST_F(Arbeitsblatt1ViewTest, RealButtonsAnswerAndActWhenTheRowHasSounded) {
  open();
  const int right = bed.right_code(0);
  EXPECT_FALSE(answer(right).isEnabled()) << "while the row sounds";
  bed.hear_row();
  const int wrong = bed.wrong_code(*window, 0);
  answer(wrong).click();
  EXPECT_FALSE(answer(wrong).isEnabled());
  EXPECT_EQ(field(0).sign(), Label::Sign::wrong);
  view->findChild<Button*>("wieder")->click();
  bed.hear_row();
  EXPECT_EQ(view->findChild<Label*>("whlgzaehler")->text(), "1");
  answer(right).click();
  EXPECT_EQ(field(0).sign(), Label::Sign::right);
  EXPECT_EQ(FlowBed::asked(*window), 1);
}

TEST_F(Arbeitsblatt1ViewTest, DigitsPressTheShownAnswersInReadingOrder) {
  open();
  std::string digits;
  for (const int code : kAnswerOrder) {
    if (answer(code).isVisible() && answer(code).digit() >= 0) {
      digits += std::to_string(answer(code).digit());
    }
  }
  EXPECT_EQ(digits, "1234567890");
  stroke(Qt::Key_1);
  EXPECT_EQ(window->zaehler[0].text + window->zaehler[1].text, "00") << "while the row sounds";
  bed.hear_row();
  for (int presses = 1; presses <= 2; ++presses) {
    int wrong = 0;
    for (const int code : kAnswerOrder) {
      const AnswerButton& button = answer(code);
      if (button.isVisible() && button.digit() > 0 && code != bed.right_code(0)) wrong = code;
    }
    press_digit(answer(wrong));
    EXPECT_FALSE(answer(wrong).isEnabled());
    EXPECT_EQ(window->zaehler[1].text, "1") << "a locked answer is not given twice";
  }
}

TEST_F(Arbeitsblatt1ViewTest, AnswersKeepTheirPlacesWhileOthersHide) {
  open();
  const auto before = places();
  window->intervall[2].visible = window->intervall[8].visible = false;
  view->apply();
  QApplication::processEvents();
  EXPECT_FALSE(answer(2).isVisible());
  EXPECT_EQ(places(), before);
  EXPECT_LT(answer(1).y(), answer(5).y()) << "by size of interval";
}

TEST_F(Arbeitsblatt1ViewTest, TheWayOnIsReturnAndNothingIsLeftByAccident) {
  open();
  bed.hear_row();
  stroke(Qt::Key_Return);
  EXPECT_TRUE(window->zurueck.enabled);
  bed.answer_row(*window);
  auto* repeat = view->findChild<Button*>("wieder2");
  EXPECT_TRUE(repeat->primary());
  const QRect place = repeat->parentWidget()->geometry();
  stroke(Qt::Key_Return);
  bed.hear_row();
  auto* next = view->findChild<Button*>("CmdNextAufg");
  EXPECT_TRUE(next->isVisible() && next->primary() && !repeat->primary());
  stroke(Qt::Key_Return);
  EXPECT_EQ(FlowBed::asked(*window), 0);
  QApplication::processEvents();
  EXPECT_EQ(repeat->parentWidget()->geometry(), place) << "the actions don't move either";
}

TEST_F(Arbeitsblatt1ViewTest, ALetterPressesItsActionWithoutAlt) {
  open();
  bed.hear_row();
  auto* repeat = view->findChild<Button*>("wieder");
  window->wieder.text = "xylophone";
  view->apply();
  stroke(Qt::Key_X, "x");
  EXPECT_FALSE(repeat->isEnabled()) << "it plays";
}

TEST_F(Arbeitsblatt1ViewTest, EscapeDoesNotEndARunningTest) {
  settings.choose(settings.training_Combo, 3);
  open();
  bed.hear_row();
  stroke(Qt::Key_Escape);
  EXPECT_TRUE(window->zurueck.enabled);
}

TEST_F(Arbeitsblatt1ViewTest, WhatSoundsIsMarkedByItsPlaceAndNothingNamesTheSolution) {
  open();
  bed.scheduler.advance_ms(bed.beat());
  int sounding = -1;
  for (int i = 0; i <= 5; ++i) {
    if (view->findChild<QWidget*>(QStringLiteral("sounding_%1").arg(i))->isVisible()) sounding = i;
  }
  ASSERT_GE(sounding, 0);
  const QWidget* mark = view->findChild<QWidget*>(QStringLiteral("sounding_%1").arg(sounding));
  if (sounding > 0) {
    EXPECT_GT(mark->x(), field(sounding - 1).geometry().right());
  }
  EXPECT_LT(mark->geometry().right(), field(sounding).x());
  bed.hear_row();
  const QString name = answer(bed.right_code(0)).text();
  for (const QWidget* widget : view->findChildren<QWidget*>()) {
    if (dynamic_cast<const AnswerButton*>(widget)) continue;
    const auto* label = dynamic_cast<const QLabel*>(widget);
    EXPECT_FALSE(widget->accessibleName().contains(name)) << widget->objectName().toStdString();
    EXPECT_FALSE(label && label->text().contains(name)) << widget->objectName().toStdString();
  }
}

TEST_F(Arbeitsblatt1ViewTest, AllAnswersFitWithLongCaptionsAndNarrowWindowsScroll) {
  settings.click(settings.invzahl[4]);
  open();
  for (Control& button : window->intervall) {
    button.visible = true;
    button.text = "Augmented seventh, and more";
  }
  view->apply();
  QApplication::processEvents();
  EXPECT_FALSE(scrolls());
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
  EXPECT_TRUE(scrolls());
}

}  // namespace
}  // namespace tonarix
