#pragma once

#include "results/percentage.h"
#include "results/sheet_picture.h"

namespace tonarix {

/// The longest sheet there is: 17 settings and all 38 intervals, with texts of usual length.
inline SheetContent full_sheet() {
  SheetContent content;
  content.caption = "Results: Exam";
  content.head_title = "Ear training: identify tonal intervals";
  for (SheetLine& line : content.head) line = {" Matrikel-Nr.:", " 4711", true};
  content.settings_title = "Settings";
  content.settings.assign(17, {"Tongeschlecht: ", "Acoustic Grand Piano", true});
  content.results_title = "Results";
  content.directions = {"Upward", "Downward"};
  content.total_label = "Total:";
  content.table.by_interval = true;
  for (int i = 0; i < 38; ++i) {
    const double fraction = (i % 19) / 18.0;
    ResultRow row;
    row.label = "Augmented fourth";
    row.short_label = "a4";
    row.field = {fraction, percent_number(fraction) + "%", scale_colour(fraction)};
    row.column = i / 19;
    row.place = i % 19;
    row.top = 21 + row.place * 22;
    content.table.rows.push_back(row);
  }
  content.table.total = {0.5, "50.0%", scale::under_60};
  return content;
}

}  // namespace tonarix
