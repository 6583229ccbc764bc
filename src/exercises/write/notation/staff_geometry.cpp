#include "exercises/write/notation/staff_geometry.h"

#include <algorithm>
#include <cstdlib>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "music/tones.h"

namespace tonarix {
namespace {

constexpr int kOctave = 7 * kStepHeight;
constexpr int kMostSigns = 7;
constexpr int kFirstSign = 33;
constexpr int kSignDistance = 8;

SignatureSign signature_sign(int i, bool sharp, Staff staff) {
  const int qz = sharp ? 21 + i : 13 - i;
  const bool low = sharp ? i == 4 : !is_odd(i) || i == 5;
  const int reference = (low ? 60 : 72) - 24 * index_of(staff);
  const int y = kPictureHeight - Noten::FnQzOkt2diaTon(qz, reference, staff);
  return {{kFirstSign + kSignDistance * i, y}, qz};
}

}  // namespace

namespace Noten {

std::int16_t XRaster(float x) {
  const int column = round_to_int16(x - kFirstColumn) / kColumnWidth;
  return to_int16(column * kColumnWidth + kFirstColumn + kHalfColumn);
}

int FnQzOkt2diaTon(int qz, int octave_reference, Staff staff) {
  if (!has_name(qz)) throw RuntimeError::index_out_of_range("FnQzOkt2diaTon");
  int letter = kStepHeight * (qz % 7 / 2 + 3 - 3 * (qz % 7 % 2));
  // The letters of these lie across the octave line from where they sound.
  if (qz == 1 || qz == 8) letter += 7 * kStepHeight;
  if (qz == 27 || qz == 34) letter -= 7 * kStepHeight;
  const int octave = octave_reference / 12;
  return letter + (staff == Staff::upper ? 28 * (octave - 5) + 40 : 28 * (octave - 2) + 20);
}

}  // namespace Noten

int picture_width(int invzahl) {
  return std::max(kNarrowestPicture, kFirstColumn + kColumnWidth * (invzahl + 2));
}

int lfd_at(float x) {
  return std::clamp((Noten::XRaster(x) - kFirstColumn) / kColumnWidth, 0, kColumns - 1);
}

std::int16_t snapped_y(float y) {
  return to_int16(round_to_int16(y + 2.0) / kStepHeight * kStepHeight);
}

Tone written_tone(int y, Staff staff, int alteration, bool octave_up) {
  const int above_c = kPictureHeight - y - (8 * index_of(staff) + 12);
  int k = 2 * round_to_int16(above_c % kOctave / static_cast<double>(kStepHeight));
  if (k > 4) --k;
  const int chr = 12 * (above_c / kOctave) + 48 - 24 * index_of(staff) + k + alteration;
  const int qz = 7 * alteration + k + 15 - (k > 4 ? 6 : 0);
  return {to_int16(chr + (octave_up ? 12 : 0)), to_int16(qz)};
}

int y_of(Tone tone, Staff staff) {
  return kPictureHeight - Noten::FnQzOkt2diaTon(tone.qz, tone.chr, staff);
}

std::vector<SignatureSign> key_signature(int Vorz, Staff staff) {
  if (std::abs(Vorz) > kMostSigns) throw RuntimeError::index_out_of_range("key_signature");
  std::vector<SignatureSign> signs;
  for (int i = 0; i < std::abs(Vorz); ++i) {
    signs.push_back(signature_sign(i, Vorz > 0, staff));
  }
  return signs;
}

std::vector<int> ledger_steps(int step, int step_above, int step_below) {
  std::vector<int> steps;
  for (int line = step_above; line >= step; line -= 2) steps.push_back(line);
  for (int line = step_below; line <= step; line += 2) steps.push_back(line);
  return steps;
}

Stem stem_of(int x, int y, int sum, int middle_step) {
  constexpr int kLength = 24;
  constexpr int kBeside = 4;
  if (y / kStepHeight < middle_step) return {{x - kBeside, y}, {x - kBeside, y + kLength + sum}};
  return {{x + kBeside, y}, {x + kBeside, y - kLength - sum}};
}

}  // namespace tonarix
