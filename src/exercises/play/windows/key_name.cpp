#include "exercises/play/windows/key_name.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "base/windows/theme.h"

namespace tonarix {
namespace {

// Accidentals in parts of the font's size: from the left edge, down from the base line.
constexpr double kStep = 0.06;  // before each sign
constexpr double kFlatWidth = 0.38;
constexpr double kSharpWidth = 0.46;
constexpr double kStroke = 0.08;

bool is_sign(QChar letter) {
  return letter == QLatin1Char('b') || letter == QLatin1Char('#');
}

QPainterPath flat() {
  QPainterPath path(QPointF(0.05, -0.74));
  path.lineTo(0.05, -0.02);
  path.cubicTo(0.2, -0.1, 0.34, -0.2, 0.34, -0.33);
  path.cubicTo(0.34, -0.47, 0.16, -0.47, 0.05, -0.34);
  return path;
}

QPainterPath sharp() {
  QPainterPath path;
  const double lines[][4] = {{0.15, -0.66, 0.15, 0.04},
                             {0.31, -0.72, 0.31, -0.02},
                             {0.02, -0.41, 0.44, -0.51},
                             {0.02, -0.17, 0.44, -0.27}};
  for (const auto& line : lines) {
    path.moveTo(line[0], line[1]);
    path.lineTo(line[2], line[3]);
  }
  return path;
}

double sign_width(QChar sign) {
  return kStep + (sign == QLatin1Char('b') ? kFlatWidth : kSharpWidth);
}

}  // namespace

KeyName::KeyName(const QString& name) : stem(name) {
  if (name.size() < 2 || !is_sign(name.back())) return;
  sign = name.back();
  signs = name.size() > 2 && is_sign(name[name.size() - 2]) ? 2 : 1;
  stem.chop(signs);
}

double KeyName::width(const QFont& font) const {
  return QFontMetricsF(font).horizontalAdvance(stem) + signs * sign_width(sign) * font.pixelSize();
}

void KeyName::draw(QPainter& painter, const QPointF& at, const QFont& font,
                   const QColor& colour) const {
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(at, stem);
  const double em = font.pixelSize();
  painter.setPen(QPen(colour, std::max(kStroke, 1 / em), Qt::SolidLine, Qt::FlatCap));
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i < signs; ++i) {
    painter.save();
    painter.translate(at.x() + width(font) - (signs - i) * sign_width(sign) * em + kStep * em,
                      at.y());
    painter.scale(em, em);
    painter.drawPath(sign == QLatin1Char('b') ? flat() : sharp());
    painter.restore();
  }
}

QFont key_font(int pixels) {
  QFont font = theme::font(TextRole::plain);
  font.setPixelSize(pixels);
  return font;
}

}  // namespace tonarix
