#include "engine/answer_book.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "engine/answer_rules.h"

namespace tonarix {

namespace {

constexpr float kWrongTry = 2;
constexpr float kNearMiss = 1;
constexpr float kRightAtOnce = -4;  // the reward before repeats and lateness

}  // namespace

float AnswerClock::stop(double now) {
  pause(now);
  return answer_tenths(spent_);
}

void AnswerBook::begin_task(std::span<const std::int16_t> intervals, int first_asked, Rules rules) {
  places_ = {};
  open_ = {};
  count_ = static_cast<int>(intervals.size());
  first_asked_ = first_asked;
  rules_ = rules;
  wdh_gesamt_ = 0;
  for (int i = 0; i < count_; ++i) {
    places_.at(at(i)).interval = intervals[at(i)];
    open_.at(at(i)) = i >= first_asked;
  }
}

int AnswerBook::asked() const {
  int place = 0;
  while (place < count_ && !open(place)) ++place;
  return place;
}

int AnswerBook::wrong_tries(int place) const {
  return static_cast<int>(std::max(places_.at(at(place)).rf, 0.0F) / kWrongTry);
}

Verdict AnswerBook::right(int place, float tenths) {
  AnsweredInterval& interval = places_.at(at(place));
  if (interval.rf == 0 && rules_.rewarded) {
    interval.zeit_gewicht += ZeitStrafe(tenths, rules_.zeit_grenze);
    interval.rf = kRightAtOnce;
  }
  close(place);
  return Verdict::right;
}

Verdict AnswerBook::near_miss(int place) {
  places_.at(at(place)).rf += kNearMiss;
  close(place);
  return Verdict::near_miss;
}

Verdict AnswerBook::wrong(int place, std::int16_t value) {
  AnsweredInterval& interval = places_.at(at(place));
  interval.rf += kWrongTry;
  interval.f_antw_wert.at(static_cast<std::size_t>(interval.rf / kWrongTry)) = value;
  if (interval.rf >= RF) {
    close(place);
    return Verdict::given_up;
  }
  wdh_gesamt_ = 0;
  return Verdict::wrong;
}

void AnswerBook::add_lateness(int place, float tenths) {
  places_.at(at(place)).zeit_gewicht += ZeitStrafe(tenths, rules_.zeit_grenze);
}

void AnswerBook::count_repeat() {
  places_.at(at(asked())).wdh_gewicht += 1;
  wdh_gesamt_ += 1;
}

void AnswerBook::count_keynote() {
  auto& repeats = places_.at(at(asked())).wdh_gewicht;
  repeats = round_to_int16(Round(repeats + 0.5));
  wdh_gesamt_ += 0.5F;
}

std::span<const AnsweredInterval> AnswerBook::answered() const {
  return std::span(places_).subspan(at(first_asked_), at(count_ - first_asked_));
}

void AnswerBook::close(int place) {
  open_.at(at(place)) = false;
  wdh_gesamt_ = 0;
}

}  // namespace tonarix
