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

TEST_F(SheetPrinterTest, FieldsHaveTheirColourOnTheScreenAtAnyResolution) {
  const SheetPicture screen = sheet_picture(full_sheet(), SheetGround::screen);
  for (const double factor : {1.0, 1.5, 2.0}) {
    const QImage image = painted(screen, factor);
    for (const SheetSurface& surface : screen.surfaces) {
      if (surface.framed) continue;
      const QPointF inside((surface.box.left + 4) * factor,
                           (surface.box.top + surface.box.height / 2) * factor);
      EXPECT_EQ(image.pixelColor(inside.toPoint()), theme::colour(surface.fill));
    }
  }
}

TEST_F(SheetPrinterTest, NoTextLeavesItsBoxHoweverLong) {
  SheetPicture picture;
  picture.width = 300;
  picture.height = 40;
  for (const char* name :
       {"Wolfeschlegelsteinhausenbergerdorff von und zu Wachsenberg", "עדה לאבלייס עדה לאבלייס עדה",
        "<h1>x</h1> &amp; <img src=\"file:///etc/passwd\">",
        "Z\u0301\u0302\u0303\u0304\u0305 e\u0301"}) {
    picture.texts = {{{100, 10, 60, 20}, name, SheetFont::plain, false}};
    const QImage image = painted(picture, 1.0);
    bool inked = false;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(x, y).lightness() > 200) continue;
        inked = true;
        EXPECT_TRUE(x >= 99 && x <= 161) << name << " at " << x;
      }
    }
    EXPECT_TRUE(inked) << name;
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
  ASSERT_EQ(corners.size(), 4);
  EXPECT_GT(corners[2].toDouble(), corners[3].toDouble());
}

TEST_F(SheetPrinterTest, AFileThatCannotBeWrittenIsToldAndLeavesNothing) {
  const QString path = folder.filePath("missing/sheet.pdf");
  const PrintResult result = printer.write_pdf(page, path);
  EXPECT_EQ(result.end, PrintResult::End::failed);
  EXPECT_THAT(result.reason, testing::StartsWith("[1212]" + path.toStdString() + "\n"));
  const PrintResult folder_result = printer.write_pdf(page, folder.path());
  EXPECT_EQ(folder_result.end, PrintResult::End::failed);
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(SheetPrinterTest, APrinterThatWritesAFileGoesTheSameWay) {
  QPrinter device(QPrinter::HighResolution);
  device.setOutputFormat(QPrinter::PdfFormat);
  device.setOutputFileName(folder.filePath("printed.pdf"));
  EXPECT_EQ(printer.print_on(page, device).end, PrintResult::End::printed);
  EXPECT_TRUE(QFile::exists(folder.filePath("printed.pdf")));
  device.setOutputFileName(folder.filePath("missing/printed.pdf"));
  EXPECT_EQ(printer.print_on(page, device).end, PrintResult::End::failed);
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

TEST_F(PrintDialogTest, ADialogThatIsClosedCancelsAndRemembersNothing) {
  ASSERT_TRUE(dialog);
  EXPECT_TRUE(results.empty()) << "it does not block";
  dialog->reject();
  let_go();
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].end, PrintResult::End::cancelled);
  EXPECT_FALSE(dialog);
  EXPECT_EQ(QSettings(QSettings::UserScope, "QtProject").value("FileDialog/lastVisited"), "/mine");
}

TEST_F(PrintDialogTest, WithoutAPrinterTheSheetGoesIntoAFile) {
  QPointer<QFileDialog> files = qobject_cast<QFileDialog*>(dialog);
  if (!files) GTEST_SKIP() << "this machine has a printer";
  files->selectFile(folder.filePath("mine.pdf"));
  QMetaObject::invokeMethod(files, "accept");
  let_go();
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].end, PrintResult::End::printed) << results[0].reason;
  EXPECT_TRUE(QFile::exists(folder.filePath("mine.pdf")));
  EXPECT_EQ(QSettings(QSettings::UserScope, "QtProject").value("FileDialog/lastVisited"), "/mine");
}

}  // namespace
}  // namespace tonarix
