#pragma once

#include <QPagedPaintDevice>
#include <functional>

#include "base/texts.h"
#include "base/windows/presenter.h"
#include "results/sheet_printer.h"

class QDialog;
class QPrinter;

namespace tonarix {

/// Prints to a printer of the user's choice, or to a PDF file where there is none. Each job begins
/// anew: neither printer nor folder are kept for the next user.
class QtSheetPrinter final : public SheetPrinter {
 public:
  /// The dialogs belong to the newest visible window.
  QtSheetPrinter(const Scheduler& scheduler, const Texts& texts, Presenter& presenter)
      : scheduler_(scheduler), texts_(texts), presenter_(presenter) {}

  void print(const SheetPicture& picture, std::function<void(PrintResult)> done) override;

  /// Writes the sheet as one A4 page in landscape, whole or not at all.
  PrintResult write_pdf(const SheetPicture& picture, const QString& path) const;
  /// Prints one page on the printer as it stands.
  PrintResult print_on(const SheetPicture& picture, QPrinter& printer) const;

 private:
  void ask_for_printer(const SheetPicture& picture, std::function<void(PrintResult)> done);
  void ask_for_file(const SheetPicture& picture, std::function<void(PrintResult)> done);
  /// `finished` runs with the answer, the windows behind guarded against a press meant for the
  /// dialog.
  void open(QDialog& dialog, std::function<void(int answer)> finished);
  PrintResult not_written(const QString& path, const QString& system_words) const;
  QString word(TextKey key) const;

  const Scheduler& scheduler_;
  const Texts& texts_;
  Presenter& presenter_;
};

}  // namespace tonarix
