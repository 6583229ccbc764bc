#pragma once

#include "exercises/write/notation/raster_surface.h"

namespace tonarix::glyphs {

/// A line whose last point is not drawn.
struct Line {
  int x1, y1, x2, y2;
  int width = 1;
};

// The signs, from their anchor on.

inline constexpr Line kBe[] = {
    // x1 y1 x2 y2
    {0, 1, 0, 22},  {1, 13, 6, 13}, {2, 12, 5, 12}, {4, 14, 7, 14}, {4, 15, 7, 15},
    {4, 16, 6, 16}, {4, 17, 6, 17}, {3, 18, 5, 18}, {2, 19, 3, 20}, {1, 20, 2, 21},
};
inline constexpr int kSecondBe = 8;  // from the first flat of a double flat

inline constexpr Line kKreuz[] = {
    // x1 y1 x2 y2
    {0, 1, 0, 23}, {3, 0, 3, 22},    {-1, 8, -1, 11}, {1, 7, 1, 10},  {2, 7, 2, 10},
    {4, 6, 4, 9},  {-1, 16, -1, 19}, {1, 15, 1, 18},  {2, 15, 2, 18}, {4, 14, 4, 17},
};

inline constexpr Line kAufloesung[] = {
    // x1 y1 x2 y2
    {0, 1, 0, 18},  {1, 10, 2, 10}, {1, 9, 3, 9},   {1, 8, 4, 8},   {2, 7, 4, 7},   {3, 6, 4, 6},
    {1, 17, 2, 17}, {1, 16, 3, 16}, {1, 15, 4, 15}, {2, 14, 4, 14}, {3, 13, 4, 13}, {4, 6, 4, 23},
};

inline constexpr Line kDoppelkreuz[] = {
    // x1 y1 x2 y2
    {0, 0, 3, 0}, {0, 1, 3, 1}, {0, 2, 3, 2},  // upper left
    {0, 5, 3, 5}, {0, 6, 3, 6}, {0, 7, 3, 7},  // lower left
    {5, 0, 8, 0}, {5, 1, 8, 1}, {5, 2, 8, 2},  // upper right
    {5, 5, 8, 5}, {5, 6, 8, 6}, {5, 7, 8, 7},  // lower right
    {3, 3, 5, 3}, {3, 4, 5, 4},                // between them
};

inline constexpr Line kOktavzeichen[] = {
    // x1 y1 x2 y2
    // The 8
    {2, -4, 5, -4},
    {5, -3, 5, 0},
    {1, -3, 1, 0},
    {1, 0, 4, 0},
    {4, 0, 4, 4},
    {0, 1, 0, 5},
    {0, 4, 4, 4},
    // The v
    {8, -2, 8, -1},
    {14, -2, 14, -1},
    {9, -1, 10, 1},
    {13, -1, 13, 1},
    {10, 1, 10, 3},
    {12, 1, 12, 3},
    {11, 3, 11, 5},
    // The a
    {17, -2, 22, -2},
    {16, -1, 16, 4},
    {21, -1, 21, 4},
    {17, 4, 24, 4},
};

/// One row of the note head.
struct HeadRow {
  int dy, from, to;
};
inline constexpr HeadRow kHead[] = {
    // dy from to
    {-4, 0, 4},  // left out in a space of the staff
    {-3, -2, 5}, {-2, -3, 5}, {-1, -4, 5}, {0, -4, 5}, {1, -4, 4}, {2, -4, 3}, {3, -3, 1},
};

// The clefs, in pixels of their picture.

inline constexpr Line kViolinschluesselLines[] = {
    // x1 y1 x2 y2 width
    // The curl and the stem through it
    {13, 89, 13, 90},
    {17, 82, 25, 82},
    {20, 80, 20, 88},
    {21, 88, 21, 93},
    {22, 93, 22, 99},
    {23, 99, 23, 107},
    {16, 109, 21, 109},
    // The belly
    {14, 95, 17, 95},
    {13, 94, 15, 94},
    {11, 93, 14, 93},
    {11, 92, 13, 92},
    {10, 91, 12, 91},
    {9, 90, 11, 90},
    {9, 89, 11, 89},
    // The loop above, its right side and its left
    {19, 69, 19, 74},
    {20, 68, 20, 73},
    {21, 66, 21, 72},
    {22, 64, 22, 71},
    {23, 58, 23, 69},
    {19, 78, 19, 80},
    {18, 72, 18, 78},
    {17, 67, 17, 72},
    {16, 64, 16, 67},
    {17, 60, 17, 64, 2},
    {18, 57, 18, 60, 2},
    {19, 54, 19, 59},
    {20, 54, 20, 58},
    {21, 54, 21, 57},
    {22, 55, 22, 58},
};
inline constexpr Pixel kViolinschluesselPoints[] = {
    {13, 90}, {14, 91}, {15, 92}, {16, 93},  {17, 93},  {17, 83}, {16, 84},
    {25, 83}, {26, 84}, {27, 85}, {22, 107}, {21, 108}, {8, 83},  {18, 56},
};
inline constexpr Arc kViolinschluesselArcs[] = {
    // centre, radius, start, end, width
    {{21, 88}, 8, 4.7124, 3.1416, 2},
    {{29, 88}, 20, 2.1380, 3.1416, 3},
};
inline constexpr Ellipse kViolinschluesselFoot{{17, 105}, 4, 1.6};

inline constexpr Line kBassschluesselLines[] = {
    // x1 y1 x2 y2
    // The head
    {8, 56, 8, 52},
    {9, 57, 9, 50},
    {10, 58, 10, 49},
    {11, 58, 11, 52},
    {12, 58, 12, 52},
    {13, 57, 13, 53},
    {14, 57, 14, 53},
    // The bow and its tail
    {19, 62, 20, 63},
    {23, 58, 24, 59},
    {17, 49, 18, 50},
    {20, 57, 21, 58},
    {20, 55, 21, 54},
    {9, 71, 11, 71},
    {11, 70, 13, 70},
    {12, 69, 14, 69},
    {14, 68, 16, 68},
    {15, 67, 17, 67},
    {16, 66, 18, 66},
    {17, 65, 20, 65},
    {18, 63, 21, 63},
    // The two dots
    {27, 51, 29, 51},
    {27, 54, 29, 54},
    {26, 52, 30, 52},
    {26, 53, 30, 53},
    {27, 58, 29, 58},
    {27, 61, 29, 61},
    {26, 59, 30, 59},
    {26, 60, 30, 60},
};
inline constexpr Pixel kBassschluesselPoints[] = {{11, 49}};
inline constexpr Arc kBassschluesselArcs[] = {
    // centre, radius, start, end, width
    {{14, 56}, 8, 5.5851, 0.8727, 3},
};

}  // namespace tonarix::glyphs
