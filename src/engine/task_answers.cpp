#include "engine/task_answers.h"

#include "base/arithmetic.h"

namespace tonarix {

namespace {

/// A count that 16 bits can't hold any more is an overflow like any other.
void count(std::int16_t& counter) {
  counter = to_int16(counter + 1);
}

}  // namespace

void TaskAnswers::begin_task(std::span<const std::int16_t> intervals,
                             const AnswerBook::Rules& rules) {
  book.begin_task(intervals, rules);
  restart();
  pause();
  lfd_ = 1;
}

float TaskAnswers::take(std::optional<double> pitch_gap) {
  const float tenths = stop();
  protocol_.ProtokollProperty("AntwDau", tenths);
  protocol_.ProtokollMesswerte(tenths / 10.0, book.heard(asked()).total(), pitch_gap);
  return tenths;
}

void TaskAnswers::open_next(std::int16_t interval) {
  restart();
  protocol_.ProtokollAntwort(++lfd_, interval);
}

void TaskAnswers::right(int place, float tenths) {
  protocol_.ProtokollProperty("Antwort", "true");
  count(counts.right);
  book.right(place, tenths);
}

void TaskAnswers::near_miss(int place, std::string_view word) {
  protocol_.ProtokollProperty("Antwort", word);
  book.near_miss(place);
}

Verdict TaskAnswers::wrong(int place, std::int16_t value) {
  protocol_.ProtokollProperty("Antwort", "false");
  if (value != 0) {
    protocol_.ProtokollProperty("FalschIv", static_cast<int>(value));
  } else {
    protocol_.ProtokollProperty("FalschIv", "");
  }
  count(counts.wrong);
  return book.wrong(place, value);
}

void TaskAnswers::count_repeat() {
  count(counts.repeats);
  book.count_repeat();
}

void TaskAnswers::count_keynote() {
  count(counts.keynotes);
  book.count_keynote();
}

}  // namespace tonarix
