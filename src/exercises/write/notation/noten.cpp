#include "exercises/write/notation/noten.h"

#include <algorithm>
#include <array>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "exercises/write/notation/glyphs.h"

namespace tonarix {
namespace {

constexpr Colour kBlack = signal::black;
constexpr Colour kWhite = signal::white;

constexpr std::array<Colour, 16> kPalette = {
    {RGB(0, 0, 0), RGB(0, 0, 128), RGB(0, 128, 0), RGB(0, 128, 128),            // 0 to 3
     RGB(128, 0, 0), RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),    // 4 to 7
     RGB(128, 128, 128), RGB(0, 0, 255), RGB(0, 255, 0), RGB(0, 255, 255),      // 8 to 11
     RGB(255, 0, 0), RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255)}};  // 12 to 15

void draw_lines(RasterSurface& picture, std::span<const glyphs::Line> lines, int x, int y,
                Colour colour) {
  for (const glyphs::Line& line : lines) {
    picture.line({x + line.x1, y + line.y1}, {x + line.x2, y + line.y2}, colour, line.width);
  }
}

void draw_clef(RasterSurface& picture, std::span<const glyphs::Line> lines,
               std::span<const Pixel> points, std::span<const Arc> arcs) {
  draw_lines(picture, lines, 0, 0, kBlack);
  for (const Pixel& point : points) picture.point(point, kBlack);
  for (const Arc& arc : arcs) picture.arc(arc, kBlack);
}

void draw_head(RasterSurface& picture, int x, int y, Colour colour, bool whole) {
  for (const glyphs::HeadRow& row : std::span(glyphs::kHead).subspan(whole ? 0 : 1)) {
    picture.line({x + row.from, y + row.dy}, {x + row.to, y + row.dy}, colour, 1);
  }
}

void draw_staff_lines(RasterSurface& picture, int top_step, Pixel from, Pixel to) {
  for (int line = 0; line < 5; ++line) {
    const int y = y_of_step(top_step) + kLineGap * line;
    if (y >= from.y && y <= to.y) picture.line({from.x, y}, {to.x, y}, kBlack, 1);
  }
}

void wipe(RasterSurface& picture, Pixel from, Pixel to) {
  for (int y = from.y; y <= to.y; ++y) picture.line({from.x, y}, {to.x, y}, kWhite, 1);
}

}  // namespace

Colour line_colour(int code) {
  if (code < 0 || code >= static_cast<int>(kPalette.size())) {
    throw RuntimeError::index_out_of_range("line_colour");
  }
  return kPalette[static_cast<std::size_t>(code)];
}

Colour head_colour(int code) {
  switch (code) {
    case 2:
      return blue_green_red(0x008000);
    case 4:
      return blue_green_red(0x0000C0);
    case 6:
    case 8:
    case 10:
    case 14:
      return blue_green_red(0x00C0C0);
    case 12:
      return blue_green_red(0x0000FF);
    default:
      return kBlack;
  }
}

namespace Noten {

void Doppelb(RasterSurface& picture, int x, int y, int colour) {
  Be(picture, x, y, colour);
  Be(picture, x + glyphs::kSecondBe, y, colour);
}

void Be(RasterSurface& picture, int x, int y, int colour) {
  draw_lines(picture, glyphs::kBe, x, y, line_colour(colour));
}

void Kreuz(RasterSurface& picture, int x, int y, int colour) {
  draw_lines(picture, glyphs::kKreuz, x, y, line_colour(colour));
}

void Doppelkreuz(RasterSurface& picture, int x, int y, int colour) {
  draw_lines(picture, glyphs::kDoppelkreuz, x, y, line_colour(colour));
}

void Aufloesung(RasterSurface& picture, int x, int y, int colour) {
  draw_lines(picture, glyphs::kAufloesung, x, y, line_colour(colour));
}

void staff_lines(RasterSurface& picture, int top_step, int from_x, int to_x) {
  draw_staff_lines(picture, top_step, {from_x, 0}, {to_x, kPictureHeight});
}

void range_line(RasterSurface& picture, int y, int from_x, int to_x) {
  picture.dotted_line({from_x, y}, {to_x, y}, line_colour(colour_code::green));
}

void HilfsLinien(RasterSurface& picture, int x, int y, int step_above, int step_below,
                 std::int16_t& sum) {
  for (const int step : ledger_steps(y / kStepHeight, step_above, step_below)) {
    ledger_line(picture, x, step, colour_code::black);
    sum = to_int16(sum + kStepHeight);
  }
}

void ledger_line(RasterSurface& picture, int x, int step, int colour) {
  picture.line({x - 6, y_of_step(step)}, {x + 7, y_of_step(step)}, line_colour(colour), 1);
}

void NotenHals(RasterSurface& picture, int x, int y, int sum, int middle_step, int colour) {
  const Stem stem = stem_of(x, y, sum, middle_step);
  picture.line(stem.from, stem.to, line_colour(colour), 1);
}

void NotenKopf(RasterSurface& picture, int x, int y, int code, std::optional<Staff> staff) {
  draw_head(picture, x, y, head_colour(code), !staff || whole_head(y / kStepHeight, *staff));
}

void plain_head(RasterSurface& picture, int x, int y, int colour) {
  draw_head(picture, x, y, line_colour(colour), true);
}

void Oktavzeichen(RasterSurface& picture, int x, int y, int colour) {
  draw_lines(picture, glyphs::kOktavzeichen, x, y, line_colour(colour));
}

void SpalteLoeschen(RasterSurface& picture, int top_step, int x) {
  const Pixel from{x - kHalfColumn, 0};
  const Pixel to{x + kHalfColumn, kPictureHeight};
  wipe(picture, from, to);
  draw_staff_lines(picture, top_step, from, to);
}

void VorzeichenLoeschen(RasterSurface& picture, int top_step, int x, int y,
                        std::span<const int> GrenzLinie) {
  const Pixel from{x - kHalfColumn, y - 17};
  const Pixel to{x - 6, y + 12};
  wipe(picture, from, to);
  draw_staff_lines(picture, top_step, from, to);
  for (const int line : GrenzLinie) {
    if (line >= from.y && line <= to.y) range_line(picture, line, from.x, to.x);
  }
}

void Violinschluessel(RasterSurface& picture) {
  draw_clef(picture, glyphs::kViolinschluesselLines, glyphs::kViolinschluesselPoints,
            glyphs::kViolinschluesselArcs);
  picture.fill_ellipse(glyphs::kViolinschluesselFoot, kBlack);
}

void Bassschluessel(RasterSurface& picture) {
  draw_clef(picture, glyphs::kBassschluesselLines, glyphs::kBassschluesselPoints,
            glyphs::kBassschluesselArcs);
}

}  // namespace Noten
}  // namespace tonarix
