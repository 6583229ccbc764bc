#include "results/result_table.h"

#include <array>

#include "base/arithmetic.h"
#include "music/degrees.h"
#include "results/percentage.h"

namespace tonarix {

namespace {

// The order within a column: by size of the interval, the prime last.
constexpr std::array<std::int16_t, 19> kIntervalOrder{11, 4,  18, 21, 7,  8,  17, 3,  12, 13,
                                                      2,  16, 9,  6,  20, 19, 5,  10, 1};
constexpr int kFirstTop = 21;
constexpr int kRowStep = 22;

RowStatistics statistics_of(const Auswertung& statistics, StatisticRow row) {
  RowStatistics values;
  statistics.read(row, 0, values.c0);
  statistics.read(row, 1, values.c1);
  statistics.read(row, 2, values.c2);
  values.asked = statistics.asked(row);
  return values;
}

ResultField field_of(std::optional<double> fraction, Level Uebungsmodus) {
  if (fraction) return {fraction, percent_number(*fraction) + "%", scale_colour(*fraction)};
  ResultField empty;
  if (is_test(Uebungsmodus)) empty.back = scale::under_20;
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
        statistics_of(statistics, statistic_row(number, Naming::from_keynote)),
        statistics_of(statistics, statistic_row(to_int16(-number), Naming::from_keynote)),
        settings.Uebungsmodus);
    const int row = number - 1;
    rows.push_back({degree_caption(settings.tongeschl, degree_in(row), names, texts),
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
      const std::int16_t value = to_int16(column == 0 ? code : -code);
      const StatisticRow row = statistic_row(value, Naming::from_tone_before);
      float occurrences = 0;
      statistics.read(row, 3, occurrences);
      if (!(occurrences > 0)) continue;
      const auto fraction =
          interval_fraction(statistics_of(statistics, row), settings.Uebungsmodus);
      rows.push_back({names.long_name(IntervalCode{code}), names.short_name(IntervalCode{code}),
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
  table.by_interval = settings.abfr_iv == Naming::from_tone_before;
  if (settings.Uebungsmodus != Level::free) {
    table.rows = table.by_interval ? interval_rows(settings, statistics, names)
                                   : degree_rows(settings, statistics, names, texts);
  }
  table.total = total_of(table.rows);
  if (settings.Uebungsmodus == Level::free) table.total.back.reset();
  return table;
}

}  // namespace tonarix
