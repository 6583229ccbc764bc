#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QPointer>
#include <QPrinter>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>

#include "base/windows/theme.h"
#include "results/windows/qt_sheet_printer.h"
#include "results/windows/sheet_painter.h"
#include "support/full_sheet.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

QImage painted(const SheetPicture& picture, double factor) {
  QImage image(int(picture.width * factor), int(picture.height * factor),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  paint_sheet(painter, picture, image.rect());
  painter.end();
  return image;
}

struct SheetPrinterTest : testing::Test {
  KeyTexts texts;
  QtSheetPrinter printer{texts, [] { return nullptr; }};
  QTemporaryDir folder;
  SheetPicture page = sheet_picture(full_sheet(), SheetGround::paper);
};

TEST_F(SheetPrinterTest, FieldsHaveTheirColourAtAnyResolution) {
  const SheetPicture screen = sheet_picture(full_sheet(), SheetGround::screen);
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
    const QImage image = painted(picture, 1.0);
    int left = image.width(), right = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
      const int x = i % image.width();
      if (image.pixelColor(x, i / image.width()).lightness() > 200) continue;
      left = std::min(left, x);
      right = std::max(right, x);
    }
    EXPECT_TRUE(99 <= left && left < right && right <= 161) << name << left << ".." << right;
  }
}

TEST_F(SheetPrinterTest, TheFullSheetIsOneSmallLandscapePageWithItsText) {
  const QString path = folder.filePath("sheet.pdf");
  ASSERT_EQ(printer.write_pdf(page, path).end, PrintResult::End::printed);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray content = file.readAll();
  EXPECT_TRUE(content.startsWith("%PDF"));
  EXPECT_LT(content.size(), 300'000);
  EXPECT_TRUE(content.contains("/ToUnicode")) << "its text can be searched";
  EXPECT_TRUE(content.contains("/Count 1"));
  const QByteArray box = content.mid(content.indexOf("/MediaBox [") + 11).split(']').first();
  const QList<QByteArray> corners = box.simplified().split(' ');
  EXPECT_GT(corners.at(2).toDouble(), corners.at(3).toDouble());
}

TEST_F(SheetPrinterTest, WhatCannotBeWrittenIsToldAndLeavesNothing) {
  const QString path = folder.filePath("missing/sheet.pdf");
  const PrintResult result = printer.write_pdf(page, path);
  EXPECT_EQ(result.end, PrintResult::End::failed);
  EXPECT_THAT(result.reason, testing::StartsWith("[1212]" + path.toStdString() + "\n"));
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
  QMetaObject::invokeMethod(files, "accept");
  let_go();
  EXPECT_EQ(results.at(0).end, PrintResult::End::printed) << results[0].reason;
  EXPECT_TRUE(QFile::exists(folder.filePath("mine.pdf")));
  EXPECT_EQ(QSettings(QSettings::UserScope, "QtProject").value("FileDialog/lastVisited"), "/mine");
}

}  // namespace
}  // namespace tonarix
