#pragma once

#include <cstdint>

namespace tonarix {

/// A colour by its red, green and blue parts, 0 to 255 each.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

constexpr Colour RGB(int red, int green, int blue) {
  return {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
          static_cast<std::uint8_t>(blue)};
}

/// A colour word, blue in the upper byte and red in the lowest.
constexpr Colour blue_green_red(std::uint32_t word) {
  return RGB(static_cast<int>(word & 0xFF), static_cast<int>((word >> 8) & 0xFF),
             static_cast<int>((word >> 16) & 0xFF));
}

/// The signal colours that several windows share.
namespace signal {
inline constexpr Colour open = blue_green_red(0xC0FFFF);    // light yellow: option group is open
inline constexpr Colour locked = blue_green_red(0xC0C0FF);  // light red: option group is locked
inline constexpr Colour sound = blue_green_red(0xFFC0C0);   // light blue: sound groups
inline constexpr Colour marked = blue_green_red(0x80FF80);  // green: marked for a test
inline constexpr Colour right = RGB(0, 255, 0);
inline constexpr Colour wrong = RGB(255, 0, 0);
inline constexpr Colour given = RGB(228, 228, 224);  // the solution, told by the program
inline constexpr Colour black = RGB(0, 0, 0);
inline constexpr Colour white = RGB(255, 255, 255);
inline constexpr Colour finished = RGB(255, 255, 0);  // yellow: the way out is the way on
inline constexpr Colour leaving = RGB(255, 0, 255);
}  // namespace signal

}  // namespace tonarix
