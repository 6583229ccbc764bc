#include "exercises/write/notation/windows/painter_surface.h"

#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "base/arithmetic.h"
#include "exercises/write/notation/stroke_pixels.h"

namespace tonarix {
namespace {

constexpr PictureFactor kPixelByPixel{2};

QColor to_qcolor(Colour colour) {
  return {colour.red, colour.green, colour.blue};
}

}  // namespace

void PainterSurface::clear() {
  fill(PixelBox{{0, 0}, width(), height()}, signal::white);
}

void PainterSurface::line(Pixel from, Pixel to, Colour colour, int width) {
  fill(line_pixels(from, to, width), colour);
}

void PainterSurface::dotted_line(Pixel from, Pixel to, Colour colour) {
  fill(dotted_pixels(from, to), colour);
}

void PainterSurface::point(Pixel at, Colour colour) {
  fill(PixelBox{at, 1, 1}, colour);
}

void PainterSurface::arc(const Arc& arc, Colour colour) {
  if (factor_ == kPixelByPixel) return fill(arc_pixels(arc), colour);
  constexpr double kDegrees = 180 / std::numbers::pi;
  // As far as the pixels reach: to their edges at the ends, and inward where the width is even.
  const double middle = arc.radius - (is_odd(arc.width) ? 0 : 0.5);
  const double start = arc.start * kDegrees - 0.5 / middle * kDegrees;
  const double length = std::fmod((arc.end - arc.start) * kDegrees + 360, 360);
  const QPointF reach = QPointF(middle, middle) * factor_.value();
  const QRectF box(centre_of(arc.centre) - reach, centre_of(arc.centre) + reach);
  QPainterPath path;
  path.arcMoveTo(box, start);
  path.arcTo(box, start, length + 1 / middle * kDegrees);
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.strokePath(
      path, QPen(to_qcolor(colour), arc.width * factor_.value(), Qt::SolidLine, Qt::FlatCap));
  painter_.restore();
}

void PainterSurface::fill_ellipse(const Ellipse& ellipse, Colour colour) {
  if (factor_ == kPixelByPixel) return fill(ellipse_pixels(ellipse), colour);
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(to_qcolor(colour));
  painter_.drawEllipse(centre_of(ellipse.centre), ellipse.half_width() * factor_.value(),
                       ellipse.half_height() * factor_.value());
  painter_.restore();
}

void PainterSurface::fill(const std::vector<PixelBox>& boxes, Colour colour) {
  for (const PixelBox& box : boxes) fill(box, colour);
}

void PainterSurface::fill(const PixelBox& box, Colour colour) {
  const QPoint from(factor_.edge(box.corner.x), factor_.edge(box.corner.y));
  const QPoint to(factor_.edge(box.corner.x + box.width), factor_.edge(box.corner.y + box.height));
  painter_.fillRect(QRect(from, QSize(to.x() - from.x(), to.y() - from.y())), to_qcolor(colour));
}

QPointF PainterSurface::centre_of(Pixel pixel) const {
  return {(pixel.x + 0.5) * factor_.value(), (pixel.y + 0.5) * factor_.value()};
}

}  // namespace tonarix
