#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/exercise_context.h"
#include "engine/exercise_controls.h"
#include "engine/phase.h"
#include "engine/task_answers.h"

namespace tonarix {

/// Codes of the direct answer buttons by rising size of the interval, prime first.
inline constexpr std::array<std::int16_t, 21> kAnswerOrder{1,  14, 11, 4, 21, 18, 7,  8, 17, 3, 12,
                                                           13, 2,  16, 9, 6,  19, 20, 5, 10, 15};

/// Naming intervals, by ear or from the staff: each interval of the row in turn with one button.
/// Two panels of buttons, degrees over the keynote or intervals from tone to tone; one of them
/// shows. Judges the names, locks what was wrong, and fills the answer fields.
class NamingAnswers : public PlaceControls {
 public:
  NamingAnswers(Window& window, const ExerciseContext& context, TaskAnswers& answers);

  Control inv_box;
  ControlArray<Control, 1, 11> st_int;     ///< degree number: row + 1
  ControlArray<Control, 1, 21> intervall;  ///< |code|

  bool by_degree() const { return context_.settings.abfr_iv == Naming::from_keynote; }

 protected:
  /// Captions of buttons and fields, and which of them show.
  void prepare_names();
  /// A new row: all fields empty but for a first interval that is given.
  void clear_names();
  /// Opens all answer buttons but the locked ones, or closes all.
  void open_names(bool open);
  /// Marks the interval that is asked while the row is.
  void mark_asked(const Actions& actions);
  /// Judges the answer with the code of a button; the verdict in few words. (`intervall_antw`)
  std::string intervall_antw(std::int16_t code);
  /// A code as the program tries it out by itself, right every second time.
  std::int16_t try_code() const;

 private:
  std::int16_t iv() const;
  /// What a field says when its interval is named: the degree, or the interval with its direction.
  std::string solution(int place) const;
  std::string octave() const;
  std::string right_answer(float tenths);
  std::string wrong_answer(std::int16_t code);
  void show_tries();
  void next_place();
  std::string Wort(TextKey nr) const { return context_.common.texts.Wort(nr); }

  const ExerciseContext& context_;
  TaskAnswers& answers_;
  std::array<bool, 22> gesperrt_{};
};

}  // namespace tonarix
