#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QPainter;

namespace tonarix {

/// A name as it is printed on a piano key: a stem in the key's font and up to two accidentals
/// behind it, which are drawn.
struct KeyName {
  QString stem;
  QChar sign;     ///< 'b' or '#'
  int signs = 0;  ///< 0 to 2

  /// Takes "fis", "f#", "fbb"; a single "b" is a stem, and so is the first of "bb".
  explicit KeyName(const QString& name);

  /// Width in the font's pixels.
  double width(const QFont& font) const;
  /// Prints it with its left edge and base line at a point.
  void draw(QPainter& painter, const QPointF& at, const QFont& font, const QColor& colour) const;
};

/// The font of a size in pixels, in which all names are printed.
QFont key_font(int pixels);

}  // namespace tonarix
