#pragma once

#include <QSet>
#include <QString>

namespace tonarix {

/// The caption for a widget, its "&" written so that they show.
QString plain_caption(const QString& caption);

/// The caption with its letter for Alt marked: the first letter of a word that is still free in the
/// window, else any free letter of it, else none. The letter is added to `taken`.
QString caption_with_mnemonic(const QString& caption, QSet<QChar>& taken);

/// The caption as it reads, without the marks of letters.
QString without_mnemonic(const QString& caption);

}  // namespace tonarix
