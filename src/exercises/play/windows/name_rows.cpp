#include "exercises/play/windows/name_rows.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "exercises/play/windows/key_name.h"

namespace tonarix {
namespace {

// Logical pixels.
constexpr int kSmallest = 9;
constexpr int kSmallestOfC = 8;
constexpr int kLargest = 15;
constexpr int kLargestOfLowest = 20;
// In units of the keyboard's height.
constexpr double kUnits = 6.5;
constexpr double kUnitsOfLowest = 8;

constexpr double kThinFrameBelow = 28;  // logical pixels of a field's width

bool is_c(const Field& field) {
  return field.band == 1 && pitch_class_of_key(field.key) == 0;
}

struct Printed {
  int key;
  KeyName name;
  int room;
};

int largest_that_fits(const std::vector<Printed>& names, int largest, int smallest) {
  for (int size = largest; size >= smallest; --size) {
    const QFont font = key_font(size);
    if (std::all_of(names.begin(), names.end(),
                    [&font](const Printed& each) { return each.name.width(font) <= each.room; })) {
      return size;
    }
  }
  return 0;
}

int pixels(const KeyboardFace& face, double logical) {
  return static_cast<int>(std::lround(logical * face.ratio));
}

int largest_of_row(const KeyboardFace& face, bool black, int band) {
  const bool lowest = !black && band == 1;
  const double units = (lowest ? kUnitsOfLowest : kUnits) * face.geometry.factor() / face.ratio;
  return pixels(face, std::clamp<double>(units, kSmallest, lowest ? kLargestOfLowest : kLargest));
}

}  // namespace

int frame_width(const KeyboardFace& face, const Field& field) {
  const bool thin = face.geometry.band(field).width() < kThinFrameBelow * face.ratio;
  return std::max(1, pixels(face, thin ? 1 : 2));
}

NameRows::NameRows(const KeyboardFace& face) {
  const KeyRange& keys = face.geometry.keys();
  for (const bool black : {false, true}) {
    for (int band = 1; band <= kBands; ++band) {
      std::vector<Printed> names;
      std::vector<Printed> cs;
      for (int key = keys.lowest; key <= keys.highest; ++key) {
        const Field field{key, band};
        if (is_black(key) != black || face.caption(field).isEmpty()) continue;
        const KeyName name(face.caption(field));
        // Alone it has the key to its border.
        if (is_c(field)) {
          cs.push_back({key, name, face.geometry.band(field).width() - pixels(face, 1)});
        } else {
          names.push_back(
              {key, name, face.geometry.outline(field).width() - 2 * frame_width(face, field)});
        }
      }
      const int largest = largest_of_row(face, black, band);
      int& row = rows_[black ? 1 : 0].at(static_cast<std::size_t>(band - 1));
      row = largest_that_fits(names, largest, pixels(face, kSmallest));
      if (cs.empty()) continue;
      const int smallest = pixels(face, kSmallestOfC);
      const int all = largest_that_fits(cs, row > 0 ? row : largest, smallest);
      for (const Printed& c : cs) {
        cs_.at(static_cast<std::size_t>(c.key)) =
            all > 0 ? all : largest_that_fits({c}, smallest, smallest);
      }
    }
  }
  auto& [white, black] = rows_;
  black[0] = black[1] = std::min(black[0], black[1]);
  white[1] = white[2] = std::min(white[1], white[2]);
}

int NameRows::size(const Field& field) const {
  return is_c(field)
             ? cs_.at(static_cast<std::size_t>(field.key))
             : rows_[is_black(field.key) ? 1 : 0].at(static_cast<std::size_t>(field.band - 1));
}

}  // namespace tonarix
