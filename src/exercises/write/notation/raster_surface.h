#pragma once

#include "base/colour.h"

namespace tonarix {

/// A pixel of a picture; y grows downward.
struct Pixel {
  int x = 0;
  int y = 0;
  friend constexpr bool operator==(const Pixel&, const Pixel&) = default;
};

/// Part of a circle, counter-clockwise as seen on the screen from `start` to `end`, which are
/// radians from the right-hand side on. The inside stays as it was.
struct Arc {
  Pixel centre;
  int radius;
  double start;
  double end;
  int width;
};

/// `aspect` is height divided by width; `radius` is the longer half axis.
struct Ellipse {
  Pixel centre;
  int radius;
  double aspect;
  constexpr double half_width() const { return aspect > 1 ? radius / aspect : radius; }
  constexpr double half_height() const { return aspect > 1 ? radius : radius * aspect; }
};

/// What notation is drawn on. Coordinates are whole pixels of the picture; what lies outside is
/// left out. A line goes without its last point, whatever its direction.
class RasterSurface {
 public:
  RasterSurface(int width, int height) : width_(width), height_(height) {}
  virtual ~RasterSurface() = default;

  int width() const { return width_; }
  int height() const { return height_; }

  /// Makes all white.
  virtual void clear() = 0;
  virtual void line(Pixel from, Pixel to, Colour colour, int width) = 0;
  /// Every second pixel of a level or upright line, the same ones wherever it begins.
  virtual void dotted_line(Pixel from, Pixel to, Colour colour) = 0;
  virtual void point(Pixel at, Colour colour) = 0;
  virtual void arc(const Arc& arc, Colour colour) = 0;
  virtual void fill_ellipse(const Ellipse& ellipse, Colour colour) = 0;

 private:
  int width_;
  int height_;
};

}  // namespace tonarix
