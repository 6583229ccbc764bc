#pragma once

#include <vector>

#include "exercises/write/notation/stroke_pixels.h"

namespace tonarix {

/// A picture as a field of colours, drawn pixel by pixel.
class PixelRaster final : public RasterSurface {
 public:
  PixelRaster(int width, int height) : RasterSurface(width, height) { clear(); }

  Colour at(int x, int y) const { return pixels_[place(x, y)]; }
  bool operator==(const PixelRaster& other) const { return pixels_ == other.pixels_; }

  void clear() override {
    pixels_.assign(static_cast<std::size_t>(width()) * static_cast<std::size_t>(height()),
                   signal::white);
  }
  void line(Pixel from, Pixel to, Colour colour, int width) override {
    fill(line_pixels(from, to, width), colour);
  }
  void dotted_line(Pixel from, Pixel to, Colour colour) override {
    fill(dotted_pixels(from, to), colour);
  }
  void point(Pixel at, Colour colour) override { fill({{at, 1, 1}}, colour); }
  void arc(const Arc& arc, Colour colour) override { fill(arc_pixels(arc), colour); }
  void fill_ellipse(const Ellipse& ellipse, Colour colour) override {
    fill(ellipse_pixels(ellipse), colour);
  }

 private:
  std::size_t place(int x, int y) const { return static_cast<std::size_t>(y * width() + x); }
  void fill(const std::vector<PixelBox>& boxes, Colour colour) {
    for (const PixelBox& box : boxes) {
      for (int i = 0; i < box.width * box.height; ++i) {
        const int x = box.corner.x + i % box.width;
        const int y = box.corner.y + i / box.width;
        if (x >= 0 && x < width() && y >= 0 && y < height()) pixels_[place(x, y)] = colour;
      }
    }
  }

  std::vector<Colour> pixels_;
};

}  // namespace tonarix
