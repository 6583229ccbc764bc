#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "base/texts.h"
#include "music/interval.h"
#include "settings/settings.h"
#include "statistics/records.h"

namespace tonarix {

/// One percentage as it is shown.
struct ResultField {
  std::optional<double> fraction;  ///< 1 for 100 %; nothing when it isn't counted
  std::string text;                ///< "72.5%", empty when it isn't counted
  std::optional<Colour> back;      ///< nothing: the window's own ground
};

/// One visible row of the sheet.
struct ResultRow {
  std::string label;        ///< "(II) große Sekunde", "große Sekunde"
  std::string short_label;  ///< "(II)", "g2"
  ResultField field;
  int column = 0;  ///< 0 rising, 1 falling; degrees stand in column 0
  int place = 0;   ///< in the order of all rows that a column can have
  int top = 0;     ///< upper edge within the table, in layout units
};

struct ResultTable {
  bool by_interval = false;  ///< two columns by direction, else one row for each degree
  std::vector<ResultRow> rows;
  ResultField total;
};

/// The table of the exercise that the settings and statistics tell of. Level 0 has no rows and no
/// colour, for nothing was reckoned there. Hidden and empty rows don't count for the total.
/// RuntimeError 9 when the statistics lack a row.
ResultTable result_table(const Settings& settings, const Auswertung& statistics,
                         const IntervalNames& names, const Texts& texts);

}  // namespace tonarix
