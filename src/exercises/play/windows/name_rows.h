#pragma once

#include <array>

#include "exercises/play/windows/keyboard_face.h"

namespace tonarix {

/// How large the names on the keys are printed. The names of one row, which is one band of the
/// white or of the black keys, have one size, in which the widest still fits its field; where even
/// the smallest readable one is too large, none of the row is printed. Two rows of like names, the
/// sharps and flats of black keys or the upper two of white keys, count as one: one alone would
/// look like the whole choice. The c of the lowest band is printed alone where the rest of its row
/// is not, as it is what octaves are found by; where one is too wide, the others stay.
class NameRows {
 public:
  NameRows() = default;
  explicit NameRows(const KeyboardFace& face);

  /// Size of a field's name in pixels of the screen, 0 where none is printed.
  int size(const Field& field) const;

 private:
  std::array<std::array<int, kBands>, 2> rows_{};  ///< white and black, by band
  std::array<int, kPianoKeys> cs_{};               ///< by key
};

/// Width of the frame around the field under the pointer; names stay within it.
int frame_width(const KeyboardFace& face, const Field& field);

}  // namespace tonarix
