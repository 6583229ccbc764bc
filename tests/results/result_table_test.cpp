#include "results/result_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "base/runtime_error.h"
#include "results/chart.h"
#include "results/percentage.h"
#include "support/key_texts.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

struct ResultTableTest : testing::Test {
  ResultTableTest() {
    statistics.init_arr(3, 42);
    settings.Uebungsmodus = 1;
    settings.abfr_iv = 1;
  }
  void answered(std::int16_t row, float times, float sum, float wrong = 0) {
    statistics.Save(row, 0, times);
    statistics.Save(row, 1, sum);
    statistics.Save(row, 2, wrong);
  }
  ResultTable table() const { return result_table(settings, statistics, names, texts); }
  std::vector<int> shown(int column) const {
    std::vector<int> rows;
    for (const ResultRow& row : table().rows) {
      if (row.column == column) rows.push_back(row.control);
    }
    return rows;
  }

  KeyTexts texts;
  IntervalNames names{texts};
  Settings settings;
  Auswertung statistics;
};

TEST_F(ResultTableTest, IntervalsStandInOrderOfSizeRisingAtLeft) {
  for (std::int16_t row = 1; row <= 42; ++row) statistics.Increment(row, 3);
  EXPECT_THAT(shown(0),
              ElementsAre(11, 4, 18, 21, 7, 8, 17, 3, 12, 13, 2, 16, 9, 6, 20, 19, 5, 10, 1));
  const ResultTable full = table();
  ASSERT_EQ(full.rows.size(), 38U);
  for (std::size_t i = 0; i < 19; ++i) {
    EXPECT_EQ(full.rows[i + 19].control, full.rows[i].control + 21);
    EXPECT_EQ(full.rows[i + 19].label, full.rows[i].label);
  }
}

TEST_F(ResultTableTest, OnlyIntervalsThatWereOfferedShowAndCount) {
  statistics.Increment(4, 3);
  statistics.Increment(4 + 21, 3);
  answered(4, 1, -16);
  answered(7, 1, 0);  // never offered
  const ResultTable result = table();
  EXPECT_THAT(shown(0), ElementsAre(4));
  EXPECT_THAT(shown(1), ElementsAre(25));
  EXPECT_EQ(result.rows[0].field.text, "100.0%");
  EXPECT_EQ(result.rows[0].field.back, scale::from_80);
  EXPECT_EQ(result.rows[1].field.text, "") << "offered and never answered";
  EXPECT_EQ(result.rows[1].field.back, std::nullopt);
  EXPECT_EQ(result.total.text, "100.0%");
}

TEST_F(ResultTableTest, ATestTellsFailedFromNeverAsked) {
  settings.Uebungsmodus = 4;
  for (const std::int16_t row : {2, 3, 4}) statistics.Increment(row, 3);
  statistics.SaveBest(2, -16.0F);
  statistics.SaveBest(2, -16.0F);
  statistics.SaveBest(3, 0.0F);
  const ResultTable result = table();  // in the order 4, 3, 2
  EXPECT_EQ(result.rows[0].field.text, "");
  EXPECT_EQ(result.rows[0].field.back, scale::under_20);
  EXPECT_EQ(result.rows[1].field.text, "0.0%");
  EXPECT_EQ(result.rows[2].field.text, "100.0%");
  EXPECT_EQ(result.total.text, "50.0%");
  EXPECT_EQ(result.total.back, scale::under_60);
}

TEST_F(ResultTableTest, DegreesTakeBothDirectionsTogether) {
  settings.abfr_iv = 0;
  for (const auto& [tongeschl, count, fourth] :
       {std::tuple<std::int16_t, int, const char*>{0, 7, "(IV)"},
        {1, 9, "(IV)"},
        {2, 11, "(IIIa)"}}) {
    settings.tongeschl = tongeschl;
    const ResultTable result = table();
    ASSERT_EQ(static_cast<int>(result.rows.size()), count);
    EXPECT_EQ(result.rows[3].short_label, fourth);
    EXPECT_EQ(result.rows[0].label, "(I) " + KeyTexts::shown(449_text) + " " +
                                        KeyTexts::shown(701_text) + " " +
                                        KeyTexts::shown(450_text));
    EXPECT_EQ(result.rows.back().control, count);
  }
  settings.tongeschl = 0;
  answered(2, 2, -20, 1);
  answered(2 + 11, 1, -4);
  EXPECT_EQ(table().rows[1].field.text, "48.4%");
  EXPECT_EQ(table().rows[2].field.text, "");
  EXPECT_EQ(table().total.text, "48.4%");
}

TEST_F(ResultTableTest, WithoutALevelOrAnAnswerTheTotalIsNought) {
  settings.Uebungsmodus = 0;
  Auswertung untouched;
  const ResultTable free_practice = result_table(settings, untouched, names, texts);
  EXPECT_TRUE(free_practice.rows.empty());
  EXPECT_EQ(free_practice.total.text, "0.0 %");
  EXPECT_EQ(free_practice.total.back, scale::under_20);
  settings.Uebungsmodus = 3;
  EXPECT_EQ(table().total.text, "0.0 %");
  EXPECT_THROW(result_table(settings, untouched, names, texts), RuntimeError);
}

TEST_F(ResultTableTest, TheTotalIsTheMeanOfTheFilledFieldsWhateverTheStatistics) {
  std::mt19937 generator(11);
  std::uniform_int_distribution<int> tenths(-400, 0), count(0, 5), level(1, 4), scale_kind(0, 2);
  for (int round = 0; round < 2000; ++round) {
    statistics.Clear();
    settings.Uebungsmodus = static_cast<std::int16_t>(level(generator));
    settings.abfr_iv = static_cast<std::int16_t>(round % 2);
    settings.tongeschl = static_cast<std::int16_t>(scale_kind(generator));
    for (std::int16_t row = 1; row <= 42; ++row) {
      const int times = count(generator);
      const float value = static_cast<float>(tenths(generator)) / 10.0F;
      if (settings.Uebungsmodus > 2) {
        for (int i = 0; i < times; ++i) statistics.SaveBest(row, value / static_cast<float>(i + 1));
      } else {
        answered(row, static_cast<float>(times), times > 0 ? value : 0);
      }
      statistics.Save(row, 2, static_cast<float>(count(generator) / 4));
      statistics.Save(row, 3, static_cast<float>(count(generator) / 2));
    }
    const ResultTable result = table();
    double sum = 0;
    int filled = 0;
    for (const ResultRow& row : result.rows) {
      EXPECT_EQ(row.field.text.empty(), !row.field.fraction.has_value());
      if (!row.field.fraction) continue;
      EXPECT_GE(*row.field.fraction, 0.0);
      sum += *row.field.fraction;
      ++filled;
    }
    ASSERT_EQ(result.total.fraction.has_value(), filled > 0);
    if (filled > 0) {
      EXPECT_NEAR(*result.total.fraction, sum / filled, 1e-12);
    }

    const Chart chart = result_chart(result, {"up", "down"}, texts);
    ASSERT_EQ(chart.bars.size(), result.rows.size());
    for (const Bar& bar : chart.bars) EXPECT_TRUE(bar.length >= 0 && bar.length <= 1);
  }
}

TEST_F(ResultTableTest, TheChartHasTheSheetsOrderAndSpeaksWeakestFirst) {
  texts.given = {{700, ": "}, {1209, "not asked"}};
  for (const std::int16_t row : {2, 3, 4, 25}) statistics.Increment(row, 3);
  answered(2, 1, -16);
  answered(3, 1, -24);
  answered(25, 1, -8);
  const Chart chart = result_chart(table(), {"up", "down"}, texts);
  ASSERT_EQ(chart.bars.size(), 4U);
  EXPECT_EQ(chart.lines, 3) << "a second up and down share a line";
  EXPECT_EQ(chart.bars[0].line, chart.bars[3].line);
  EXPECT_EQ(chart.full, 1.5);
  EXPECT_EQ(chart.bars[1].length, 1.0);
  EXPECT_DOUBLE_EQ(chart.bars[2].length, 1.0 / 1.5);
  EXPECT_EQ(chart.bars[2].colour, scale::from_80);
  EXPECT_EQ(chart.bars[3].label, KeyTexts::shown(260_text));
  EXPECT_EQ(chart.text,
            "[281] down: 50.0%\n[452] up: 100.0%\n[451] up: 150.0%\n[281] up: not asked");
  EXPECT_EQ(result_chart({}, {}, texts).text, KeyTexts::shown(1210_text));
}

}  // namespace
}  // namespace tonarix
