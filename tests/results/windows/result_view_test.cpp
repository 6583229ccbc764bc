#include "results/windows/result_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>

#include "base/windows/presenter.h"
#include "results/result_bed.h"

namespace tonarix {
namespace {

struct ResultViewTest : testing::Test, ResultBed {
  ResultViewTest() {
    presenter.add<ResultWindow, ResultView>("testergebnis", texts);
    window = &open_filled();
    view = presenter.view_of(*window);
  }
  QPushButton& button(const char* name) { return *view->findChild<QPushButton*>(name); }

  Presenter presenter{windows};
  ResultWindow* window = nullptr;
  WindowView* view = nullptr;
};

TEST_F(ResultViewTest, NothingIsClippedNorScrolledToTheSideOnASmallScreen) {
  for (const QSize& room : {QSize(1024, 570), QSize(683, 380), QSize(512, 285)}) {
    view->resize(room);
    QApplication::processEvents();
    for (const char* name : {"sheet", "chart", "cmdOk", "cmdPrint", "cmdHilfe"}) {
      auto* widget = view->findChild<QWidget*>(name);
      const QRect place(widget->mapTo(view, QPoint()), widget->size());
      EXPECT_TRUE(place.left() >= 0 && place.right() <= room.width()) << name << room.width();
      EXPECT_TRUE(place.bottom() <= room.height() || room.width() < 1024) << name;
      EXPECT_EQ(widget->size(), widget->size().expandedTo(widget->minimumSizeHint())) << name;
    }
  }
}

TEST_F(ResultViewTest, TheSheetIsSaidInWordsAndTheRealButtonsPrintAndLeave) {
  EXPECT_EQ(view->windowTitle().toStdString(), window->caption);
  const auto spoken = [&](const char* name) {
    return view->findChild<QWidget*>(name)->accessibleDescription();
  };
  EXPECT_TRUE(spoken("sheet").contains("[281] [132]: 100.0%"));
  EXPECT_TRUE(spoken("chart").contains("[281] [132][700]100.0%"));
  button("cmdPrint").click();
  ASSERT_TRUE(printer.busy());
  EXPECT_FALSE(button("cmdOk").isEnabled());
  printer.finish({PrintResult::End::cancelled, ""});
  button("cmdOk").click();
  scheduler.settle();
  EXPECT_EQ(closed, 1);
}

}  // namespace
}  // namespace tonarix
