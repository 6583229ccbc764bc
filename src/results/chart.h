#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/colour.h"
#include "base/texts.h"
#include "results/result_table.h"

namespace tonarix {

/// One bar of the chart.
struct Bar {
  std::string label;  ///< short
  int column = 0;     ///< 0 rising, 1 falling
  int line = 0;       ///< the two directions of an interval share a line
  double length = 0;  ///< share of the full width, 0 to 1
  Colour colour;
  std::string value;  ///< "72.5%", empty when it was not asked
};

/// The rows of the sheet as bars in the sheet's order and colours, so that strong and weak
/// intervals are seen at a glance. The full width is 100 %, or the largest value above.
struct Chart {
  std::vector<Bar> bars;
  int lines = 0;
  bool two_sided = false;
  double full = 1;   ///< fraction that the full width stands for
  std::string text;  ///< the same in words, weakest first
};

Chart result_chart(const ResultTable& table, const std::array<std::string, 2>& directions,
                   const Texts& texts);

}  // namespace tonarix
