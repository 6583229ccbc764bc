#pragma once

#include <QTranslator>

namespace tonarix {

/// The words of the toolkit's own dialogs, from its own catalogues.
class ToolkitTexts {
 public:
  /// By the language's code, "de". Where the computer lacks that catalogue they stay English.
  void speak(const QString& language);

 private:
  QTranslator catalogue_;
};

}  // namespace tonarix
