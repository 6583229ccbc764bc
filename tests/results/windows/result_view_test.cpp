#include "results/windows/result_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>

#include "base/windows/presenter.h"
#include "support/fake_dialogs.h"
#include "support/fake_host.h"
#include "support/key_texts.h"
#include "support/recording_printer.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

struct StandingClock final : WallClock {
  CivilTime now() const override { return {2026, 11, 21, 14, 40, 0}; }
};

struct ResultViewTest : testing::Test {
  ResultViewTest() {
    server.ServerInit("vemo06");
    settings.Uebungsmodus = 1;
    settings.abfr_iv = 1;
    statistics.init_arr(3, 42);
    statistics.Increment(4, 3);
    statistics.Save(4, 0, 1);
    statistics.Save(4, 1, -16);
    presenter.add<ResultWindow, ResultView>("testergebnis", texts);
    window = &windows.open(std::make_unique<ResultWindow>(ResultContext{scheduler,
                                                                        windows,
                                                                        texts,
                                                                        server,
                                                                        errors,
                                                                        dialogs,
                                                                        clock,
                                                                        settings,
                                                                        statistics,
                                                                        names,
                                                                        printer,
                                                                        "praxis-3",
                                                                        {}},
                                                          [this] { ++closed; }));
    view = presenter.view_of(*window);
    scheduler.advance_ms(100);
  }
  QPushButton& button(const char* name) { return *view->findChild<QPushButton*>(name); }

  VirtualScheduler scheduler;
  WindowList windows{scheduler};
  KeyTexts texts;
  FakeHost host;
  Server server{host.factory(), {"vemo06", "test"}};
  RecordingDialogs dialogs{scheduler};
  ErrorReport errors{server, texts, dialogs};
  StandingClock clock;
  Settings settings;
  Auswertung statistics;
  IntervalNames names{texts};
  RecordingPrinter printer;
  Presenter presenter{windows};
  ResultWindow* window = nullptr;
  WindowView* view = nullptr;
  int closed = 0;
};

TEST_F(ResultViewTest, ShowsTheSheetAndTheChartAndSaysThemInWords) {
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(view->windowTitle().toStdString(), window->caption);
  auto* sheet = view->findChild<QWidget*>("sheet");
  auto* chart = view->findChild<QWidget*>("chart");
  EXPECT_TRUE(sheet->accessibleDescription().contains("[281] [132]: 100.0%"));
  EXPECT_EQ(chart->accessibleDescription(), "[281] [132][700]100.0%");
  const QImage image = view->grab().toImage();
  int green = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      green += image.pixelColor(x, y) == QColor(128, 255, 128);
  }
  EXPECT_GT(green, 2 * 68 * 15) << "the field, the total and the bar";
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
