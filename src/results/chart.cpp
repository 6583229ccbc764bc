#include "results/chart.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "base/module_texts.h"
#include "results/percentage.h"

namespace tonarix {

namespace {

std::string in_words(const ResultTable& table, const std::array<std::string, 2>& directions,
                     const Texts& texts) {
  std::vector<const ResultRow*> rows;
  for (const ResultRow& row : table.rows) rows.push_back(&row);
  std::stable_sort(rows.begin(), rows.end(), [](const ResultRow* a, const ResultRow* b) {
    const bool both = a->field.fraction && b->field.fraction;
    return both ? *a->field.fraction < *b->field.fraction
                : a->field.fraction.has_value() && !b->field.fraction.has_value();
  });
  std::string text;
  for (const ResultRow* row : rows) {
    if (!text.empty()) text += "\n";
    text += row->label;
    if (table.by_interval) text += " " + directions[static_cast<std::size_t>(row->column)];
    text += texts.Wort(700_text);
    text += row->field.fraction ? spoken_percentage(row->field.text, texts)
                                : texts.Wort(text::chart_not_asked);
  }
  return text.empty() ? texts.Wort(text::chart_no_percentages) : text;
}

}  // namespace

Chart result_chart(const ResultTable& table, const std::array<std::string, 2>& directions,
                   const Texts& texts) {
  Chart chart;
  for (const ResultRow& row : table.rows) {
    chart.full = std::max(chart.full, row.field.fraction.value_or(0));
  }
  std::set<int> places;
  for (const ResultRow& row : table.rows) places.insert(row.place);
  chart.lines = static_cast<int>(places.size());
  chart.two_sided = table.by_interval;
  for (const ResultRow& row : table.rows) {
    const auto line = std::distance(places.begin(), places.find(row.place));
    const double fraction = row.field.fraction.value_or(0);
    chart.bars.push_back({row.short_label, row.column, static_cast<int>(line),
                          std::clamp(fraction / chart.full, 0.0, 1.0),
                          row.field.back.value_or(scale::under_20), row.field.text});
  }
  chart.text = in_words(table, directions, texts);
  return chart;
}

}  // namespace tonarix
