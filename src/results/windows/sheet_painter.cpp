#include "results/windows/sheet_painter.h"

#include <QFontMetricsF>
#include <QTextOption>
#include <algorithm>

#include "base/windows/style.h"
#include "base/windows/theme.h"

namespace tonarix {

namespace {

constexpr double kSmallestLine = 0.75;  // scale of a long text on one line
constexpr double kTwoLines = 0.62;      // and on two
constexpr double kFilledLines = 1.75;   // of two lines, as words break early

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

/// How a text fits into its box: at full size, also on two lines where the box is that high; else
/// smaller on one line, or smaller still on two.
struct Fit {
  double scale = 1;
  bool two_lines = false;
};

Fit fit_of(double natural_width, double room, bool room_for_two) {
  if (natural_width <= room) return {};
  if (room_for_two && natural_width <= room * kFilledLines) return {1, true};
  if (natural_width * kSmallestLine <= room) return {room / natural_width, false};
  return {kTwoLines, true};
}

void paint_text(QPainter& painter, const SheetText& text, SheetGround ground) {
  QFont font = font_of(text.font);
  font.setHintingPreference(QFont::PreferNoHinting);
  const QFontMetricsF metrics(font);
  QString words = QString::fromStdString(text.text);
  const Fit fit = fit_of(metrics.horizontalAdvance(words), text.box.width,
                         2 * metrics.lineSpacing() <= text.box.height);
  const QRectF room(0, 0, text.box.width / fit.scale, text.box.height / fit.scale);
  QTextOption option(Qt::AlignVCenter | (text.at_right ? Qt::AlignRight : Qt::AlignLeft));
  option.setTextDirection(Qt::LeftToRight);
  option.setWrapMode(fit.two_lines ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                   : QTextOption::NoWrap);
  if (fit.two_lines) {
    words = metrics.elidedText(words.trimmed(), Qt::ElideRight, room.width() * kFilledLines);
  }
  painter.save();
  painter.translate(text.box.left, text.box.top);
  painter.scale(fit.scale, fit.scale);
  painter.setFont(font);
  painter.setPen(ink_of(text.font, ground));
  painter.drawText(room, words, option);
  painter.restore();
}

}  // namespace

void paint_sheet(QPainter& painter, const SheetPicture& picture, const QRectF& into) {
  if (picture.width <= 0 || picture.height <= 0) return;
  const double factor = std::min(into.width() / picture.width, into.height() / picture.height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
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
