#include "results/windows/sheet_painter.h"

#include <QFontMetricsF>
#include <algorithm>

#include "base/windows/style.h"
#include "base/windows/theme.h"

namespace tonarix {

namespace {

constexpr double kNarrowest = 0.6;  // of a text's natural width

QRectF rect_of(const SheetBox& box) {
  return {box.left, box.top, box.width, box.height};
}

QFont font_of(SheetFont font) {
  switch (font) {
    case SheetFont::title:
    case SheetFont::field:
      return theme::font(TextRole::title);
    case SheetFont::total:
      return theme::font(TextRole::number);
    case SheetFont::total_label:
      return theme::font(TextRole::choice);
    case SheetFont::heading: {
      QFont heading = theme::font(TextRole::note);
      heading.setBold(true);
      return heading;
    }
    case SheetFont::plain:
    case SheetFont::label:
      break;
  }
  return theme::font(TextRole::plain);
}

QColor ink_of(SheetFont font, SheetGround ground) {
  if (ground == SheetGround::paper) return Qt::black;
  if (font == SheetFont::title) return theme::colour(theme::title);
  const bool explains = font == SheetFont::label || font == SheetFont::heading;
  return theme::colour(explains ? theme::note : theme::ink);
}

void paint_text(QPainter& painter, const SheetText& text, SheetGround ground) {
  QFont font = font_of(text.font);
  font.setHintingPreference(QFont::PreferNoHinting);
  const QFontMetricsF metrics(font);
  QString words = QString::fromStdString(text.text);
  const double room = text.box.width;
  const double natural = metrics.horizontalAdvance(words);
  const double narrowing = natural > room ? std::max(room / natural, kNarrowest) : 1.0;
  if (natural * narrowing > room) {
    words = metrics.elidedText(words, Qt::ElideRight, room / narrowing);
  }
  painter.save();
  painter.translate(text.box.left, text.box.top);
  painter.scale(narrowing, 1.0);
  painter.setFont(font);
  painter.setPen(ink_of(text.font, ground));
  const auto side = text.at_right ? Qt::AlignRight : Qt::AlignLeft;
  painter.drawText(QRectF(0, 0, room / narrowing, text.box.height),
                   static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, words);
  painter.restore();
}

}  // namespace

void paint_sheet(QPainter& painter, const SheetPicture& picture, const QRectF& into) {
  if (picture.width <= 0 || picture.height <= 0) return;
  const double factor = std::min(into.width() / picture.width, into.height() / picture.height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setLayoutDirection(Qt::LeftToRight);
  painter.translate(into.left() + (into.width() - picture.width * factor) / 2, into.top());
  painter.scale(factor, factor);
  for (const SheetSurface& surface : picture.surfaces) {
    const QColor fill = theme::colour(surface.fill);
    const QColor line = surface.framed ? theme::colour(theme::hairline) : fill;
    draw_surface(painter, rect_of(surface.box), fill, line, surface.corner);
  }
  for (const SheetText& text : picture.texts) paint_text(painter, text, picture.ground);
  painter.restore();
}

}  // namespace tonarix
