#include "base/windows/qt_dialogs.h"

#include <gtest/gtest.h>

#include <string>

#include "base/windows/kit_bed.h"

namespace tonarix {
namespace {

/// Boxes over a window.
struct QtDialogsTest : KitBed {
  QtDialogs boxes{scheduler, texts, presenter};
};

TEST_F(QtDialogsTest, MessagesWaitForEachOtherAndOutliveTheirWindow) {
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

TEST_F(QtDialogsTest, APressMeantForABoxThatHasGoneIsNoAnswerBelowIt) {
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

TEST_F(QtDialogsTest, ABoxWithALongTextFitsTheScreenAndCanBeAnswered) {
  std::string text;
  for (int line = 0; line < 200; ++line) text += "Folder: /home/ada/protocols\n";
  boxes.show({"Warning", text, MessageStyle::warning, "", ""}, [](Reply) {});
  QApplication::processEvents();
  const QDialog& box = *boxes.current();
  const auto* ok = box.findChild<QPushButton*>("ok");
  EXPECT_TRUE(box.screen()->availableGeometry().contains(box.geometry()));
  EXPECT_TRUE(box.rect().contains(QRect(ok->mapTo(&box, QPoint()), ok->size())));
}

}  // namespace
}  // namespace tonarix
