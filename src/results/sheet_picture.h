#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/colour.h"
#include "results/head_block.h"
#include "results/result_table.h"
#include "results/work_words.h"

namespace tonarix {

/// Everything the sheet says.
struct SheetContent {
  std::string caption;  ///< title of the window
  std::string head_title;
  std::array<SheetLine, 6> head;
  std::string settings_title;
  std::vector<SheetLine> settings;
  std::string results_title;
  WorkWords work;
  bool counts_lead = false;  ///< nothing was scored: the counts stand large, the total small
  std::array<std::string, 2> directions;  ///< heads of the rising and the falling column
  std::string total_label;
  ResultTable table;
};

/// A rectangle in layout units; a unit is a pixel at 96 dpi.
struct SheetBox {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  double right() const { return left + width; }
  double bottom() const { return top + height; }
};

enum class SheetFont { title, plain, label, field, heading, total_label, total };

struct SheetText {
  SheetBox box;
  std::string text;
  SheetFont font = SheetFont::plain;
  bool at_right = false;  ///< ends at the right edge of its box
};

struct SheetSurface {
  SheetBox box;
  Colour fill;
  bool framed = false;
  double corner = 0;
};

enum class SheetGround {
  screen,  ///< fields in the colours of the scale
  paper,   ///< black on white, the numbers carry the content
};

enum class SheetShape {
  wide,  ///< the table beside the head block and the settings, as on the page
  tall,  ///< head block, table and settings below each other, for a narrow window
};

/// The sheet as shapes and texts, for whatever paints it: screen, printer, PDF, test image.
struct SheetPicture {
  std::string name;
  SheetGround ground = SheetGround::screen;
  double width = 0;
  double height = 0;
  std::vector<SheetSurface> surfaces;  ///< to be painted first, in this order
  std::vector<SheetText> texts;
};

SheetPicture sheet_picture(const SheetContent& content, SheetGround ground,
                           SheetShape shape = SheetShape::wide);

/// The whole sheet in words, a line each in reading order, for a screen reader.
std::string spoken_sheet(const SheetContent& content, const Texts& texts);

}  // namespace tonarix
