#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "flow/flow_bed.h"

namespace tonarix {
namespace {

/// How a student deals with one interval: repeats before the first answer, keynote checks before
/// the last one, tenths of a second of thinking for the first.
struct Handling {
  int wrong, repeats, checks, tenths;
};

/// What an interval earns, below 0 a reward and above 0 a fine. Keynote checks cost nothing but
/// that they make an odd number of repeats even.
float earned(const Handling& how, int free_tenths) {
  const int listening = how.repeats + (how.checks > 0 ? how.repeats % 2 : 0);
  if (how.wrong > 0) return static_cast<float>(std::min(2 * how.wrong + listening, 8));
  const int over = how.tenths - free_tenths;
  const double late = over > 0 ? 1 + over / 2 / 10.0 : 0;
  return static_cast<float>(-std::max(4 - listening - late, 0.0));
}

TEST(ScoreFlow, WhatAnIntervalEarns) {
  const auto [by_degree, direct] = std::pair{20, 25};
  EXPECT_EQ(earned({0, 0, 2, 20}, by_degree), -4);
  EXPECT_EQ(earned({0, 0, 0, 21}, by_degree), -3);
  EXPECT_EQ(earned({0, 0, 0, 30}, by_degree), -2.5);
  EXPECT_EQ(earned({0, 0, 0, 60}, by_degree), -1);
  EXPECT_EQ(earned({0, 1, 0, 20}, by_degree), -3);
  EXPECT_EQ(earned({0, 1, 2, 20}, by_degree), -2);
  EXPECT_EQ(earned({0, 3, 1, 20}, by_degree), 0);
  EXPECT_EQ(earned({0, 5, 0, 60}, by_degree), 0);
  EXPECT_EQ(earned({0, 0, 0, 25}, direct), -4);
  EXPECT_EQ(earned({0, 0, 0, 26}, direct), -3);
  EXPECT_FLOAT_EQ(earned({0, 0, 0, 30}, direct), -2.8F);
  EXPECT_FLOAT_EQ(earned({0, 0, 0, 60}, direct), -1.3F);
  EXPECT_EQ(earned({1, 0, 0, 60}, direct), 2);
  EXPECT_EQ(earned({2, 1, 1, 20}, direct), 6);
  EXPECT_EQ(earned({2, 5, 0, 20}, direct), 8);
  EXPECT_EQ(earned({4, 0, 0, 20}, direct), 8);
}

/// One press of an answer button as the document tells of it.
struct Answer {
  int tenths;
  double repeats;
  int wrong_code;  ///< 0 for the right one
};
struct Answered {
  int interval;  ///< signed code
  Handling how;
  std::vector<Answer> answers;
};

/// Waits until the answers open, to the millisecond.
void hear(FlowBed& bed, Arbeitsblatt1& window, int beats) {
  bed.scheduler.advance_ms(bed.beat() * beats + 140);
  for (int ms = 0; ms < 1000 && !window.wieder.open(); ++ms) bed.scheduler.advance_ms(1);
}

/// Thinks, listens, thinks on and answers, until the interval is right or given. Listening takes no
/// time from the answer and no answers, a wrong answer starts the time anew.
Answered answer(FlowBed& bed, Arbeitsblatt1& window, const Handling& how) {
  const int place = FlowBed::asked(window);
  Answered done{bed.module.row().iv.at(static_cast<std::size_t>(place)), how, {}};
  const int last = std::min(how.wrong, 3);
  for (int attempt = 0; attempt <= last; ++attempt) {
    const int repeats = attempt == 0 ? how.repeats : 0;
    const int checks = attempt == last ? how.checks : 0;
    const int tenths = attempt == 0 ? how.tenths : 7 + attempt;
    bed.scheduler.advance_ms(tenths * 40);
    for (int i = 0; i < repeats + checks; ++i) {
      i < repeats ? window.wieder_click() : window.grundton_click();
      bed.press(window, bed.right_code(place));
      EXPECT_FALSE(window.grundton.open());
      hear(bed, window, i < repeats ? bed.tones() : 1);
    }
    bed.scheduler.advance_ms(tenths * 60);
    const bool wrong = attempt < how.wrong;
    const std::int16_t code = wrong ? bed.wrong_code(window, place) : bed.right_code(place);
    bed.press(window, code);
    done.answers.push_back({tenths, repeats + checks / 2.0, wrong ? code : 0});
  }
  EXPECT_NE(FlowBed::asked(window), place);
  return done;
}

Arbeitsblatt1& open_level(FlowBed& bed, int level) {
  bed.settings().choose(bed.settings().temp_Combo, 9);
  bed.settings().choose(bed.settings().training_Combo, level);
  return bed.open_exercise();
}
/// Answers the row that is about to sound.
void answer_task(FlowBed& bed, Arbeitsblatt1& window, std::vector<Answered>& all,
                 const std::function<Handling()>& next) {
  hear(bed, window, bed.tones());
  while (FlowBed::asked(window) >= 0) all.push_back(answer(bed, window, next()));
}
/// From an answered row to the next one, by the keynote chord.
void go_on(FlowBed& bed, Arbeitsblatt1& window) {
  window.grundton_click();
  for (int ms = 0; ms < 3000 && FlowBed::asked(window) < 0; ++ms) {
    bed.scheduler.advance_ms(1);
    window.CmdNextAufg_click();
  }
}

/// The books of one interval in one direction.
struct Account {
  int weight = 4;
  std::vector<float> results;
  int confused = 0;  ///< times it was taken for another
};

/// Books what was answered, by signed code. An interval taken for the asked one leads in the same
/// direction, unless `known` has it in the other one only.
std::map<int, Account> books(const std::vector<Answered>& all, int abfr_iv,
                             const std::map<int, Account>& known = {}) {
  std::map<int, Account> accounts = known;
  for (const Answered& one : all) {
    const float amount = earned(one.how, abfr_iv == 0 ? 20 : 25);
    Account& asked = accounts[one.interval];
    asked.weight = static_cast<int>(static_cast<float>(asked.weight) + amount);
    asked.results.push_back((amount < 0 ? 2 * amount : amount) - 8);
    for (const Answer& given : one.answers) {
      if (given.wrong_code == 0) continue;
      int value = one.interval > 0 ? given.wrong_code : -given.wrong_code;
      if (!known.empty() && known.count(value) == 0) value = -value;
      ++accounts[value].weight;
      ++accounts[value].confused;
    }
  }
  return accounts;
}

/// The saved training against the books: weights, statistics, the shown percentage.
void expect_saved(const std::vector<Answered>& all, const Variant::Array& record, int abfr_iv,
                  int box_zeilen, const std::string& shown) {
  const auto number = [&](std::size_t place) { return std::stof(record.at(place).text()); };
  ASSERT_EQ(record.size(), static_cast<std::size_t>(6 * box_zeilen + 3));
  const auto rows = static_cast<std::size_t>(box_zeilen);
  std::map<int, Account> offered;
  for (std::size_t i = 1; i <= rows; ++i) offered[static_cast<int>(number(i))];
  const std::map<int, Account> expected = books(all, abfr_iv, offered);
  ASSERT_EQ(expected.size(), rows) << "an interval outside the box";
  int sum = 0;
  for (std::size_t i = 1; i <= rows; ++i) {
    const int value = static_cast<int>(number(i));
    SCOPED_TRACE(value);
    const Account& account = expected.at(value);
    const std::size_t statistics = 1 + 2 * rows + 4 * (i - 1);
    float results = 0;
    for (const float result : account.results) results += result;
    EXPECT_EQ(number(i + rows), account.weight);
    EXPECT_EQ(number(statistics), std::abs(value) + (value > 0 ? 0 : abfr_iv == 0 ? 11 : 21));
    EXPECT_EQ(number(statistics + 1), account.results.size());
    EXPECT_NEAR(number(statistics + 2), results, 1e-3);
    EXPECT_EQ(number(statistics + 3), account.confused);
    sum += std::max(account.weight, 0);
  }
  EXPECT_EQ(shown, std::to_string(100 * sum / (8 * box_zeilen)));
}

void expect_told(const std::vector<Answered>& all,
                 const std::vector<std::vector<FlowBed::Facts>>& lessons) {
  std::vector<FlowBed::Facts> told;
  for (const auto& lesson : lessons) told.insert(told.end(), lesson.begin(), lesson.end());
  std::size_t place = 0;
  for (const Answered& one : all) {
    for (const Answer& given : one.answers) {
      const FlowBed::Facts& facts = told.at(place++);
      EXPECT_EQ(std::stod(facts.at("AntwDau")), given.tenths);
      EXPECT_EQ(std::stod(facts.at("Anz Whlg")), given.repeats);
      EXPECT_EQ(facts.at("Antwort"), given.wrong_code == 0 ? "true" : "false");
      if (given.wrong_code == 0) continue;
      EXPECT_EQ(std::abs(std::stoi(facts.at("FalschIv"))), given.wrong_code);
    }
  }
  EXPECT_EQ(place, told.size());
}

// All ways to deal with an interval, four of them in each window, by both namings, with all degrees
// and with a chosen one, whose first interval is given and counts for nothing.
TEST(ScoreFlow, ATrainingBooksEveryWayToAnswer) {
  constexpr int kRepeats[] = {0, 1, 3, 5};
  constexpr int kTenths[] = {20, 21, 25, 26, 30, 60};
  constexpr int kWays = 5 * 4 * 3 * 6;
  constexpr int kStride = 77;  // neighbours in a window differ in everything
  int n = 0;
  const auto next = [&]() -> Handling {
    const int way = n++ * kStride % kWays;
    return {way % 5, kRepeats[way / 5 % 4], way / 20 % 3, kTenths[way / 60]};
  };
  for (int window_nr = 0; n < 5 * kWays / 2; ++window_nr) {
    SCOPED_TRACE(window_nr);
    FakeHost host;
    FlowBed bed(host, static_cast<std::uint64_t>(window_nr));
    const bool one_degree = n >= 2 * kWays;
    const int abfr_iv = (one_degree ? window_nr : n / kWays) % 2;
    Einstellung1& settings = bed.open_settings();
    settings.click(settings.abfr_iv[abfr_iv]);
    if (one_degree) {
      settings.click(settings.ton_st_wahl[1]);
      settings.choose(settings.degree_list, window_nr % 7);
    } else {
      settings.click(settings.invzahl[window_nr % 2 == 0 ? 1 : 3]);
    }
    Arbeitsblatt1& window = open_level(bed, 1);
    std::vector<Answered> all;
    while (all.size() < 4) {
      if (!all.empty()) go_on(bed, window);
      answer_task(bed, window, all, next);
    }
    const std::string shown = window.matboxanz[15].text;
    Handling sum{};
    for (const auto& [interval, how, answers] : all) {
      sum.wrong += how.wrong;
      sum.repeats += how.repeats;
      sum.checks += how.checks;
    }
    EXPECT_EQ(window.zaehler[1].text, std::to_string(sum.wrong));
    EXPECT_EQ(window.whlgzaehler.text, std::to_string(sum.repeats));
    EXPECT_EQ(window.GrdtonWhlg.text, std::to_string(sum.checks));
    bed.dialogs.script = {Reply::yes};
    expect_told(all, FlowBed::lessons(bed.leave(window)));
    const Variant::Array record = host.records["vemo06/A1"].array();
    expect_saved(all, record, abfr_iv, abfr_iv == 1 && !one_degree ? 26 : 14, shown);
    EXPECT_EQ(record.at(record.size() - 2).text(), std::to_string(sum.wrong));
    EXPECT_EQ(record.back().text(), std::to_string(sum.repeats));
    if (testing::Test::HasFailure()) break;
  }
}

/// Percentage of an interval in a test: its two best results, and what few confusions take off.
/// Right at once and in time, twice, is all.
double percent(Account account) {
  account.results.resize(account.results.size() + 2);
  std::ranges::sort(account.results);
  const float sum = account.results[0] + account.results[1];
  if (account.confused == 0) return 100 * sum / -32;
  return 100 * (sum + static_cast<float>(std::min(0, 2 * account.confused - 8))) / -48;
}

TEST(ScoreFlow, ATestKeepsTheTwoBestResultsOfEachInterval) {
  constexpr Handling kWays[] = {{0, 0, 0, 20}, {0, 0, 0, 34}, {1, 0, 0, 20}, {0, 0, 0, 25},
                                {0, 1, 0, 48}, {2, 1, 0, 20}, {0, 0, 1, 20}, {4, 0, 0, 20}};
  FakeHost host;
  FlowBed bed(host, 5);
  bed.open_settings().click(bed.settings().abfr_iv[1]);
  Arbeitsblatt1& window = open_level(bed, 3);
  std::vector<Answered> all;
  std::size_t n = 0;
  for (int task = 0; task < 15; ++task) {
    if (task > 0) go_on(bed, window);
    answer_task(bed, window, all, [&] { return kWays[n++ % std::size(kWays)]; });
  }
  std::map<std::string, int> code_of;
  for (const Control& button : window.intervall) code_of[button.text] = *button.index();
  window.zurueck_click();
  bed.scheduler.advance_ms(400);
  std::map<int, Account> accounts = books(all, 1);
  for (const ResultRow& row : bed.result().content().table.rows) {
    SCOPED_TRACE(row.label);
    const int code = code_of.at(row.label);
    const Account& account = accounts[row.column == 0 ? code : -code];
    ASSERT_EQ(row.field.text.empty(), account.results.empty());
    if (account.results.empty()) continue;
    EXPECT_NEAR(std::stod(row.field.text), percent(account), 0.0501);
  }
  EXPECT_TRUE(host.records.empty());
}

TEST(ScoreFlow, WithoutALevelNothingIsScored) {
  FakeHost host;
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin(0);
  bed.answer_row(window, 1, 1);
  EXPECT_FALSE(window.matboxanz[15].visible || window.lab_aufgaben.visible);
  window.zurueck_click();
  bed.scheduler.advance_ms(400);
  EXPECT_TRUE(bed.result().content().table.rows.empty());
  EXPECT_EQ(bed.result().content().table.total.text, "0.0 %");
  EXPECT_TRUE(host.records.empty());
}

}  // namespace
}  // namespace tonarix
