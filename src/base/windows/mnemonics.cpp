#include "base/windows/mnemonics.h"

namespace tonarix {
namespace {

/// Only letters that every keyboard has.
bool usable(QChar letter) {
  return letter >= QLatin1Char('a') && letter <= QLatin1Char('z');
}

}  // namespace

QString plain_caption(const QString& caption) {
  return QString(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString caption_with_mnemonic(const QString& caption, QSet<QChar>& taken) {
  qsizetype found = -1;
  for (const bool only_initials : {true, false}) {
    for (qsizetype i = 0; i < caption.size() && found < 0; ++i) {
      const bool initial = i == 0 || !caption[i - 1].isLetterOrNumber();
      const QChar letter = caption[i].toLower();
      if ((initial || !only_initials) && usable(letter) && !taken.contains(letter)) found = i;
    }
  }
  if (found < 0) return plain_caption(caption);
  taken.insert(caption[found].toLower());
  return plain_caption(caption.left(found)) + QLatin1Char('&') + plain_caption(caption.mid(found));
}

QString without_mnemonic(const QString& caption) {
  QString words;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == QLatin1Char('&') && i + 1 < caption.size()) ++i;
    words += caption[i];
  }
  return words;
}

}  // namespace tonarix
