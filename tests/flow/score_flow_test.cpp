#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <numeric>
#include <ranges>

#include "base/arithmetic.h"
#include "flow/flow_bed.h"
#include "settings/offered_intervals.h"

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
  const std::tuple<int, Handling, float> cases[] = {
      {20, {0, 0, 2, 20}, -4},    {20, {0, 0, 0, 21}, -3}, {20, {0, 0, 0, 30}, -2.5F},
      {20, {0, 1, 2, 20}, -2},    {20, {0, 3, 1, 20}, 0},  {25, {0, 0, 0, 26}, -3},
      {25, {0, 0, 0, 30}, -2.8F}, {25, {2, 1, 1, 20}, 6},  {25, {4, 0, 0, 20}, 8}};
  for (const auto& [free_tenths, how, expected] : cases) {
    EXPECT_FLOAT_EQ(earned(how, free_tenths), expected);
  }
}

/// One press of an answer button: tenths of a second, repeats, the code of a wrong one or 0.
using Press = std::array<double, 3>;
/// The books of one interval in one direction.
struct Account {
  int weight = 4;
  std::vector<float> results;
  int confused = 0;  ///< times it was taken for another
};

/// A student who remembers what must be told and booked.
struct ScoreBed : FlowBed {
  ScoreBed(FakeHost& host, int seed, int abfr_iv)
      : FlowBed(host, static_cast<std::uint64_t>(seed)) {
    open_settings().click(settings().abfr_iv[abfr_iv]);
    settings().choose(settings().temp_Combo, 9);
  }
  Arbeitsblatt1& start(int level) {
    settings().choose(settings().training_Combo, level);
    window = &open_exercise();
    const Settings& now = module.settings();
    Key key;
    build_scale(key, now.tongeschl, now.abfr_iv);
    const IntervalList offered = offered_intervals(now, key);
    for (const int value : offered) accounts[value];
    return *window;
  }
  void wait_until(const std::function<bool()>& done) {
    for (int ms = 0; ms < 3000 && !done(); ++ms) scheduler.advance_ms(1);
  }
  /// Waits until the answers open, to the millisecond.
  void hear(int beats) {
    scheduler.advance_ms(beat() * beats + 140);
    wait_until([&] { return window->wieder.open(); });
  }
  /// Answers the next row; from an answered one the keynote chord leads there.
  void answer_task(const std::function<Handling()>& next) {
    if (!presses.empty()) window->grundton_click();
    wait_until([&] {
      window->CmdNextAufg_click();
      return asked(*window) >= 0;
    });
    hear(tones());
    while (asked(*window) >= 0) answer(next());
  }
  /// Thinks, listens, thinks on and answers, until the interval is right or given. Listening takes
  /// no time from the answer and no answers, a wrong answer starts the time anew.
  void answer(const Handling& how) {
    const int place = asked(*window);
    const int interval = module.row().iv.at(static_cast<std::size_t>(place));
    const int last = std::min(how.wrong, 3);
    for (int attempt = 0; attempt <= last; ++attempt) {
      const int repeats = attempt == 0 ? how.repeats : 0;
      const int checks = attempt == last ? how.checks : 0;
      const int tenths = attempt == 0 ? how.tenths : 7 + attempt;
      scheduler.advance_ms(tenths * 40);
      for (int i = 0; i < repeats + checks; ++i) {
        i < repeats ? window->wieder_click() : window->grundton_click();
        press(*window, right_code(place));
        EXPECT_FALSE(window->grundton.open());
        hear(i < repeats ? tones() : 1);
      }
      scheduler.advance_ms(tenths * 60);
      const int wrong = attempt < how.wrong ? wrong_code(*window, place) : 0;
      press(*window, wrong != 0 ? to_int16(wrong) : right_code(place));
      presses.push_back({tenths * 1.0, repeats + checks / 2.0, wrong * 1.0});
      if (wrong == 0) continue;
      // It leads in the same direction, unless the box has it in the other one only.
      const int value = interval > 0 ? wrong : -wrong;
      Account& taken = accounts.at(accounts.contains(value) ? value : -value);
      ++taken.weight;
      ++taken.confused;
    }
    EXPECT_NE(asked(*window), place);
    const float amount = earned(how, window->by_degree() ? 20 : 25);
    Account& booked = accounts.at(interval);
    booked.weight = static_cast<int>(static_cast<float>(booked.weight) + amount);
    booked.results.push_back((amount < 0 ? 2 * amount : amount) - 8);
    ++answered;
    total = {total.wrong + how.wrong, total.repeats + how.repeats, total.checks + how.checks, 0};
  }
  Arbeitsblatt1* window = nullptr;
  std::map<int, Account> accounts;  ///< by signed code
  std::vector<Press> presses;
  int answered = 0;
  Handling total{};
};

/// The saved training against the books: weights, statistics, the shown percentage.
/// Falling intervals have their statistics `half` rows behind the rising ones.
void expect_saved(const ScoreBed& bed, const Variant::Array& record, int half,
                  const std::string& shown) {
  const auto number = [&](std::size_t place) { return std::stof(record.at(place).text()); };
  const std::size_t rows = bed.accounts.size();
  ASSERT_EQ(record.size(), 6 * rows + 3);
  int sum = 0;
  for (std::size_t i = 1; i <= rows; ++i) {
    const int value = static_cast<int>(number(i));
    SCOPED_TRACE(value);
    const Account& account = bed.accounts.at(value);
    const std::size_t statistics = 1 + 2 * rows + 4 * (i - 1);
    const float results = std::accumulate(account.results.begin(), account.results.end(), 0.0F);
    EXPECT_EQ(number(i + rows), account.weight);
    EXPECT_EQ(number(statistics), value > 0 ? value : half - value);
    EXPECT_EQ(number(statistics + 1), account.results.size());
    EXPECT_NEAR(number(statistics + 2), results, 1e-3);
    EXPECT_EQ(number(statistics + 3), account.confused);
    sum += std::max(account.weight, 0);
  }
  EXPECT_EQ(number(record.size() - 2), bed.total.wrong);
  EXPECT_EQ(number(record.size() - 1), bed.total.repeats);
  EXPECT_EQ(shown, std::to_string(100 * sum / (8 * std::ssize(bed.accounts))));
}

std::vector<Press> told(const std::vector<std::vector<FlowBed::Facts>>& lessons) {
  std::vector<Press> presses;
  for (const FlowBed::Facts& facts : std::views::join(lessons)) {
    const double wrong =
        facts.at("Antwort") == "true" ? 0 : std::abs(std::stod(facts.at("FalschIv")));
    presses.push_back({std::stod(facts.at("AntwDau")), std::stod(facts.at("Anz Whlg")), wrong});
  }
  return presses;
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
    const bool one_degree = n >= 2 * kWays;
    const int abfr_iv = (one_degree ? window_nr : n / kWays) % 2;
    ScoreBed bed(host, window_nr, abfr_iv);
    Einstellung1& settings = bed.settings();
    if (one_degree) {
      settings.click(settings.tongeschl[window_nr % 3]);
      settings.click(settings.ton_st_wahl[1]);
      settings.choose(settings.degree_list,
                      window_nr % static_cast<int>(settings.degree_list.items.size()));
    } else {
      settings.click(settings.invzahl[window_nr % 2 == 0 ? 1 : 3]);
    }
    Arbeitsblatt1& window = bed.start(1);
    while (bed.answered < 4) bed.answer_task(next);
    EXPECT_TRUE(one_degree || bed.accounts.size() == (abfr_iv == 0 ? 14U : 26U));
    EXPECT_EQ(window.zaehler[1].text, std::to_string(bed.total.wrong));
    EXPECT_EQ(window.whlgzaehler.text, std::to_string(bed.total.repeats));
    EXPECT_EQ(window.GrdtonWhlg.text, std::to_string(bed.total.checks));
    EXPECT_TRUE(!one_degree || window.ergebnis[0].back == signal::right) << "as given";
    const std::string shown = window.matboxanz[15].text;
    bed.dialogs.script = {Reply::yes};
    const auto lessons = FlowBed::lessons(bed.leave(window));
    EXPECT_EQ(told(lessons), bed.presses);
    expect_saved(bed, host.records["vemo06/A1"].array(), abfr_iv == 0 ? 11 : 21, shown);
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
  ScoreBed bed(host, 5, 1);
  Arbeitsblatt1& window = bed.start(3);
  std::size_t n = 0;
  for (int task = 0; task < 15; ++task) {
    bed.answer_task([&] { return kWays[n++ % std::size(kWays)]; });
  }
  std::map<std::string, int> code_of;
  for (const Control& button : window.intervall) code_of[button.text] = *button.index();
  code_of["[449s]"] = 1;  // whose button names the octave too
  bed.dialogs.script = {Reply::yes};
  window.zurueck_click();
  bed.scheduler.advance_ms(400);
  for (const ResultRow& row : bed.result().content().table.rows) {
    const int code = code_of.at(row.label);
    const Account& account = bed.accounts.at(row.column == 0 ? code : -code);
    ASSERT_EQ(row.field.text.empty(), account.results.empty());
    if (account.results.empty()) continue;
    EXPECT_NEAR(std::stod(row.field.text), percent(account), 0.0501) << row.label;
  }
  EXPECT_TRUE(host.records.empty());
}

}  // namespace
}  // namespace tonarix
