#pragma once

#include <optional>

#include "exercises/play/key_range.h"
#include "exercises/play/spellings.h"

namespace tonarix {

/// A rectangle of whole pixels; right and bottom edge belong to what follows.
struct Box {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  constexpr int width() const { return right - left; }
  constexpr int height() const { return bottom - top; }
  constexpr bool contains(double x, double y) const {
    return x >= left && x < right && y >= top && y < bottom;
  }
  friend constexpr bool operator==(const Box&, const Box&) = default;
};

/// The common part of two boxes that meet.
Box common(const Box& one, const Box& other);

/// Where a pointer is: on a key and, unless it is above the key's bands, in one of them.
struct KeyPlace {
  int key = 0;
  std::optional<int> band;
  friend constexpr bool operator==(const KeyPlace&, const KeyPlace&) = default;
};

/// Where everything lies on a drawn piano keyboard, in pixels from its upper left corner. Drawing
/// and hit testing both read it, so what is seen is what is hit. Heights are told for a keyboard
/// 173 high and scale by one factor.
class KeyboardGeometry {
 public:
  /// Both ends of `keys` are white keys. At least 10 pixels for each white key.
  KeyboardGeometry(const KeyRange& keys, int width, int height);

  const KeyRange& keys() const { return keys_; }
  int width() const { return width_; }
  int height() const { return height_; }
  /// Pixels to one unit of height.
  double factor() const;

  bool has(int key) const { return key >= keys_.lowest && key <= keys_.highest; }
  /// A white key with what black ones cover of it, or the body of a black one. For these three the
  /// key is one that the keyboard has.
  Box key(int key) const;
  /// A band of a key, 1 (lowest) to 3. They share the key, on a white one what is below the black.
  Box band(const Field& field) const;
  /// The frame that shows which field the pointer is in; it lies within the band.
  Box outline(const Field& field) const;
  /// What is at a point, if it is on the keyboard.
  std::optional<KeyPlace> at(double x, double y) const;

 private:
  int y_of(int units) const;
  int boundary(int white) const;

  KeyRange keys_;
  int width_;
  int height_;
  int whites_;
};

}  // namespace tonarix
