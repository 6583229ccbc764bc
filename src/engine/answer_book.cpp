#include "engine/answer_book.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "engine/answer_rules.h"

namespace tonarix {

namespace {

constexpr float kWrongTry = 2;
constexpr float kNearMiss = 1;
constexpr float kRightAtOnce = -4;  // the reward before repeats and lateness

}  // namespace

void AnswerClock::go_on(double now) {
  if (runs_) return;
  started_ = now;
  runs_ = true;
}

void AnswerClock::pause(double now) {
  if (runs_) spent_ += now - started_;
  runs_ = false;
}

float AnswerClock::stop(double now) {
  pause(now);
  return answer_tenths(spent_);
}

void AnswerBook::begin_task(std::span<const std::int16_t> intervals, const Rules& rules) {
  places_ = {};
  heard_ = {};
  open_ = {};
  count_ = static_cast<int>(intervals.size());
  rules_ = rules;
  for (int i = 0; i < count_; ++i) {
    places_.at(at(i)).interval = intervals[at(i)];
    open_.at(at(i)) = i >= rules.first_asked;
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

int AnswerBook::tries_left(int place) const {
  return static_cast<int>(kErrorCeiling / kWrongTry) - wrong_tries(place);
}

// An answer uses up what was heard for it.
AnsweredInterval& AnswerBook::answer_to(int place) {
  if (place < 0 || place >= count_ || !open(place)) throw RuntimeError::index_out_of_range("iv_nr");
  heard_.at(at(place)) = {};
  return places_.at(at(place));
}

Verdict AnswerBook::right(int place, float tenths) {
  AnsweredInterval& interval = answer_to(place);
  if (interval.rf == 0 && rules_.rewarded) {
    interval.zeit_gewicht += ZeitStrafe(tenths, rules_.zeit_grenze);
    interval.rf = kRightAtOnce;
  }
  open_.at(at(place)) = false;
  return Verdict::right;
}

Verdict AnswerBook::near_miss(int place) {
  answer_to(place).rf += kNearMiss;
  open_.at(at(place)) = false;
  return Verdict::near_miss;
}

Verdict AnswerBook::wrong(int place, std::int16_t value) {
  AnsweredInterval& interval = answer_to(place);
  interval.rf += kWrongTry;
  interval.f_antw_wert.at(static_cast<std::size_t>(interval.rf / kWrongTry)) = value;
  if (interval.rf < kErrorCeiling) return Verdict::wrong;
  open_.at(at(place)) = false;
  return Verdict::given_up;
}

void AnswerBook::add_lateness(int place, float tenths, std::int16_t zeit_grenze) {
  places_.at(at(place)).zeit_gewicht += ZeitStrafe(tenths, zeit_grenze);
}

void AnswerBook::count_repeat() {
  auto& repeats = places_.at(at(asked())).wdh_gewicht;
  repeats = to_int16(repeats + 1);
  ++heard_.at(at(asked())).repeats;
}

void AnswerBook::count_keynote() {
  auto& repeats = places_.at(at(asked())).wdh_gewicht;
  repeats = round_to_int16(Round(repeats + 0.5));
  ++heard_.at(at(asked())).keynotes;
}

std::span<const AnsweredInterval> AnswerBook::answered() const {
  return std::span(places_).subspan(at(rules_.first_scored), at(count_ - rules_.first_scored));
}

}  // namespace tonarix
