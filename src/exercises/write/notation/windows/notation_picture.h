#pragma once

#include <QImage>
#include <functional>

#include "exercises/write/notation/picture_factor.h"
#include "exercises/write/notation/raster_surface.h"

class QPainter;

namespace tonarix {

/// A picture of notation that keeps what is drawn on it, in pixels of the screen.
class NotationPicture {
 public:
  /// White; `width` and `height` are those of the picture at 1x.
  NotationPicture(int width, int height, PictureFactor factor);

  void draw(const std::function<void(RasterSurface&)>& drawing);
  PictureFactor factor() const { return factor_; }
  const QImage& image() const { return image_; }

  /// Shows a part of the picture, in its pixels at 1x, at a place of the widget: each pixel is one
  /// of the screen, whatever the scaling of the screen.
  void show(QPainter& painter, QPointF place, const QRect& part) const;

 private:
  int width_;
  int height_;
  PictureFactor factor_;
  QImage image_;
};

}  // namespace tonarix
