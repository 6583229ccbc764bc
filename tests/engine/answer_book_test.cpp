#include "engine/answer_book.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/runtime_error.h"

namespace tonarix {
namespace {

constexpr std::array<std::int16_t, 3> kRow{4, -3, 1};

struct AnswerBookTest : testing::Test {
  AnswerBookTest() { begin(); }
  void begin(const AnswerBook::Rules& rules = {}) { book.begin_task(kRow, rules); }
  AnswerBook book;
};

TEST_F(AnswerBookTest, EveryVerdictMovesTheScoreAndSaysWhetherThePlaceCloses) {
  struct Case {
    std::vector<std::function<Verdict()>> answers;
    float rf;
    float late;
    Verdict last;
    bool open;
  };
  const auto right = [&](float tenths) { return [&, tenths] { return book.right(0, tenths); }; };
  const auto wrong = [&] { return book.wrong(0, 7); };
  const auto near_miss = [&] { return book.near_miss(0); };
  const auto first_click = [&] { return book.add_lateness(0, 21, 20), Verdict{}; };
  for (const Case& one : {Case{{right(20)}, -4, 0, Verdict::right, false},
                          Case{{right(30)}, -4, 1.5F, Verdict::right, false},
                          Case{{first_click, right(30)}, -4, 2.5F, Verdict::right, false},
                          Case{{near_miss}, 1, 0, Verdict::near_miss, false},
                          Case{{wrong, right(30)}, 2, 0, Verdict::right, false},
                          Case{{wrong, near_miss}, 3, 0, Verdict::near_miss, false},
                          Case{{wrong, wrong, wrong, wrong}, 8, 0, Verdict::given_up, false}}) {
    begin();
    Verdict last{};
    for (const auto& answer : one.answers) last = answer();
    EXPECT_EQ(last, one.last);
    EXPECT_EQ(book.place(0).rf, one.rf);
    EXPECT_FLOAT_EQ(book.place(0).zeit_gewicht, one.late);
    EXPECT_EQ(book.open(0), one.open);
  }
  EXPECT_EQ(book.place(0).f_antw_wert, (std::array<std::int16_t, 5>{0, 7, 7, 7, 7}));
  begin({.zeit_grenze = 25, .rewarded = false});  // free practice earns nothing
  book.right(0, 60);
  EXPECT_EQ(book.place(0).rf, 0);
  EXPECT_EQ(book.place(0).zeit_gewicht, 0);
}

TEST_F(AnswerBookTest, AsksThePlacesInAnyOrderAndLeavesOutWhatIsGiven) {
  begin({.first_asked = 1, .first_scored = 1});  // the first interval is shown
  EXPECT_THROW(book.right(0, 0), RuntimeError);
  EXPECT_EQ(book.asked(), 1);
  book.right(2, 0);  // a row that is written may be right at its end first
  EXPECT_EQ(book.asked(), 1);
  EXPECT_FALSE(book.done());
  book.near_miss(1);
  EXPECT_TRUE(book.done());
  ASSERT_EQ(book.answered().size(), 2U);
  EXPECT_EQ(book.answered()[0].interval, -3);
  EXPECT_EQ(book.answered()[1].rf, -4);
  for (const int closed : {1, 2, 3}) EXPECT_THROW(book.right(closed, 0), RuntimeError);
  begin({.first_asked = 0, .first_scored = 2});  // answered from its beginning, scored at its end
  EXPECT_EQ(book.asked(), 0);
  EXPECT_EQ(book.answered().size(), 1U);
}

TEST_F(AnswerBookTest, HearingCountsForThePlaceThatIsAskedAndTheFirstKeynoteIsFree) {
  book.count_keynote();
  EXPECT_EQ(book.place(0).wdh_gewicht, 0);
  book.count_repeat();
  book.count_keynote();
  EXPECT_EQ(book.place(0).wdh_gewicht, 2);
  EXPECT_EQ(book.heard(0).total(), 2) << "two keynotes are one repeat";
  book.wrong(1);  // another column of the same row
  EXPECT_EQ(book.heard(0).keynotes, 2);
  book.wrong(0);
  EXPECT_EQ(book.heard(0).total(), 0) << "the protocol counts anew for each answer";
  book.right(0, 0);
  book.count_repeat();
  EXPECT_EQ(book.place(0).wdh_gewicht, 2);
  EXPECT_EQ(book.place(1).wdh_gewicht, 1);
}

TEST(AnswerClock, StandsWhileSomethingSounds) {
  AnswerClock clock;
  clock.restart(100);
  clock.pause(101.5);
  clock.pause(105);
  clock.go_on(110);
  clock.go_on(110.3);
  EXPECT_EQ(clock.stop(110.6), 21);
  EXPECT_EQ(clock.stop(200), 21) << "several columns have the same time";
  for (const auto& [seconds, tenths] : {std::pair{0.44, 4}, {0.46, 5}}) {
    clock.restart(120);
    EXPECT_EQ(clock.stop(120 + seconds), tenths);
  }
}

}  // namespace
}  // namespace tonarix
