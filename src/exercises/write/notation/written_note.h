#pragma once

#include <optional>
#include <span>

#include "exercises/write/notation/noten.h"

namespace tonarix {

/// What is printed before a head; the numbers are the cells of the palette that write it.
enum class DrawingCode : std::int16_t {
  double_flat = 5,
  flat = 6,
  natural = 7,
  sharp = 8,
  double_sharp = 9,
  plain = 10,
};

/// A note as it stands in its column.
struct WrittenNote {
  int column = 0;  ///< 0 to 5
  Staff staff = Staff::upper;
  int step = 0;  ///< 6 to 30
  DrawingCode code = DrawingCode::plain;
  bool octave_up = false;  ///< with the sign "8va"
  int colour = 0;          ///< code of the head

  int x() const { return column_centre(column); }
  int y() const { return y_of_step(step); }
};

/// The pictures of both staves.
struct StaffPictures {
  RasterSurface& upper;
  RasterSurface& lower;
  RasterSurface& of(Staff staff) const { return staff == Staff::upper ? upper : lower; }
};

/// Clears the picture and draws staff, clef, key signature and range lines, which are given by
/// their y. RuntimeError 9 for a key of more than seven signs.
void draw_empty_staff(RasterSurface& picture, Staff staff, int Vorz,
                      std::span<const int> GrenzLinie = {});

/// The accidental of a head at x, y.
void draw_accidental(RasterSurface& picture, DrawingCode code, int x, int y,
                     int colour = colour_code::black);

/// Wipes the column in both pictures and draws the note. Range lines are not drawn.
void NoteMalen(const StaffPictures& pictures, const WrittenNote& note);

/// Draws the accidental and the sign "8va" of a note anew, after its code has changed.
void redraw_accidental(RasterSurface& picture, const WrittenNote& note,
                       std::span<const int> GrenzLinie);

/// The steps of the ledger lines that show where a note would land in the column: all of the
/// picture, or beyond the ledger lines of the note that stands there.
std::vector<int> ladder_steps(Staff staff, std::optional<int> own_step);
/// Draws these lines in a colour or wipes them in white, and then draws anew what they cut of the
/// note that stands in the column of this picture.
void HLZeigen(RasterSurface& picture, Staff staff, int x, int colour,
              const std::optional<WrittenNote>& own);

}  // namespace tonarix
