#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "base/scheduler.h"
#include "engine/answer_book.h"
#include "protocol/protokoll.h"

namespace tonarix {

/// What happens to an answer: the clock stops, the book takes the verdict, the counters count and
/// the protocol tells it. Whoever asks one interval after the other uses the operations that do all
/// of it; a window with a record of its own takes `book`, `clock` and `counts` by themselves.
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

  void begin_task(std::span<const std::int16_t> intervals, const AnswerBook::Rules& rules);
  /// Index of the interval that is asked. (`iv_nr`)
  int asked() const { return book.asked(); }

  // The answer clock. `stop` gives the time in tenths of a second.
  void restart() { clock_.restart(now()); }
  void open() { clock_.go_on(now()); }   ///< the student can answer from now on
  void pause() { clock_.pause(now()); }  ///< something sounds
  float stop() { return clock_.stop(now()); }

  /// An answer is given: its time, told with the repeats it took, and in forming a tone with the
  /// bend steps still missing.
  float take(std::optional<double> pitch_gap = std::nullopt);
  /// The next answer of the task, or one more try: its time begins now. `interval` is what the
  /// protocol calls the place.
  void open_next(std::int16_t interval);

  // Verdicts with their words in the protocol.
  void right(int place, float tenths);
  /// `word` is what the protocol calls it: "TrOf".
  void near_miss(int place, std::string_view word);
  /// `value`: the signed interval that was answered, 0 where none is named.
  Verdict wrong(int place, std::int16_t value);

  void count_repeat();
  void count_keynote();

  AnswerBook book;
  Counts counts;

 private:
  double now() const { return seconds(scheduler_.now()); }

  const Scheduler& scheduler_;
  Protokoll& protocol_;
  AnswerClock clock_;
  std::int16_t lfd_ = 1;  ///< answers in the lesson, from 1
};

}  // namespace tonarix
