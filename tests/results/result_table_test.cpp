#include "results/result_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "music/degrees.h"
#include "results/percentage.h"
#include "results/result_bed.h"

namespace tonarix {
namespace {

struct ResultTableTest : testing::Test, ResultBed {
  ResultTable table() const { return result_table(settings, statistics, names, texts); }
};

TEST_F(ResultTableTest, OfferedIntervalsStandInOrderOfSizeRisingAtLeft) {
  for (std::int16_t row = 1; row <= 42; ++row) offered(row);
  answered(10 + 21, 1, 0);
  statistics.Save(StatisticRow(10 + 21), 3, 0);  // never offered, so neither shown nor counted
  answered(11, 1, -16);
  const ResultTable full = table();
  const int by_size[] = {11, 4, 18, 21, 7, 8, 17, 3, 12, 13, 2, 16, 9, 6, 20, 19, 5, 10, 1};
  ASSERT_EQ(full.rows.size(), 37U);
  for (std::size_t i = 0; i < full.rows.size(); ++i) {
    const std::size_t place = i == 36 ? 18 : i % 19;  // the falling major seventh is left out
    EXPECT_EQ(full.rows[i].label, names.long_name(static_cast<IntervalCode>(by_size[place])));
    EXPECT_EQ(full.rows[i].column, i < 19 ? 0 : 1);
    EXPECT_EQ(full.rows[i].place, static_cast<int>(place));
  }
  EXPECT_EQ(full.rows[0].field.text, "100.0%");
  EXPECT_EQ(full.rows[0].field.back, scale::from_80);
  EXPECT_EQ(full.rows[1].field.text, "") << "offered and never answered";
  EXPECT_EQ(full.rows[1].field.back, std::nullopt);
  EXPECT_EQ(full.total.text, "100.0%");
}

TEST_F(ResultTableTest, ATestTellsFailedFromNeverAsked) {
  settings.Uebungsmodus = Level::exam;
  for (const std::int16_t row : {2, 3, 4}) offered(row);
  for (const float value : {-16.0F, -16.0F}) statistics.SaveBest(StatisticRow(2), value);
  statistics.SaveBest(StatisticRow(3), 0.0F);
  const ResultTable result = table();  // in the order 4, 3, 2
  EXPECT_EQ(result.rows[0].field.text, "");
  EXPECT_EQ(result.rows[0].field.back, scale::under_20);
  EXPECT_EQ(result.rows[1].field.text, "0.0%");
  EXPECT_EQ(result.rows[2].field.text, "100.0%");
  EXPECT_EQ(result.total.text, "50.0%");
  EXPECT_EQ(result.total.back, scale::under_60);
}

TEST_F(ResultTableTest, DegreesTakeBothDirectionsTogether) {
  settings.abfr_iv = Naming::from_keynote;
  answered(2, 2, -20, 1);
  answered(2 + 11, 1, -4);
  for (const std::int16_t tongeschl : {0, 1, 2}) {
    settings.tongeschl = tongeschl;
    const ResultTable result = table();
    EXPECT_EQ(result.rows.size(), 7U + 2 * static_cast<unsigned>(tongeschl));
    EXPECT_EQ(result.rows[3].short_label, tongeschl == 2 ? "(IIIa)" : "(IV)");
    EXPECT_EQ(result.rows[3].label, tongeschl == 2 ? "(IIIa) [361]" : "(IV) [451]");
    EXPECT_EQ(result.rows[0].label, "(I) [449] [701] [450]");
    EXPECT_EQ(result.rows[1].field.text, "48.4%");
    EXPECT_EQ(result.total.text, "48.4%");
  }
  EXPECT_THROW(degree_caption(0, degree_in(7), names, texts), RuntimeError);
}

TEST_F(ResultTableTest, WithoutALevelOrAnAnswerTheTotalIsNought) {
  EXPECT_EQ(table().total.text, "0.0 %");
  EXPECT_EQ(table().total.back, scale::under_20);
  statistics = {};
  EXPECT_THROW(table(), RuntimeError);
  settings.Uebungsmodus = Level::free;
  EXPECT_TRUE(table().rows.empty());
  EXPECT_EQ(table().total.text, "0.0 %");
  EXPECT_EQ(table().total.back, std::nullopt) << "nothing was scored, so nothing failed";
}

TEST_F(ResultTableTest, TheChartHasTheSheetsOrderAndSpeaksWeakestFirst) {
  texts.given = {{700, ": "}, {1209, "not asked"}, {1210, "no percentages"}, {1048, ","}};
  answered(2, 1, -16);
  answered(3, 1, -24);
  answered(4, 1, 0.5);
  answered(25, 1, -8);
  offered(18);
  const Chart chart = result_chart(table(), {"up", "down"}, texts);  // 4, 18, 3, 2 and 4 down
  EXPECT_EQ(chart.lines, 4) << "a second up and down share a line";
  EXPECT_EQ(chart.bars.at(0).line, chart.bars.at(4).line);
  const double lengths[] = {0, 0, 1, 1 / 1.5, 0.5 / 1.5};  // the longest bar is full
  for (int bar = 0; bar < 5; ++bar) EXPECT_DOUBLE_EQ(chart.bars[bar].length, lengths[bar]);
  EXPECT_EQ(chart.bars[3].colour, scale::from_80);
  EXPECT_EQ(chart.text,
            "[281] up: -3,1%\n[281] down: 50,0%\n[452] up: 100,0%\n[451] up: 150,0%\n"
            "[576] up: not asked");
  EXPECT_EQ(result_chart({}, {}, texts).text, "no percentages");
}

struct Example {
  std::int16_t level;
  RowStatistics row;
  const char* percent;  // "" for a field that stays empty
  std::optional<RowStatistics> falling = {};
};

// Worked by hand from the rule: training (c1 + p) / Int((c0 + f) x -16), test (c0 + c1 + p) / -32
// or -48 with wrong entries; a degree with both directions together -64 or -96.
const Example kExamples[] = {
    {2, {1, 0, 0}, "0.0"},                   // failed every time: -0 is shown without its sign
    {1, {0, 0, 0}, ""},                      // never came up
    {1, {0, 0, 1}, "37.5"},                  // given as a wrong answer only: -6 / -16
    {2, {3, -29.8F, 2}, "52.8"},             // -33.8 / -64
    {1, {1, -16, 3}, "56.3"},                // -18 / -32 = 56.25, half away from zero
    {1, {1, -16, 9}, "50.0"},                // p is used up
    {1, {1, -24, 0}, "150.0"},               // not clipped
    {1, {1, 0.5F, 0}, "-3.1"},               // 0.5 / -16 = -3.125
    {3, {-16, -16, 1, true}, "79.2"},        // -38 / -48
    {4, {-9.4F, -14.2F, 0, true}, "73.8"},   // 23.6 / 32 = 73.75
    {4, {0, 0, 0, true}, "0.0"},             // asked and failed every time
    {4, {0, 0, 1, false}, ""},               // only mistaken for another
    {0, {5, -50, 0, true}, ""},              // no level, no percentage
    {1, {2, -20, 1}, "48.4", {{1, -4, 0}}},  // p = 1 - 8: -31 / -64
    {1, {2, -20, 0}, "46.9", {{1, -4, 1}}},  // p = 2 - 8: -30 / -64
    {1, {0, 0, 0}, "", {{0, 0, 0}}},
    {2, {0, 0, 0}, "37.5", {{0, 0, 1}}},  // -6 / -16
    {3, {-16, -16, 0, true}, "50.0", {{0, 0, 0, false}}},
    {3, {-16, -16, 1, true}, "40.6", {{0, 0, 0, false}}},  // -39 / -96
    {3, {0, 0, 0, false}, "", {{0, 0, 0, false}}},
};

TEST(Fractions, WorkedExamples) {
  for (const auto& [number, row, percent, falling] : kExamples) {
    const Level level{number};
    const auto fraction =
        falling ? degree_fraction(row, *falling, level) : interval_fraction(row, level);
    EXPECT_EQ(fraction ? percent_number(*fraction) : "", percent)
        << "level " << number << ": " << row.c0 << ", " << row.c1 << ", " << row.c2;
  }
}

TEST(ScaleColour, EachStepBeginsAtItsExactFraction) {
  const Colour steps[] = {RGB(255, 128, 128), RGB(255, 192, 192), RGB(255, 255, 192),
                          RGB(192, 255, 192), RGB(128, 255, 128)};  // red, yellow, green
  for (int step = 1; step < 5; ++step) {
    EXPECT_EQ(scale_colour(step * 0.2 - 0.0001), steps[step - 1]) << "shown as the next one";
    EXPECT_EQ(scale_colour(step * 0.2), steps[step]);
  }
  EXPECT_EQ(scale_colour(9.6 / 48), scale::under_40) << "a trifle under a fifth in binary";
  EXPECT_EQ(scale_colour(-0.5), scale::under_20);
  EXPECT_EQ(scale_colour(1.5), scale::from_80);
}

TEST(Fractions, SumsOfTenthsKeptInThirtyTwoBitsFallOnTheRightSide) {
  float sum = 0;
  for (int answer = 0; answer < 32; ++answer) sum += -3.2F;
  const double fraction = interval_fraction({32, sum, 0}, Level::training).value();
  EXPECT_NE(static_cast<double>(sum), -102.4) << "the sum is not exact";
  EXPECT_EQ(scale_colour(fraction), scale::under_40);
  EXPECT_EQ(percent_number(fraction), "20.0");
}

TEST(Fractions, AnyStatisticsGiveANumberOrNothing) {
  using Limits = std::numeric_limits<float>;
  const float hard[] = {
      0, -1, 16384, -1e30F, Limits::max(), Limits::infinity(), Limits::quiet_NaN()};
  for (int i = 0; i < 7 * 7 * 7 * 5; ++i) {
    const RowStatistics row{hard[i % 7], hard[i / 7 % 7], hard[i / 49 % 7], true};
    const auto level = static_cast<Level>(i / 343);
    for (const auto& fraction :
         {interval_fraction(row, level), degree_fraction(row, {1, 1, 1, true}, level)}) {
      EXPECT_TRUE(!fraction || std::isfinite(*fraction));
      EXPECT_TRUE(!fraction || percent_number(*fraction) != "-0.0");
    }
  }
}

}  // namespace
}  // namespace tonarix
