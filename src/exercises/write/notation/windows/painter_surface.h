#pragma once

#include <QPainter>

#include "exercises/write/notation/picture_factor.h"
#include "exercises/write/notation/raster_surface.h"

namespace tonarix {

struct PixelBox;

/// Draws the strokes of a picture at a factor, one unit of the painter being one pixel of the
/// screen. Lines fill whole pixels of the screen; from 1.5x on arcs and ellipses are smooth. At 1x
/// every stroke is the one that is told pixel by pixel.
class PainterSurface final : public RasterSurface {
 public:
  /// `width` and `height` of the picture in its own pixels.
  PainterSurface(QPainter& painter, PictureFactor factor, int width, int height)
      : RasterSurface(width, height), painter_(painter), factor_(factor) {}

  void clear() override;
  void line(Pixel from, Pixel to, Colour colour, int width) override;
  void dotted_line(Pixel from, Pixel to, Colour colour) override;
  void point(Pixel at, Colour colour) override;
  void arc(const Arc& arc, Colour colour) override;
  void fill_ellipse(const Ellipse& ellipse, Colour colour) override;

 private:
  void fill(const std::vector<PixelBox>& boxes, Colour colour);
  void fill(const PixelBox& box, Colour colour);
  QPointF centre_of(Pixel pixel) const;

  QPainter& painter_;
  PictureFactor factor_;
};

}  // namespace tonarix
