#include "results/windows/result_view.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QBitmap>
#include <QFileDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QWindow>

#include "base/windows/presenter.h"
#include "base/windows/theme.h"
#include "results/result_bed.h"
#include "results/windows/qt_sheet_printer.h"
#include "results/windows/sheet_painter.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

struct ResultViewTest : testing::Test, ResultBed {
  ResultViewTest() {
    presenter.add<ResultWindow, ResultView>("testergebnis", texts);
    answered(4, 1, -16);
    view = presenter.view_of(open_filled());
  }
  QPushButton& button(const char* name) { return *view->findChild<QPushButton*>(name); }

  Presenter presenter{windows};
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
  EXPECT_EQ(view->windowTitle(), "[1200][700]Training");
  const auto spoken = [&](const char* name) {
    return view->findChild<QWidget*>(name)->accessibleDescription();
  };
  EXPECT_TRUE(spoken("sheet").contains("[281] [132]: 100[1048]0%"));
  EXPECT_TRUE(spoken("chart").contains("[281] [132][700]100[1048]0%"));
  come_up(scheduler);
  button("cmdPrint").click();
  ASSERT_TRUE(printer.busy());
  EXPECT_FALSE(button("cmdOk").isEnabled());
  printer.finish({PrintResult::End::cancelled, ""});
  button("cmdOk").click();
  scheduler.settle();
  EXPECT_EQ(closed, 1);
}

TEST_F(ResultViewTest, EscapeLeavesTheSheet) {
  come_up(scheduler);
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(view, &escape);
  scheduler.settle();
  EXPECT_EQ(closed, 1);
}

QImage painted(const SheetPicture& picture, double factor) {
  QImage image(int(picture.width * factor), int(picture.height * factor),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  paint_sheet(painter, picture, image.rect());
  painter.end();
  return image;
}

struct SheetPrinterTest : testing::Test, ResultBed {
  const ResultWindow& window() {
    presenter.add<ResultWindow, ResultView>("testergebnis", texts);
    fill();
    return open_filled();
  }
  Presenter presenter{windows};
  QtSheetPrinter printer{scheduler, texts, presenter};
  QTemporaryDir folder;
  const SheetContent sheet = window().content();
  SheetPicture page = sheet_picture(sheet, SheetGround::paper);
};

TEST_F(SheetPrinterTest, FieldsHaveTheirColourAtAnyResolution) {
  const SheetPicture screen = sheet_picture(sheet, SheetGround::screen);
  const QImage image = painted(screen, 1.5);
  for (const SheetSurface& surface : screen.surfaces) {
    const SheetBox& box = surface.box;
    const QPointF inside((box.left + 4) * 1.5, (box.top + box.height / 2) * 1.5);
    if (surface.framed) continue;
    EXPECT_EQ(image.pixelColor(inside.toPoint()), theme::colour(surface.fill));
  }
}

TEST_F(SheetPrinterTest, NoTextLeavesItsBoxHoweverLong) {
  SheetPicture picture;
  picture.width = 300;
  picture.height = 40;
  for (const char* name :
       {"Wolfeschlegelsteinhausenbergerdorff von und zu", "עדה לאבלייס עדה לאבלייס עדה",
        "<h1>x</h1> &amp; <img src=\"file:///etc/passwd\">", "Z\u0301\u0302\u0303\u0304\u0305"}) {
    picture.texts = {{{100, 10, 60, 20}, name, SheetFont::plain, false}};
    const QImage ink = painted(picture, 1.0).convertToFormat(QImage::Format_Mono);
    const QRect place = QRegion(QBitmap::fromImage(ink)).boundingRect();
    EXPECT_FALSE(place.isEmpty());
    EXPECT_TRUE(QRect(99, 0, 63, 40).contains(place)) << name << place.left() << place.right();
  }
}

TEST_F(SheetPrinterTest, ALineThatIsTooLongTakesTwoOfItsSizeWhereThereIsRoom) {
  SheetPicture picture;
  picture.width = 200;
  picture.height = 40;
  const auto ink = [&](const char* words) {
    picture.texts = {{{4, 4, 192, 32}, words, SheetFont::plain, false}};
    const QImage image = painted(picture, 1.0).convertToFormat(QImage::Format_Mono);
    return QRegion(QBitmap::fromImage(image)).boundingRect();
  };
  const QRect one = ink("3 von 38 Aufgaben");
  const QRect two = ink("3 von 38 Aufgaben in 4 min 12 s und 10 richtig");
  EXPECT_GE(two.height(), one.height() + 12);
  EXPECT_GT(two.width(), 130);
  EXPECT_TRUE(QRect(4, 4, 192, 32).contains(two));
}

TEST_F(SheetPrinterTest, TheFullSheetIsOneSmallLandscapePageWithItsText) {
  const QString path = folder.filePath("sheet.pdf");
  ASSERT_EQ(printer.write_pdf(page, path).end, PrintResult::End::printed);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray written = file.readAll();
  EXPECT_TRUE(written.startsWith("%PDF"));
  EXPECT_LT(written.size(), 300'000);
  EXPECT_TRUE(written.contains("/ToUnicode")) << "its text can be searched";
  EXPECT_TRUE(written.contains("/Count 1"));
  const QByteArray box = written.mid(written.indexOf("/MediaBox [") + 11).split(']').first();
  const QList<QByteArray> corners = box.simplified().split(' ');
  EXPECT_GT(corners.at(2).toDouble(), corners.at(3).toDouble());
}

TEST_F(SheetPrinterTest, WhatCannotBeWrittenIsToldAndLeavesNothing) {
  const QString path = folder.filePath("missing/sheet.pdf");
  const PrintResult result = printer.write_pdf(page, path);
  EXPECT_EQ(result.end, PrintResult::End::failed);
  EXPECT_EQ(result.reason, "[1212]" + path.toStdString() + "\n[1016]");
  EXPECT_THAT(result.log_line, testing::StartsWith(path.toStdString() + ": "));
  EXPECT_EQ(printer.write_pdf(page, folder.path()).end, PrintResult::End::failed);
  QPrinter device(QPrinter::HighResolution);
  device.setOutputFormat(QPrinter::PdfFormat);
  device.setOutputFileName(path);
  EXPECT_EQ(printer.print_on(page, device).end, PrintResult::End::failed);
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
  device.setOutputFileName(folder.filePath("printed.pdf"));
  EXPECT_EQ(printer.print_on(page, device).end, PrintResult::End::printed);
  EXPECT_TRUE(QFile::exists(folder.filePath("printed.pdf")));
}

struct PrintDialogTest : SheetPrinterTest {
  PrintDialogTest() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    QSettings(QSettings::UserScope, "QtProject").setValue("FileDialog/lastVisited", "/mine");
    printer.print(page, [this](const PrintResult& result) { results.push_back(result); });
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* found = qobject_cast<QDialog*>(widget)) dialog = found;
    }
  }
  void press_return() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(dialog->windowHandle(), &press);
  }
  void let_go() {
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QPointer<QDialog> dialog;
  std::vector<PrintResult> results;
};

TEST_F(PrintDialogTest, ADialogThatIsClosedCancels) {
  ASSERT_TRUE(dialog);
  EXPECT_TRUE(results.empty()) << "it does not block";
  dialog->reject();
  let_go();
  EXPECT_EQ(results.at(0).end, PrintResult::End::cancelled);
  EXPECT_FALSE(dialog);
}

TEST_F(PrintDialogTest, WithoutAPrinterTheSheetGoesIntoAFileAndNothingIsRemembered) {
  QPointer<QFileDialog> files = qobject_cast<QFileDialog*>(dialog);
  if (!files) GTEST_SKIP() << "this machine has a printer";
  files->selectFile(folder.filePath("mine.pdf"));
  QApplication::processEvents();
  press_return();
  EXPECT_TRUE(results.empty()) << "a second press of the button that opened it";
  come_up(scheduler);
  press_return();
  EXPECT_FALSE(windows.newest()->settled()) << "a second press would hit the window behind";
  let_go();
  EXPECT_EQ(results.at(0).end, PrintResult::End::printed) << results[0].reason;
  EXPECT_TRUE(QFile::exists(folder.filePath("mine.pdf")));
  EXPECT_EQ(QSettings(QSettings::UserScope, "QtProject").value("FileDialog/lastVisited"), "/mine");
}

}  // namespace
}  // namespace tonarix
