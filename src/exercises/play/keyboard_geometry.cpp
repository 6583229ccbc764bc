#include "exercises/play/keyboard_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tonarix {
namespace {

// Heights in units, from the upper edge.
constexpr int kHeight = 173;
constexpr int kBlackBottom = 97;
// Upper edge of each band by number, before them the lower edge of the lowest.
constexpr std::array kWhiteBands{kHeight, 148, 123, kBlackBottom};
constexpr std::array kBlackBands{kBlackBottom, 65, 32, 0};

constexpr double kBlackHalf = 0.31;  // of the width of a white key
// Of a narrow key's width, at most, beside its outline.
constexpr int kWhiteParts = 12;
constexpr int kBlackParts = 24;

/// White keys below a key, from key 0.
int whites_below(int key) {
  constexpr std::array kInOctave{0, 1, 1, 2, 2, 3, 4, 4, 5, 5, 6, 6};
  const int pitch = pitch_class_of_key(key);
  return (key - pitch) / 12 * 7 + kInOctave[static_cast<std::size_t>(pitch)];
}

}  // namespace

Box common(const Box& one, const Box& other) {
  return {std::max(one.left, other.left), std::max(one.top, other.top),
          std::min(one.right, other.right), std::min(one.bottom, other.bottom)};
}

KeyboardGeometry::KeyboardGeometry(const KeyRange& keys, int width, int height)
    : keys_(keys),
      width_(width),
      height_(height),
      whites_(whites_below(keys.highest) - whites_below(keys.lowest) + 1) {}

double KeyboardGeometry::factor() const {
  return static_cast<double>(height_) / kHeight;
}

int KeyboardGeometry::y_of(int units) const {
  return static_cast<int>(std::lround(units * factor()));
}

int KeyboardGeometry::boundary(int white) const {
  return static_cast<int>(std::lround(static_cast<double>(white) * width_ / whites_));
}

Box KeyboardGeometry::key(int key) const {
  const int white = whites_below(key) - whites_below(keys_.lowest);
  if (!is_black(key)) return {boundary(white), 0, boundary(white + 1), height_};
  const int half = static_cast<int>(std::lround(kBlackHalf * width_ / whites_));
  return {boundary(white) - half, 0, boundary(white) + half, y_of(kBlackBottom)};
}

Box KeyboardGeometry::band(const Field& field) const {
  const auto& edges = is_black(field.key) ? kBlackBands : kWhiteBands;
  const auto band = static_cast<std::size_t>(field.band);
  Box box = key(field.key);
  box.top = y_of(edges.at(band));
  box.bottom = y_of(edges.at(band - 1));
  return box;
}

Box KeyboardGeometry::outline(const Field& field) const {
  const bool black = is_black(field.key);
  const int top = (3 - field.band) * (black ? 33 : 25) + (black ? 0 : 98);
  const Box key = this->key(field.key);
  const int most = std::max(1, key.width() / (black ? kBlackParts : kWhiteParts));
  const int side = std::min(y_of(black ? 1 : 3), most);
  return common({key.left + side, y_of(top), key.right - side, y_of(top + (black ? 31 : 24))},
                band(field));
}

std::optional<KeyPlace> KeyboardGeometry::at(double x, double y) const {
  std::optional<KeyPlace> place;
  for (int number = keys_.lowest; number <= keys_.highest; ++number) {
    // A black key lies on the white ones beside it.
    if ((!place || is_black(number)) && key(number).contains(x, y)) place = KeyPlace{number, {}};
  }
  if (!place) return place;
  for (int number = 1; number <= kBands; ++number) {
    if (band({place->key, number}).contains(x, y)) place->band = number;
  }
  return place;
}

}  // namespace tonarix
