#include "engine/task_answers.h"

#include "base/arithmetic.h"

namespace tonarix {

void TaskAnswers::begin_task(std::span<const std::int16_t> intervals, int first_asked,
                             AnswerBook::Rules rules) {
  book_.begin_task(intervals, first_asked, rules);
  clock_.restart(now());
  lfd_ = 1;
}

float TaskAnswers::take(std::optional<double> pitch_gap) {
  const float tenths = clock_.stop(now());
  protocol_.ProtokollProperty("AntwDau", tenths);
  protocol_.ProtokollMesswerte(tenths / 10.0, book_.wdh_gesamt(), pitch_gap);
  return tenths;
}

void TaskAnswers::open_next() {
  clock_.restart(now());
  protocol_.ProtokollAntwort(++lfd_, to_int16(asked()));
}

void TaskAnswers::right(int place, float tenths) {
  ++counts.right;
  protocol_.ProtokollProperty("Antwort", "true");
  book_.right(place, tenths);
}

void TaskAnswers::near_miss(int place, std::string_view word) {
  protocol_.ProtokollProperty("Antwort", word);
  book_.near_miss(place);
}

Verdict TaskAnswers::wrong(int place, std::int16_t value) {
  ++counts.wrong;
  protocol_.ProtokollProperty("Antwort", "false");
  if (value != 0) {
    protocol_.ProtokollProperty("FalschIv", static_cast<int>(value));
  } else {
    protocol_.ProtokollProperty("FalschIv", "");
  }
  return book_.wrong(place, value);
}

void TaskAnswers::count_repeat() {
  ++counts.repeats;
  book_.count_repeat();
}

void TaskAnswers::count_keynote() {
  ++counts.keynotes;
  book_.count_keynote();
}

}  // namespace tonarix
