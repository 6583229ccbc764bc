#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "base/scheduler.h"
#include "engine/answer_book.h"
#include "protocol/protokoll.h"

namespace tonarix {

/// What happens to every answer, however it is given: the clock stops, the book takes the verdict,
/// the counters count and the protocol tells it.
class TaskAnswers {
 public:
  struct Counts {
    std::int16_t right = 0;
    std::int16_t wrong = 0;
    std::int16_t repeats = 0;
    std::int16_t keynotes = 0;
  };

  TaskAnswers(const Scheduler& scheduler, Protokoll& protocol)
      : scheduler_(scheduler), protocol_(protocol) {}

  /// A new task, its lesson begun in the protocol.
  void begin_task(std::span<const std::int16_t> intervals, int first_asked,
                  AnswerBook::Rules rules);
  const AnswerBook& book() const { return book_; }
  /// Index of the interval that is asked. (`iv_nr`)
  int asked() const { return book_.asked(); }

  // The answer clock.
  void open() { clock_.go_on(now()); }   ///< the student can answer from now on
  void pause() { clock_.pause(now()); }  ///< something sounds
  /// An answer is given: its time in tenths of a second, told with the repeats it took, and in
  /// forming a tone with the bend steps still missing.
  float take(std::optional<double> pitch_gap = std::nullopt);
  /// The next answer of the task, or one more try: its time begins now.
  void open_next();

  // Verdicts on a place; `asked()` for whoever asks one interval after the other.
  void right(int place, float tenths);
  /// `word` is what the protocol calls it: "TrOf".
  void near_miss(int place, std::string_view word);
  /// `value`: the signed interval that was answered, 0 where none is named.
  Verdict wrong(int place, std::int16_t value);
  void add_lateness(int place, float tenths) { book_.add_lateness(place, tenths); }

  void count_repeat();
  void count_keynote();

  Counts counts;

 private:
  double now() const { return seconds(scheduler_.now()); }

  const Scheduler& scheduler_;
  Protokoll& protocol_;
  AnswerBook book_;
  AnswerClock clock_;
  std::int16_t lfd_ = 1;  ///< answers in the lesson, from 1
};

}  // namespace tonarix
