#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "exercises/write/notation/raster_surface.h"
#include "exercises/write/notation/staff_geometry.h"

namespace tonarix {

/// Colour codes of lines, in the numbering of the classic palette.
namespace colour_code {
inline constexpr int black = 0;
inline constexpr int green = 2;
inline constexpr int red = 4;
inline constexpr int grey = 8;
inline constexpr int light_red = 12;
inline constexpr int white = 15;
}  // namespace colour_code

/// The colour of a line, code 0 to 15; RuntimeError 9 for any other.
Colour line_colour(int code);
/// The colour of a note head, which has a table of its own; codes that are not in it are black.
Colour head_colour(int code);

/// The signs of notation, drawn line by line. Each takes the picture and its anchor in pixels.
namespace Noten {

void Doppelb(RasterSurface& picture, int x, int y, int colour = colour_code::black);
void Be(RasterSurface& picture, int x, int y, int colour = colour_code::black);
void Kreuz(RasterSurface& picture, int x, int y, int colour = colour_code::black);
void Doppelkreuz(RasterSurface& picture, int x, int y, int colour = colour_code::black);
void Aufloesung(RasterSurface& picture, int x, int y, int colour = colour_code::black);

/// The five lines from one x to another.
void staff_lines(RasterSurface& picture, int top_step, int from_x, int to_x);
/// A dotted line at the end of the range, from one x to another.
void range_line(RasterSurface& picture, int y, int from_x, int to_x);

/// The ledger lines of a note; adds 4 to `sum` for each.
void HilfsLinien(RasterSurface& picture, int x, int y, int step_above, int step_below,
                 std::int16_t& sum);
/// One ledger line below or above a head at x.
void ledger_line(RasterSurface& picture, int x, int step, int colour);
void NotenHals(RasterSurface& picture, int x, int y, int sum, int middle_step,
               int colour = colour_code::black);
/// `staff` is the one that the picture shows; without one the head is always whole.
void NotenKopf(RasterSurface& picture, int x, int y, int code, std::optional<Staff> staff);
/// The head in the colour of a line.
void plain_head(RasterSurface& picture, int x, int y, int colour);
void Oktavzeichen(RasterSurface& picture, int x, int y, int colour);

/// Wipes the column round x and draws its staff lines anew.
void SpalteLoeschen(RasterSurface& picture, int top_step, int x);
/// Wipes the accidental of the note at y, x - 25 to x - 7, and draws anew what it cut of the staff
/// and of the range lines, which are given by their y.
void VorzeichenLoeschen(RasterSurface& picture, int top_step, int x, int y,
                        std::span<const int> GrenzLinie = {});

void Violinschluessel(RasterSurface& picture);
void Bassschluessel(RasterSurface& picture);

}  // namespace Noten
}  // namespace tonarix
