#pragma once

#include "exercises/write/notation/raster_surface.h"

namespace tonarix {

/// The cells of the note palette: signs alone (0 to 4), a note with each of them (5 to 9), the
/// plain note (10) and the sign "8va" (11).
inline constexpr int kPaletteCells = 12;
inline constexpr int kCellWidth = 40;
inline constexpr int kCellHeight = 41;
/// The images that follow the pointer: the cells in black (0 to 11) and cells 5 to 10 in grey (12
/// to 17), squares of this size.
inline constexpr int kDragImages = 18;
inline constexpr int kDragImageSize = 32;

/// Both draw on what is there. RuntimeError 9 for a number that is not in use.
void draw_palette_cell(RasterSurface& picture, int cell);
/// A note has a short piece of its staff line.
void draw_drag_image(RasterSurface& picture, int number);
/// The point of a drag image with a note that belongs at the pointer.
Pixel head_in_drag_image(int number);

}  // namespace tonarix
