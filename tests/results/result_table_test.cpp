#include "results/result_table.h"

#include <gtest/gtest.h>

#include <random>

#include "base/runtime_error.h"
#include "results/chart.h"
#include "results/percentage.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

struct ResultTableTest : testing::Test {
  ResultTableTest() {
    statistics.init_arr(3, 42);
    settings.Uebungsmodus = Level::training;
    settings.abfr_iv = Naming::from_tone_before;
  }
  void answered(std::int16_t row, float times, float sum, float wrong = 0) {
    statistics.Save(StatisticRow(row), 0, times);
    statistics.Save(StatisticRow(row), 1, sum);
    statistics.Save(StatisticRow(row), 2, wrong);
  }
  ResultTable table() const { return result_table(settings, statistics, names, texts); }

  KeyTexts texts;
  IntervalNames names{texts};
  Settings settings;
  Auswertung statistics;
};

TEST_F(ResultTableTest, OfferedIntervalsStandInOrderOfSizeRisingAtLeft) {
  for (std::int16_t row = 1; row <= 42; ++row) statistics.Increment(StatisticRow(row), 3);
  statistics.Save(StatisticRow(10 + 21), 3, 0);
  answered(10 + 21, 1, 0);  // never offered, so neither shown nor counted
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
  for (const std::int16_t row : {2, 3, 4}) statistics.Increment(StatisticRow(row), 3);
  statistics.SaveBest(StatisticRow(2), -16.0F);
  statistics.SaveBest(StatisticRow(2), -16.0F);
  statistics.SaveBest(StatisticRow(3), 0.0F);
  const ResultTable result = table();  // in the order 4, 3, 2
  EXPECT_EQ(result.rows[0].field.text, "");
  EXPECT_EQ(result.rows[0].field.back, scale::under_20);
  EXPECT_EQ(result.rows[1].field.text, "0.0%");
  EXPECT_EQ(result.rows[2].field.text, "100.0%");
  EXPECT_EQ(result.total.text, "50.0%");
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
    EXPECT_EQ(result.rows[0].label, "(I) [449] [701] [450]");
    EXPECT_EQ(result.rows[1].field.text, "48.4%");
    EXPECT_EQ(result.total.text, "48.4%");
  }
}

TEST_F(ResultTableTest, WithoutALevelOrAnAnswerTheTotalIsNought) {
  EXPECT_EQ(table().total.text, "0.0 %");
  const Auswertung untouched;
  EXPECT_THROW(result_table(settings, untouched, names, texts), RuntimeError);
  settings.Uebungsmodus = Level::free;
  const ResultTable free_practice = result_table(settings, untouched, names, texts);
  EXPECT_TRUE(free_practice.rows.empty());
  EXPECT_EQ(free_practice.total.text, "0.0 %");
  EXPECT_EQ(free_practice.total.back, scale::under_20);
}

TEST_F(ResultTableTest, TheTotalIsTheMeanOfTheFilledFieldsWhateverTheStatistics) {
  std::mt19937 generator(11);
  std::uniform_int_distribution<int> tenths(-400, 0), count(0, 5), level(1, 4);
  for (int round = 0; round < 2000; ++round) {
    statistics.Clear();
    settings.Uebungsmodus = static_cast<Level>(level(generator));
    settings.abfr_iv = static_cast<Naming>(round % 2);
    for (std::int16_t row = 1; row <= 42; ++row) {
      const auto times = static_cast<float>(count(generator));
      const float value = static_cast<float>(tenths(generator)) / 10.0F;
      answered(row, times, times > 0 ? value : 0, static_cast<float>(count(generator) / 4));
      if (times > 2) statistics.SaveBest(StatisticRow(row), value);
      statistics.Save(StatisticRow(row), 3, static_cast<float>(count(generator) / 2));
    }
    const ResultTable result = table();
    double sum = 0;
    int filled = 0;
    for (const ResultRow& row : result.rows) {
      EXPECT_EQ(row.field.text.empty(), !row.field.fraction.has_value());
      sum += row.field.fraction.value_or(0);
      filled += row.field.fraction.has_value();
    }
    ASSERT_EQ(result.total.fraction.has_value(), filled > 0);
    EXPECT_NEAR(result.total.fraction.value_or(0), filled > 0 ? sum / filled : 0, 1e-12);
    const Chart chart = result_chart(result, {"up", "down"}, texts);
    ASSERT_EQ(chart.bars.size(), result.rows.size());
    for (const Bar& bar : chart.bars) EXPECT_TRUE(bar.length >= 0 && bar.length <= 1);
  }
}

TEST_F(ResultTableTest, TheChartHasTheSheetsOrderAndSpeaksWeakestFirst) {
  texts.given = {{700, ": "}, {1209, "not asked"}};
  for (const std::int16_t row : {2, 3, 4, 25}) statistics.Increment(StatisticRow(row), 3);
  answered(2, 1, -16);
  answered(3, 1, -24);
  answered(25, 1, -8);
  const Chart chart = result_chart(table(), {"up", "down"}, texts);
  EXPECT_EQ(chart.lines, 3) << "a second up and down share a line";
  EXPECT_EQ(chart.bars.at(0).line, chart.bars.at(3).line);
  EXPECT_DOUBLE_EQ(chart.bars[2].length, 1.0 / 1.5) << "the longest bar is full";
  EXPECT_EQ(chart.bars[2].colour, scale::from_80);
  EXPECT_EQ(chart.text,
            "[281] down: 50.0%\n[452] up: 100.0%\n[451] up: 150.0%\n[281] up: not asked");
  EXPECT_EQ(result_chart({}, {}, texts).text, KeyTexts::shown(1210_text));
}

}  // namespace
}  // namespace tonarix
