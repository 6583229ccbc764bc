#include "exercises/write/notation/stroke_pixels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "base/arithmetic.h"

namespace tonarix {
namespace {

/// `step` of `steps` on the way of `distance`, halves towards the start.
int part_of_way(int distance, int step, int steps) {
  return Sgn(distance) * ((2 * std::abs(distance) * step + steps - 1) / (2 * steps));
}

bool within_angles(const Arc& arc, int dx, int dy) {
  constexpr double kTurn = 2 * std::numbers::pi;
  const auto after_start = [&](double angle) {
    return std::fmod(angle - arc.start + 2 * kTurn, kTurn);
  };
  return after_start(std::atan2(-dy, dx)) <= after_start(arc.end);
}

}  // namespace

std::vector<PixelBox> line_pixels(Pixel from, Pixel to, int width) {
  const int dx = to.x - from.x;
  const int dy = to.y - from.y;
  const int steps = std::max(std::abs(dx), std::abs(dy));
  if (steps == 0) return {};
  const int reach = width / 2;
  if (dx == 0 || dy == 0) {
    const Pixel last{to.x - Sgn(dx), to.y - Sgn(dy)};
    return {{{std::min(from.x, last.x) - reach, std::min(from.y, last.y) - reach},
             std::abs(last.x - from.x) + width,
             std::abs(last.y - from.y) + width}};
  }
  std::vector<PixelBox> boxes;
  for (int step = 0; step < steps; ++step) {
    boxes.push_back({{from.x + part_of_way(dx, step, steps) - reach,
                      from.y + part_of_way(dy, step, steps) - reach},
                     width,
                     width});
  }
  return boxes;
}

std::vector<PixelBox> dotted_pixels(Pixel from, Pixel to) {
  std::vector<PixelBox> dots;
  for (const PixelBox& run : line_pixels(from, to, 1)) {
    for (int i = 0; i < run.width * run.height; ++i) {
      const Pixel at{run.corner.x + i % run.width, run.corner.y + i / run.width};
      if (!is_odd(at.x + at.y)) dots.push_back({at, 1, 1});
    }
  }
  return dots;
}

std::vector<PixelBox> arc_pixels(const Arc& arc) {
  std::vector<PixelBox> pixels;
  // Twice the distances, which are whole numbers then.
  const int inner = 2 * arc.radius - arc.width;
  const int outer = 2 * arc.radius + arc.width;
  const int reach = outer / 2;
  for (int dy = -reach; dy <= reach; ++dy) {
    for (int dx = -reach; dx <= reach; ++dx) {
      const int distance = 4 * (dx * dx + dy * dy);
      if (distance < inner * inner || distance >= outer * outer) continue;
      if (within_angles(arc, dx, dy)) {
        pixels.push_back({{arc.centre.x + dx, arc.centre.y + dy}, 1, 1});
      }
    }
  }
  return pixels;
}

std::vector<PixelBox> ellipse_pixels(const Ellipse& ellipse) {
  std::vector<PixelBox> rows;
  const int high = static_cast<int>(ellipse.half_height());
  for (int dy = -high; dy <= high; ++dy) {
    const double rest = 1 - std::pow(dy / ellipse.half_height(), 2);
    const int wide = static_cast<int>(ellipse.half_width() * std::sqrt(rest));
    rows.push_back({{ellipse.centre.x - wide, ellipse.centre.y + dy}, 2 * wide + 1, 1});
  }
  return rows;
}

}  // namespace tonarix
