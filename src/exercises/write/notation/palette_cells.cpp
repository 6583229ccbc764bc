#include "exercises/write/notation/palette_cells.h"

#include <array>

#include "base/runtime_error.h"
#include "exercises/write/notation/written_note.h"

namespace tonarix {
namespace {

using SignProcedure = void (*)(RasterSurface&, int x, int y, int colour);

/// A sign alone, and how far it reaches to the left of the head it stands before.
struct CellSign {
  SignProcedure draw;
  Pixel anchor;  ///< from the centre of the cell, so that the sign stands in the middle
  int before_head;
};

constexpr std::array<CellSign, 5> kSigns = {{
    // procedure, anchor, before the head
    {Noten::Doppelb, {-7, -11}, 22},
    {Noten::Be, {-3, -11}, 15},
    {Noten::Aufloesung, {-2, -12}, 14},
    {Noten::Kreuz, {-1, -11}, 15},
    {Noten::Doppelkreuz, {-4, -4}, 14},
}};
constexpr int kFirstNote = 5;
constexpr int kPlainNote = 10;
constexpr int kOctaveCell = 11;
constexpr int kGreyTwins = 7;  // from a cell with a note to its grey image
constexpr int kAlwaysUp = 0;   // a middle step above every head: all stems stand upward

const CellSign& sign_of(int cell) {
  return kSigns.at(static_cast<std::size_t>(cell % kFirstNote));
}

/// Where the head of a note stands when sign, head and stem are centred on x.
int head_x(int cell, int centre_x) {
  constexpr int kHalfHead = 4;
  const int left = cell == kPlainNote ? kHalfHead : sign_of(cell).before_head;
  return centre_x + (left - kHalfHead) / 2;
}

void draw_sign(RasterSurface& picture, int cell, Pixel centre, int colour) {
  if (cell == kOctaveCell) return Noten::Oktavzeichen(picture, centre.x - 12, centre.y, colour);
  const CellSign& sign = sign_of(cell);
  sign.draw(picture, centre.x + sign.anchor.x, centre.y + sign.anchor.y, colour);
}

void draw_note(RasterSurface& picture, int cell, Pixel head, int stem_change, int colour) {
  Noten::plain_head(picture, head.x, head.y, colour);
  Noten::NotenHals(picture, head.x, head.y, stem_change, kAlwaysUp, colour);
  draw_accidental(picture, static_cast<DrawingCode>(cell), head.x, head.y, colour);
}

constexpr bool holds_note(int cell) {
  return cell >= kFirstNote && cell <= kPlainNote;
}

constexpr int cell_of_image(int number) {
  return number < kPaletteCells ? number : number - kGreyTwins;
}

}  // namespace

void draw_palette_cell(RasterSurface& picture, int cell) {
  constexpr int kHeadY = 28;
  const Pixel centre{kCellWidth / 2, kCellHeight / 2};
  if (cell < 0 || cell >= kPaletteCells) throw RuntimeError::index_out_of_range("NotP");
  if (!holds_note(cell)) return draw_sign(picture, cell, centre, colour_code::black);
  draw_note(picture, cell, {head_x(cell, centre.x), kHeadY}, 0, colour_code::black);
}

Pixel head_in_drag_image(int number) {
  constexpr int kHeadY = 21;
  return {head_x(cell_of_image(number), kDragImageSize / 2), kHeadY};
}

void draw_drag_image(RasterSurface& picture, int number) {
  constexpr int kShorterStem = -4;  // else sharps and naturals would not fit below it
  if (number < 0 || number >= kDragImages) throw RuntimeError::index_out_of_range("Ico");
  const int cell = cell_of_image(number);
  const int colour = cell == number ? colour_code::black : colour_code::grey;
  if (!holds_note(cell)) {
    return draw_sign(picture, cell, {kDragImageSize / 2, kDragImageSize / 2}, colour);
  }
  const Pixel head = head_in_drag_image(number);
  picture.line({head.x - 9, head.y}, {head.x + 10, head.y}, line_colour(colour), 1);
  draw_note(picture, cell, head, kShorterStem, colour);
}

}  // namespace tonarix
