#include "base/windows/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace tonarix {

void ToolkitTexts::speak(const QString& language) {
  QCoreApplication::removeTranslator(&catalogue_);
  if (catalogue_.load(QStringLiteral("qtbase_") + language,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&catalogue_);
  }
}

}  // namespace tonarix
