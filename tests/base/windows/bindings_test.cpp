#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QToolTip>
#include <string>

#include "base/windows/accessibility.h"
#include "base/windows/kit_bed.h"

namespace tonarix {
namespace {

using BindingsTest = KitBed;

TEST_F(BindingsTest, RealButtonsPressAndShowTheStateOfTheLogic) {
  EXPECT_EQ(view->field->objectName(), "field_2");
  EXPECT_EQ(spoken_name(*view->go), "Save & go");
  // Each letter for Alt is given once.
  EXPECT_EQ(view->back->text(), "&go back");
  EXPECT_EQ(view->go->text(), "&Save && go");
  EXPECT_EQ(view->frame->title().text(), "G&roup");
  view->go->click();
  window->go.enabled = false;
  window->caption = "Other";
  window->field.back = signal::right;
  window->changed();
  EXPECT_EQ(view->windowTitle(), "Other");
  EXPECT_EQ(view->field->sign(), Label::Sign::right) << "beside its colour";
  view->go->click();
  EXPECT_EQ(window->told, "go ");
  EXPECT_TRUE(view->back->primary());
  window->field.visible = false;
  window->field.back = signal::black;
  window->field.fore = signal::wrong;
  window->changed();
  EXPECT_EQ(view->field->sign(), Label::Sign::wrong);
  EXPECT_FALSE(view->field->isVisible());
  EXPECT_TRUE(view->field->sizePolicy().retainSizeWhenHidden());
}

TEST_F(BindingsTest, AChoiceReachesTheLogicAndARefusedOneLeavesTheScreen) {
  for (const std::size_t choice : {1, 2}) view->choices[choice]->click();
  EXPECT_TRUE(window->mode[2].value);
  EXPECT_EQ(window->told, "mode2 mode3 ");
  EXPECT_TRUE(view->choices[1]->isChecked());
  EXPECT_FALSE(view->choices[2]->isChecked());
  EXPECT_EQ(spoken_name(*view->choices[1]), "Group" + to_qstring(texts.Wort(700_text)) + "2");
  for (OptionControl& choice : window->mode) choice.value = false;
  window->changed();
  for (const Option* choice : view->choices) EXPECT_FALSE(choice->isChecked());
}

TEST_F(BindingsTest, AScreenReaderPressesAndChoosesAsTheMouseDoes) {
  const auto act = [](QWidget& widget) {
    auto* actions = QAccessible::queryAccessibleInterface(&widget)->actionInterface();
    for (const QString& action : actions->actionNames()) {
      if (action == actions->pressAction() || action == actions->toggleAction()) {
        return actions->doAction(action);
      }
    }
  };
  act(*view->choices[1]);
  act(*view->go);
  EXPECT_EQ(window->told, "mode2 go ");
  EXPECT_TRUE(view->choices[1]->isChecked());
  const auto role = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
  };
  EXPECT_EQ(role(*view), QAccessible::Window);
  EXPECT_EQ(role(*view->frame), QAccessible::Grouping);
}

TEST_F(BindingsTest, ANewWindowTakesNothingAndOldNewsAreNotToldAgain) {
  const auto* announcer = static_cast<Announcer*>(view->findChild<QWidget*>("announcer"));
  window->tell_news("first");
  EXPECT_TRUE(announcer->isVisible());
  EXPECT_EQ(announcer->news(), "first");
  window->hide();
  window->show();
  EXPECT_FALSE(announcer->isVisible());
  view->choices[0]->click();
  view->volume->setValue(90);
  view->go->click();
  EXPECT_FALSE(view->close());
  EXPECT_EQ(window->told, "");
  come_up(scheduler);
  view->choices[0]->click();
  EXPECT_EQ(window->told, "mode1 ");
}

TEST_F(BindingsTest, OnlyTheUserSpeaksThroughListsAndSliders) {
  for (const char* entry : {" 30  ", "100  ", "---", "120  "}) window->entries.add(entry);
  window->entries.items[2].gap = true;
  window->entries.selected = 3;
  window->volume.value = 100;
  window->changed();
  EXPECT_EQ(window->told, "");
  EXPECT_EQ(view->entries->currentIndex(), 3);
  EXPECT_EQ(view->entries->itemText(0), "  30");
  EXPECT_EQ(view->volume->value(), 100);
  // The arrow keys pass over a line that only fills a place.
  for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}) {
    stroke(*view->entries, key);
  }
  view->volume->setValue(90);
  EXPECT_EQ(window->told, "entry1 entry3 entry1 entry0 volume90 ");
}

/// Counts how often a reason was set.
struct ReasonCounter final : QObject {
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ToolTipChange) ++count;
    return false;
  }
  int count = 0;
};

TEST_F(BindingsTest, WhatIsNotOpenAndALockedFrameWithAllInItSayWhyOnceUntilTheyOpen) {
  const auto told = [this](std::size_t choice) {
    const Option& option = *view->choices[choice];
    EXPECT_TRUE(option.accessibleDescription().startsWith(option.toolTip()));
    return option.toolTip().toStdString() + "|" + view->frame->toolTip().toStdString() + "|" +
           view->entries->accessibleDescription().toStdString();
  };
  view->choices[1]->set_note("note");
  window->mode[2].why = "own";
  window->changed();
  EXPECT_EQ(told(1), "||") << "it is open";
  window->mode[2].enabled = false;
  window->changed();
  EXPECT_EQ(told(1), "own||");
  EXPECT_EQ(view->choices[1]->accessibleDescription(), "own; note");
  window->frame.enabled = false;
  window->frame.why = "frame";
  window->changed();
  EXPECT_TRUE(view->frame->locked());
  EXPECT_TRUE(spoken_name(*view->frame).contains(to_qstring(texts.Wort(1250_text))));
  EXPECT_FALSE(view->choices[0]->isEnabled() || view->entries->isEnabled());
  EXPECT_TRUE(view->volume->isEnabled()) << "it stands beside the frame";
  EXPECT_EQ(told(1), "frame|frame|frame");
  EXPECT_EQ(told(0), "frame|frame|frame");
  ReasonCounter counter;
  view->choices[0]->installEventFilter(&counter);
  for (const bool open : {false, false, true, true}) {
    window->frame.enabled = window->mode[2].enabled = open;
    window->changed();
    EXPECT_EQ(counter.count, open ? 1 : 0) << "each call is told to a screen reader";
  }
  EXPECT_EQ(told(1), "||");
  EXPECT_EQ(view->choices[1]->accessibleDescription(), "note");
}

TEST_F(BindingsTest, ARightClickOnAnOptionReachesItsGroupAndATooltipTheOption) {
  std::string menus;
  view->frame->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(view->frame, &QWidget::customContextMenuRequested, view,
                   [&menus] { menus += "menu "; });
  window->mode[2].why = "own";
  for (const bool open : {true, false}) {
    window->mode[2].enabled = open;
    window->changed();
    Option& option = *view->choices[1];
    const QPoint at = option.mapTo(view, option.rect().center());
    QWidget* under = view->childAt(at);
    ASSERT_EQ(under, &option);
    const QPoint inside = option.rect().center();
    const QPoint on_screen = option.mapToGlobal(inside);
    QContextMenuEvent click(QContextMenuEvent::Mouse, inside, on_screen);
    QApplication::sendEvent(under, &click);
    QHelpEvent rest(QEvent::ToolTip, inside, on_screen);
    QApplication::sendEvent(under, &rest);
    EXPECT_EQ(QToolTip::text(), open ? "" : "own");
    QToolTip::hideText();
  }
  EXPECT_EQ(menus, "menu menu ");
}

TEST_F(BindingsTest, KeysPressTheWayOnAndBack) {
  stroke(*view, Qt::Key_Return);
  EXPECT_EQ(window->told, "go ");
  view->activateWindow();
  view->back->setFocus();
  window->back.enabled = false;
  window->changed();
  EXPECT_EQ(view->focusWidget(), view->back) << "the focus stays where it was";
  EXPECT_FALSE(view->back->open());
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(view->back)->state().disabled);
  stroke(*view, Qt::Key_Escape);
  EXPECT_EQ(windows.count(), 1);
  window->back.enabled = true;
  window->changed();
  EXPECT_EQ(view->focusWidget(), view->back);
  stroke(*view, Qt::Key_Escape);
  EXPECT_EQ(windows.count(), 0);
}

TEST_F(BindingsTest, TheTitleBarOnlyAsksAndAViewOutlivesItsOwnButton) {
  EXPECT_FALSE(view->close());
  EXPECT_EQ(window->told, "close ");
  const QPointer<KitView> gone = view;
  EXPECT_TRUE(gone->isVisible());
  view->back->click();
  EXPECT_FALSE(gone->isVisible());
  EXPECT_EQ(presenter.newest_visible(), nullptr);
  scheduler.settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(gone.isNull());
}

TEST_F(BindingsTest, ASecondClickOnAnEntryHitsNothingBelowTheList) {
  for (const char* entry : {"30", "100"}) window->entries.add(entry);
  window->entries.selected = 0;
  window->changed();
  for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
    view->entries->showPopup();
    QAbstractItemView& entries = *view->entries->view();
    entries.setCurrentIndex(entries.model()->index(1, 0));
    stroke(entries, key);
    if (key == Qt::Key_Escape) QApplication::processEvents();
    ASSERT_FALSE(entries.isVisible());
    view->go->click();
    EXPECT_EQ(window->told, "entry1 ");
    scheduler.advance_ms(InputGuard::kNewlyShown);
  }
  view->go->click();
  EXPECT_EQ(window->told, "entry1 go ");
}

}  // namespace
}  // namespace tonarix
