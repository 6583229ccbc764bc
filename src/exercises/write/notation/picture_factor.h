#pragma once

#include <algorithm>

namespace tonarix {

/// How many pixels of the screen stand for one pixel of a picture, counted in halves: 2 is 1x, 3 is
/// 1.5x.
struct PictureFactor {
  int halves = 2;

  constexpr double value() const { return halves / 2.0; }
  /// Where a pixel of the picture begins on the screen, so that neighbours neither overlap nor
  /// leave a gap.
  constexpr int edge(int pixel) const { return (pixel * halves) >> 1; }
  friend constexpr bool operator==(PictureFactor, PictureFactor) = default;

  /// The largest one at which a picture fits into the room on the screen, at least 1x.
  static constexpr PictureFactor largest(int width, int height, int room_width, int room_height) {
    return {std::max(2, std::min(2 * room_width / width, 2 * room_height / height))};
  }
};

}  // namespace tonarix
