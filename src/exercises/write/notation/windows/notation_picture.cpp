#include "exercises/write/notation/windows/notation_picture.h"

#include <QPainter>

#include "exercises/write/notation/windows/painter_surface.h"

namespace tonarix {

NotationPicture::NotationPicture(int width, int height, PictureFactor factor)
    : width_(width),
      height_(height),
      factor_(factor),
      image_(factor.edge(width), factor.edge(height), QImage::Format_RGB32) {
  image_.fill(Qt::white);
}

void NotationPicture::draw(const std::function<void(RasterSurface&)>& drawing) {
  QPainter painter(&image_);
  PainterSurface surface(painter, factor_, width_, height_);
  drawing(surface);
}

void NotationPicture::show(QPainter& painter, QPointF place, const QRect& part) const {
  const QPoint at = painter.deviceTransform().map(place).toPoint();
  const QPoint from(factor_.edge(part.left()), factor_.edge(part.top()));
  const QPoint to(factor_.edge(part.right() + 1), factor_.edge(part.bottom() + 1));
  painter.save();
  painter.setWorldTransform(painter.deviceTransform().inverted() * painter.worldTransform());
  painter.drawImage(at, image_, QRect(from, QSize(to.x() - from.x(), to.y() - from.y())));
  painter.restore();
}

}  // namespace tonarix
