#include "results/windows/qt_sheet_printer.h"

#include <QDir>
#include <QFileDialog>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <cerrno>
#include <map>
#include <memory>

#include "base/module_texts.h"
#include "base/system_failure.h"
#include "base/windows/dialog_guard.h"
#include "base/windows/screen_room.h"
#include "results/windows/sheet_painter.h"

namespace tonarix {

namespace {

constexpr double kMargin = 12;  // mm

/// The toolkit's file dialog notes folders in the account's settings as it goes; this puts back
/// what stood there.
class DialogMemory {
 public:
  DialogMemory() {
    Group group;
    for (const QString& key : group.allKeys()) before_[key] = group.value(key);
  }
  ~DialogMemory() {
    Group group;
    group.remove(QString());
    for (const auto& [key, value] : before_) group.setValue(key, value);
  }
  DialogMemory(const DialogMemory&) = delete;
  DialogMemory& operator=(const DialogMemory&) = delete;

 private:
  struct Group : QSettings {
    Group() : QSettings(QSettings::UserScope, QStringLiteral("QtProject")) {
      beginGroup(QStringLiteral("FileDialog"));
    }
  };
  std::map<QString, QVariant> before_;
};

bool paint_page(const SheetPicture& picture, QPagedPaintDevice& page) {
  QPainter painter;
  if (!painter.begin(&page)) return false;
  paint_sheet(painter, picture, painter.viewport());
  return painter.end();
}

}  // namespace

QString QtSheetPrinter::word(TextKey key) const {
  return QString::fromStdString(texts_.Wort(key));
}

PrintResult QtSheetPrinter::not_written(const QString& path, const QString& system_words) const {
  const std::error_code error = last_system_error();
  const std::string file = QDir::toNativeSeparators(path).toStdString();
  return {PrintResult::End::failed,
          texts_.Wort(text::file_not_written) + file + "\n" + failure_words(texts_, error),
          file + ": " + system_words.toStdString()};
}

void QtSheetPrinter::print(const SheetPicture& picture, std::function<void(PrintResult)> done) {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) {
    ask_for_file(picture, std::move(done));
  } else {
    ask_for_printer(picture, std::move(done));
  }
}

void QtSheetPrinter::ask_for_printer(const SheetPicture& picture,
                                     std::function<void(PrintResult)> done) {
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  printer->setPageOrientation(QPageLayout::Landscape);
  printer->setDocName(QString::fromStdString(picture.name));
  auto* dialog = new QPrintDialog(printer.get(), presenter_.newest_visible());
  dialog->setWindowTitle(word(text::print_caption));
  open(*dialog, [this, picture, printer, done = std::move(done)](int answer) {
    if (answer == QDialog::Accepted) {
      done(print_on(picture, *printer));
    } else {
      done({PrintResult::End::cancelled, ""});
    }
  });
}

void QtSheetPrinter::ask_for_file(const SheetPicture& picture,
                                  std::function<void(PrintResult)> done) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  auto* dialog = new QFileDialog(presenter_.newest_visible(), word(text::save_as_pdf), folder,
                                 word(text::pdf_files) + QStringLiteral(" (*.pdf)"));
  // The desktop's own speaks the desktop's language.
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QStringLiteral("pdf"));
  dialog->selectFile(word(text::sheet_name) + QStringLiteral(".pdf"));
  open(*dialog, [this, dialog, picture, done = std::move(done)](int answer) {
    const QStringList files = dialog->selectedFiles();
    if (answer == QDialog::Accepted && !files.isEmpty()) {
      done(write_pdf(picture, files.first()));
    } else {
      done({PrintResult::End::cancelled, ""});
    }
  });
}

void QtSheetPrinter::open(QDialog& dialog, std::function<void(int answer)> finished) {
  dialog.setAttribute(Qt::WA_DeleteOnClose);
  // The print dialog's button for a file opens a file dialog too.
  QObject::connect(&dialog, &QObject::destroyed, [memory = std::make_shared<DialogMemory>()] {});
  QObject::connect(&dialog, &QDialog::finished, &dialog,
                   [this, finished = std::move(finished)](int answer) {
                     presenter_.uncovered();
                     finished(answer);
                   });
  dialog.resize(dialog.size().boundedTo(room_on(*dialog.screen()).size()));
  new DialogGuard(dialog, scheduler_);
  dialog.open();
}

PrintResult QtSheetPrinter::write_pdf(const SheetPicture& picture, const QString& path) const {
  errno = 0;
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return not_written(path, file.errorString());
  bool painted = false;
  {
    QPdfWriter page(&file);
    page.setTitle(QString::fromStdString(picture.name));
    page.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                   QMarginsF(kMargin, kMargin, kMargin, kMargin),
                                   QPageLayout::Millimeter));
    painted = paint_page(picture, page);
  }
  if (!painted) file.cancelWriting();
  if (!file.commit()) return not_written(path, file.errorString());
  return {};
}

PrintResult QtSheetPrinter::print_on(const SheetPicture& picture, QPrinter& printer) const {
  const bool to_file = !printer.outputFileName().isEmpty();
  if (to_file && printer.outputFormat() == QPrinter::PdfFormat) {
    return write_pdf(picture, printer.outputFileName());
  }
  const bool painted = paint_page(picture, printer);
  const bool broken =
      printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
  if (!painted || broken) {
    return {PrintResult::End::failed, texts_.Wort(text::printer_broke_off)};
  }
  return {};
}

}  // namespace tonarix
