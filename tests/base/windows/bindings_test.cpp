#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <string>

#include "base/windows/accessibility.h"
#include "base/windows/presenter.h"
#include "base/windows/qt_dialogs.h"
#include "support/shown_window.h"
#include "support/window_bed.h"

namespace tonarix {
namespace {

class KitWindow final : public Window {
 public:
  explicit KitWindow(const WindowContext& context) : Window(context, "kit") {
    caption = "Kit";
    go.text = "Save & go";
    back.text = "go back";
    title.text = "Group";
    for (OptionControl& choice : mode) {
      choice.text = std::to_string(*choice.index());
      choice.container = &frame;
    }
    entries.container = &frame;
  }
  void close_requested() override { told += "close "; }
  void failed(std::string_view tag, std::exception_ptr) override { told += tag; }
  void mode_click(int index) {
    told += "mode" + std::to_string(index) + " ";
    if (index != 3) select_option(mode, index);
    changed();
  }
  void leave() { common().windows.unload(*this); }
  void tell_news(const std::string& news) {
    announce(news);
    changed();
  }
  using Window::changed;

  Control frame{*this, "frame"};
  Control title{*this, "title"};
  ControlArray<OptionControl, 1, 3> mode{*this, "mode"};
  ListControl entries{*this, "entries"};
  SliderControl volume{*this, "volume"};
  Control field{*this, "field", 2};
  Control go{*this, "go"};
  Control back{*this, "back"};
  std::string told;
};

class KitView final : public WindowView {
 public:
  KitView(KitWindow& window, const Texts& texts) : WindowView(window, texts) {
    auto* rows = new QVBoxLayout(&content());
    rows->addWidget(frame = card(&window.frame, &window.title));
    choices = options(window.mode, frame->body(), [&window](int i) { window.mode_click(i); });
    frame->body().addWidget(entries = list(window.entries, [&window](int i) {
                              window.entries.selected = i;
                              window.told += "entry" + std::to_string(i) + " ";
                            }));
    rows->addWidget(volume = slider(window.volume, [&window](int value) {
                      window.volume.value = value;
                      window.told += "volume" + std::to_string(value) + " ";
                    }));
    const Binding look{.keep_place = true, .signs = true};
    rows->addWidget(field = label(window.field, TextRole::plain, look));
    actions().addWidget(back = button(window.back, [&window] { window.leave(); }));
    actions().addWidget(go = button(window.go, [&window] { window.told += "go "; }));
    way_on({go, back});
    way_back({back});
  }
  Card* frame;
  std::vector<Option*> choices;
  ListBox* entries;
  Slider* volume;
  Label* field;
  Button *back, *go;
};

void stroke(QWidget& target, int key, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&target, &press);
}

struct BindingsTest : testing::Test, WindowBed {
  BindingsTest() {
    presenter.add<KitWindow, KitView>("kit", texts);
    window = &windows.open(std::make_unique<KitWindow>(common));
    view = static_cast<KitView*>(presenter.view_of(*window));
    come_up(scheduler);
  }
  Presenter presenter{windows};
  KitWindow* window = nullptr;
  KitView* view = nullptr;
};

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

TEST_F(BindingsTest, MessagesWaitForEachOtherAndOutliveTheirWindow) {
  QtDialogs boxes(scheduler, texts, presenter);
  std::string replies;
  const auto note = [&replies](Reply reply) { replies += "oyn"[static_cast<int>(reply)]; };
  boxes.show({"Warning", "first\nsecond", MessageStyle::warning, "", ""}, note);
  boxes.show({"Question", "really?", MessageStyle::yes_no, "", "Never"}, note);
  boxes.show({"Question", "really?", MessageStyle::yes_no, "", ""}, note);
  EXPECT_EQ(boxes.current()->windowTitle(), "Warning");
  window->leave();
  ASSERT_NE(boxes.current(), nullptr);
  boxes.current()->reject();
  ASSERT_EQ(boxes.current()->windowTitle(), "Warning") << "it has only just come up";
  come_up(scheduler);
  boxes.current()->reject();
  come_up(scheduler);
  EXPECT_EQ(boxes.current()->findChild<QPushButton*>("no")->text(), "Never");
  boxes.current()->findChild<QPushButton*>("yes")->click();
  come_up(scheduler);
  stroke(*boxes.current(), Qt::Key_Escape);
  EXPECT_FALSE(boxes.current()->close());
  boxes.current()->findChild<QPushButton*>("no")->click();
  EXPECT_EQ(boxes.current(), nullptr);
  EXPECT_EQ(replies, "oyn");
  boxes.show({"Question", "", MessageStyle::yes_no, "", "", Reply::no}, note);
  come_up(scheduler);
  EXPECT_TRUE(boxes.current()->findChild<QPushButton*>("no")->isDefault());
  stroke(*boxes.current(), Qt::Key_Escape);
  boxes.show({"Warning", "again", MessageStyle::warning, "", ""}, note);
  QDialog* box = boxes.current();
  come_up(scheduler);
  for (int press = 0; press < 2; ++press) box->findChild<QPushButton*>("ok")->click();
  EXPECT_EQ(replies, "oynno");
}

TEST_F(BindingsTest, APressMeantForABoxThatHasGoneIsNoAnswerBelowIt) {
  QtDialogs boxes(scheduler, texts, presenter);
  boxes.show({"Help", "", MessageStyle::plain, "", ""}, [](Reply) {});
  come_up(scheduler);
  view->go->click();
  EXPECT_EQ(window->told, "") << "the box holds it back";
  boxes.current()->reject();
  view->go->click();
  EXPECT_EQ(window->told, "");
  scheduler.advance_ms(InputGuard::kNewlyShown);
  view->go->click();
  EXPECT_EQ(window->told, "go ");
}

TEST_F(BindingsTest, ABoxWithALongTextFitsTheScreenAndCanBeAnswered) {
  QtDialogs boxes(scheduler, texts, presenter);
  std::string text;
  for (int line = 0; line < 200; ++line) text += "Folder: /home/ada/protocols\n";
  boxes.show({"Warning", text, MessageStyle::warning, "", ""}, [](Reply) {});
  QApplication::processEvents();
  const QDialog& box = *boxes.current();
  const auto* ok = box.findChild<QPushButton*>("ok");
  EXPECT_TRUE(box.screen()->availableGeometry().contains(box.geometry()));
  EXPECT_TRUE(box.rect().contains(QRect(ok->mapTo(&box, QPoint()), ok->size())));
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
