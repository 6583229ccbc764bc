#pragma once

#include <vector>

#include "exercises/write/notation/raster_surface.h"

namespace tonarix {

/// A block of pixels.
struct PixelBox {
  Pixel corner;  ///< upper left
  int width;
  int height;
};

/// The pixels of each stroke, so that all surfaces agree on them.

/// A pen wider than one pixel is a square round each point, one of an even width reaching further
/// to the left and upward. Where a line passes between two pixels it takes the one nearer its
/// start. A line without length has no pixels.
std::vector<PixelBox> line_pixels(Pixel from, Pixel to, int width);
/// Pixels whose x and y add up to an even number.
std::vector<PixelBox> dotted_pixels(Pixel from, Pixel to);
/// Pixels from `width` / 2 within the radius to less than that outside of it; the ends are
/// straight.
std::vector<PixelBox> arc_pixels(const Arc& arc);
/// Pixels whose centre is inside or on the edge.
std::vector<PixelBox> ellipse_pixels(const Ellipse& ellipse);

}  // namespace tonarix
