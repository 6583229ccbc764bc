#pragma once

#include <QPagedPaintDevice>
#include <functional>
#include <string>

#include "base/texts.h"
#include "results/sheet_printer.h"

class QPrinter;
class QWidget;

namespace tonarix {

/// Prints to a printer of the user's choice, or to a PDF file where there is none. Each job begins
/// anew: neither printer nor folder are kept for the next user.
class QtSheetPrinter final : public SheetPrinter {
 public:
  /// `parent` gives the window that the dialogs belong to, or nullptr.
  QtSheetPrinter(const Texts& texts, std::function<QWidget*()> parent)
      : texts_(texts), parent_(std::move(parent)) {}

  void print(const SheetPicture& picture, std::function<void(PrintResult)> done) override;

  /// Writes the sheet as one A4 page in landscape, whole or not at all.
  PrintResult write_pdf(const SheetPicture& picture, const QString& path) const;
  /// Prints one page on the printer as it stands.
  PrintResult print_on(const SheetPicture& picture, QPrinter& printer) const;

 private:
  void ask_for_printer(const SheetPicture& picture, std::function<void(PrintResult)> done);
  void ask_for_file(const SheetPicture& picture, std::function<void(PrintResult)> done);
  PrintResult not_written(const QString& path, const QString& system_words) const;
  QString word(TextKey key) const;

  const Texts& texts_;
  std::function<QWidget*()> parent_;
};

}  // namespace tonarix
