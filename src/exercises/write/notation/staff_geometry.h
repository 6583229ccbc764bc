#pragma once

#include <cstdint>
#include <vector>

#include "exercises/write/notation/raster_surface.h"
#include "music/tone.h"

namespace tonarix {

/// The staves by the index of their picture.
enum class Staff : std::int16_t {
  upper = 0,  ///< `PicB(0)`, G clef
  lower = 1,  ///< `PicB(1)`, F clef
};

/// Pixels of a picture. A staff step is a diatonic step; steps count downward from y = 0.
inline constexpr int kStepHeight = 4;
inline constexpr int kLineGap = 2 * kStepHeight;
inline constexpr int kPictureHeight = 144;
inline constexpr int kNarrowestPicture = 319;
inline constexpr int kHighestStep = 6;  ///< of a ledger line, in both pictures
inline constexpr int kLowestStep = 30;
inline constexpr int kColumns = 6;
inline constexpr int kFirstColumn = 80;  ///< left of it are clef and key signature
inline constexpr int kColumnWidth = 50;
inline constexpr int kHalfColumn = kColumnWidth / 2;

constexpr int index_of(Staff staff) {
  return static_cast<int>(staff);
}
constexpr int top_step(Staff staff) {
  return 16 - 4 * index_of(staff);
}
constexpr int bottom_step(Staff staff) {
  return top_step(staff) + 8;
}
/// The ledger lines next to the staff.
constexpr int first_step_above(Staff staff) {
  return top_step(staff) - 2;
}
constexpr int first_step_below(Staff staff) {
  return bottom_step(staff) + 2;
}
/// From this step downward stems stand upward. It is one below the middle line on purpose.
constexpr int middle_step(Staff staff) {
  return top_step(staff) + 5;
}
constexpr int y_of_step(int step) {
  return step * kStepHeight;
}

namespace Noten {

/// The centre x of the column that holds x, of columns to either side without end.
std::int16_t XRaster(float x);
/// Height of a tone above the foot of the picture: its place on the line of fifths and a chromatic
/// tone, from 0 on, that tells the octave. RuntimeError 9 for a place without a name.
int FnQzOkt2diaTon(int qz, int octave_reference, Staff staff);

}  // namespace Noten

/// Width of both pictures for rows of `invzahl` + 2 tones.
int picture_width(int invzahl);
/// x of the centre of a column, the anchor of what stands in it.
constexpr int column_centre(int column) {
  return kFirstColumn + kHalfColumn + kColumnWidth * column;
}
/// The column, 0 to 5, of a pointer; the nearest one outside of them.
int lfd_at(float x);
/// y of the step next to a pointer.
std::int16_t snapped_y(float y);

/// The tone that stands at a snapped y with an alteration from -2 to 2; below the sign "8va" it
/// sounds an octave higher.
Tone written_tone(int y, Staff staff, int alteration, bool octave_up = false);
/// Double flat -2 to double sharp 2.
constexpr int alteration_of(int qz) {
  return qz / 7 - 2;
}
/// y of a tone that stands without the sign "8va".
int y_of(Tone tone, Staff staff);

/// Sharps (positive) or flats (negative) of a key: that of the major scale, in moll (`tongeschl` 1)
/// of its relative major.
constexpr int Vorz_of(int tongeschl, int qz_transpos) {
  return tongeschl == 1 ? qz_transpos - 3 : qz_transpos;
}
/// One sign of a key signature: `at` is the step it belongs to.
struct SignatureSign {
  Pixel at;
  int qz;
};
/// The signs of a key in the order they are written; RuntimeError 9 for more than seven.
std::vector<SignatureSign> key_signature(int Vorz, Staff staff);

/// Steps of the ledger lines that a note needs, beginning at the staff.
std::vector<int> ledger_steps(int step, int step_above, int step_below);

/// A stem from the head to its end, which is not drawn.
struct Stem {
  Pixel from;
  Pixel to;
};
/// `sum` is 4 for each ledger line and lengthens the stem.
Stem stem_of(int x, int y, int sum, int middle_step);

/// The highest row of a head is left out where it would fall on a staff line.
constexpr bool whole_head(int step, Staff staff) {
  return step % 2 == 0 || step <= top_step(staff);
}

}  // namespace tonarix
