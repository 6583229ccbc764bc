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

TEST_F(ResultViewTest, ShowsTheSheetAndTheChartAndSaysThemInWords) {
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(view->windowTitle().toStdString(), window->caption);
  auto* sheet = view->findChild<QWidget*>("sheet");
  auto* chart = view->findChild<QWidget*>("chart");
  EXPECT_TRUE(sheet->accessibleDescription().contains("[281] [132]: 100.0%"));
  EXPECT_TRUE(chart->accessibleDescription().contains("[281] [132][700]100.0%"));
}

TEST_F(ResultViewTest, NothingIsClippedNorScrolledToTheSideOnASmallScreen) {
  for (const QSize& room : {QSize(1024, 570), QSize(683, 380), QSize(512, 285)}) {
    view->resize(room);
    QApplication::processEvents();
    for (const char* name : {"sheet", "chart", "cmdOk", "cmdPrint", "cmdHilfe"}) {
      auto* widget = view->findChild<QWidget*>(name);
      const QRect place(widget->mapTo(view, QPoint()), widget->size());
      EXPECT_GE(place.left(), 0) << name << " in " << room.width();
      EXPECT_LE(place.right(), room.width()) << name << " in " << room.width();
      EXPECT_TRUE(place.bottom() <= room.height() || room.width() < 1024) << name;
      EXPECT_TRUE(
          QRect(QPoint(), widget->size()).contains(QRect(QPoint(), widget->minimumSizeHint())));
    }
  }
}

TEST_F(ResultViewTest, TheRealButtonsPrintAndLeave) {
  button("cmdPrint").click();
  ASSERT_TRUE(printer.busy());
  EXPECT_FALSE(button("cmdOk").isEnabled());
  printer.finish({PrintResult::End::cancelled, ""});
  EXPECT_TRUE(button("cmdOk").isEnabled());
  button("cmdOk").click();
  scheduler.settle();
  QApplication::processEvents();
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(windows.count(), 0);
}

}  // namespace
}  // namespace tonarix
