#include "results/result_table.h"

#include <array>

#include "music/degrees.h"
#include "results/percentage.h"

namespace tonarix {

namespace {

// The order within a column: by size of the interval, the prime last.
constexpr std::array<std::int16_t, 19> kIntervalOrder{11, 4,  18, 21, 7,  8,  17, 3,  12, 13,
                                                      2,  16, 9,  6,  20, 19, 5,  10, 1};
constexpr std::int16_t kCodes = 21;           // statistic rows of one direction
constexpr std::int16_t kDegreesPerSide = 11;  // the same when naming from the keynote
constexpr int kFirstTop = 21;
constexpr int kRowStep = 22;

RowStatistics statistics_of(const Auswertung& statistics, std::int16_t row) {
  RowStatistics values;
  statistics.read(row, 0, values.c0);
  statistics.read(row, 1, values.c1);
  statistics.read(row, 2, values.c2);
  values.asked = statistics.asked(row);
  return values;
}

ResultField field_of(std::optional<double> fraction, std::int16_t Uebungsmodus) {
  if (fraction) return {fraction, percent_number(*fraction) + "%", scale_colour(*fraction)};
  ResultField empty;
  if (Uebungsmodus > 2) empty.back = scale::under_20;
  return empty;
}

ResultField total_of(const std::vector<ResultRow>& rows) {
  double sum = 0;
  int count = 0;
  for (const ResultRow& row : rows) {
    if (!row.field.fraction) continue;
    sum += *row.field.fraction;
    ++count;
  }
  if (count == 0) return {std::nullopt, "0.0 %", scale::under_20};
  const double mean = sum / count;
  return {mean, percent_number(mean) + "%", scale_colour(mean)};
}

std::vector<ResultRow> degree_rows(const Settings& settings, const Auswertung& statistics,
                                   const IntervalNames& names, const Texts& texts) {
  const std::span<const Degree> scale = degrees(settings.tongeschl);
  std::vector<ResultRow> rows;
  for (std::int16_t number = 1; number < static_cast<std::int16_t>(scale.size()); ++number) {
    const auto fraction = degree_fraction(
        statistics_of(statistics, number),
        statistics_of(statistics, static_cast<std::int16_t>(number + kDegreesPerSide)),
        settings.Uebungsmodus);
    const int row = number - 1;
    rows.push_back({number, degree_caption(settings.tongeschl, row, names, texts),
                    std::string(scale[static_cast<std::size_t>(row)].label),
                    field_of(fraction, settings.Uebungsmodus), 0, row, kFirstTop + row * kRowStep});
  }
  return rows;
}

std::vector<ResultRow> interval_rows(const Settings& settings, const Auswertung& statistics,
                                     const IntervalNames& names) {
  std::vector<ResultRow> rows;
  for (const int column : {0, 1}) {
    int top = kFirstTop;
    int place = -1;
    for (const std::int16_t code : kIntervalOrder) {
      ++place;
      const auto row = static_cast<std::int16_t>(code + kCodes * column);
      float occurrences = 0;
      statistics.read(row, 3, occurrences);
      if (!(occurrences > 0)) continue;
      const auto fraction =
          interval_fraction(statistics_of(statistics, row), settings.Uebungsmodus);
      rows.push_back({row, names.long_name(code), names.short_name(code),
                      field_of(fraction, settings.Uebungsmodus), column, place, top});
      top += kRowStep;
    }
  }
  return rows;
}

}  // namespace

ResultTable result_table(const Settings& settings, const Auswertung& statistics,
                         const IntervalNames& names, const Texts& texts) {
  ResultTable table;
  table.by_interval = settings.abfr_iv == 1;
  if (settings.Uebungsmodus > 0) {
    table.rows = table.by_interval ? interval_rows(settings, statistics, names)
                                   : degree_rows(settings, statistics, names, texts);
  }
  table.total = total_of(table.rows);
  return table;
}

}  // namespace tonarix
