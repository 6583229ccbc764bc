#include "engine/task_answers.h"

namespace tonarix {

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
  ++counts.right;
  protocol_.ProtokollProperty("Antwort", "true");
  book.right(place, tenths);
}

void TaskAnswers::near_miss(int place, std::string_view word) {
  protocol_.ProtokollProperty("Antwort", word);
  book.near_miss(place);
}

Verdict TaskAnswers::wrong(int place, std::int16_t value) {
  ++counts.wrong;
  protocol_.ProtokollProperty("Antwort", "false");
  if (value != 0) {
    protocol_.ProtokollProperty("FalschIv", static_cast<int>(value));
  } else {
    protocol_.ProtokollProperty("FalschIv", "");
  }
  return book.wrong(place, value);
}

void TaskAnswers::count_repeat() {
  ++counts.repeats;
  book.count_repeat();
}

void TaskAnswers::count_keynote() {
  ++counts.keynotes;
  book.count_keynote();
}

}  // namespace tonarix
