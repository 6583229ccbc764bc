#pragma once

#include <array>
#include <cstdint>

#include "base/module_texts.h"
#include "base/text_key.h"

namespace tonarix {

/// Where an exercise stands. One value at any moment.
enum class Phase : std::uint8_t {
  starting,           ///< no task has been drawn yet
  sounding,           ///< the task, a repeat or its keynote sounds
  answering,          ///< the answers are open
  row_done,           ///< all is answered, the control is still to be heard
  control_sounding,   ///< the row or its keynote sounds once more
  next_offered,       ///< the next task waits; in a test as soon as the row is done
  training_finished,  ///< solved, or too hard
  finished_sounding,  ///< the last row of a finished training sounds once more
  test_finished,      ///< all tasks of a test are done
  test_sounding,      ///< the keynote of a test's last row sounds
  time_up,            ///< the time of a test is used up
  broken,             ///< an error is closing the window
  leaving,            ///< on the way out
};
inline constexpr int kPhases = 13;

/// How an action shows.
enum class Shown : std::uint8_t {
  hidden,
  closed,
  open,
  shut,  ///< closed, and shown or hidden as before
};

/// The action that Return presses.
enum class Way : std::uint8_t { none, wieder2, next_task, zurueck };

/// Which actions are open in a phase, and the lines that say what to do.
struct Actions {
  Phase phase;
  bool answers;
  Shown wieder;
  Shown wieder2;
  bool grundton;
  bool next_task;
  Way way_on;
  bool asks;      ///< the interval that is asked is marked
  TextKey head;   ///< what to do now, large; 0 for the question of the task
  TextKey hint;   ///< how, or what comes
  TextKey other;  ///< the hint while the keynote sounds, or the head in the automatic order
};

// clang-format off
inline constexpr std::array<Actions, kPhases> kActions{{
    // phase                   answers wieder         wieder2        grundton next  way on          asks   head, hint, other
    {Phase::starting,          false, Shown::closed, Shown::hidden, false, false, Way::none,      false, text::listen, text::one_moment, {}},
    {Phase::sounding,          false, Shown::closed, Shown::hidden, false, false, Way::none,      true,  text::listen, text::row_sounds, text::keynote_sounds},
    {Phase::answering,         true,  Shown::open,   Shown::hidden, true,  false, Way::none,      true,  {}, text::how_to_answer, {}},
    {Phase::row_done,          false, Shown::hidden, Shown::open,   true,  false, Way::wieder2,   false, text::listen_to_check, text::hear_once_more, {}},
    {Phase::control_sounding,  false, Shown::hidden, Shown::closed, false, false, Way::none,      false, text::listen, text::row_sounds, text::keynote_sounds},
    {Phase::next_offered,      false, Shown::hidden, Shown::open,   true,  true,  Way::next_task, false, text::go_on, text::may_hear_again, text::next_task_follows},
    {Phase::training_finished, false, Shown::hidden, Shown::open,   true,  false, Way::zurueck,   false, text::to_the_result, text::training_is_finished, {}},
    {Phase::finished_sounding, false, Shown::hidden, Shown::closed, false, false, Way::zurueck,   false, text::listen, text::row_sounds, text::keynote_sounds},
    {Phase::test_finished,     false, Shown::closed, Shown::hidden, true,  false, Way::zurueck,   false, text::to_the_result, text::test_is_finished, {}},
    {Phase::test_sounding,     false, Shown::closed, Shown::hidden, false, false, Way::zurueck,   false, text::listen, text::row_sounds, text::keynote_sounds},
    {Phase::time_up,           false, Shown::shut,   Shown::shut,   false, false, Way::zurueck,   false, text::time_is_up, text::continue_to_result, {}},
    {Phase::broken,            false, Shown::shut,   Shown::shut,   false, false, Way::none,      false, text::exercise_ends, text::one_moment, {}},
    {Phase::leaving,           false, Shown::shut,   Shown::shut,   false, false, Way::none,      false, text::exercise_ends, text::result_follows, {}},
}};
// clang-format on
constexpr const Actions& actions_in(Phase phase) {
  return kActions[static_cast<std::size_t>(phase)];
}
static_assert([] {
  for (const Actions& row : kActions) {
    if (&row != &actions_in(row.phase)) return false;
  }
  return true;
}());

/// The exercise has come to its end.
constexpr bool is_over(Phase phase) {
  return actions_in(phase).way_on == Way::zurueck;
}
/// Something sounds.
constexpr bool is_sounding(Phase phase) {
  return phase == Phase::sounding || phase == Phase::control_sounding ||
         phase == Phase::finished_sounding || phase == Phase::test_sounding;
}
/// The row of the task is still being asked.
constexpr bool row_is_asked(Phase phase) {
  return phase == Phase::sounding || phase == Phase::answering;
}
/// The phase while the row or its keynote sounds once more, and the phase after it.
constexpr Phase sounding_again(Phase phase) {
  switch (phase) {
    case Phase::answering:
      return Phase::sounding;
    case Phase::training_finished:
      return Phase::finished_sounding;
    case Phase::test_finished:
      return Phase::test_sounding;
    default:
      return Phase::control_sounding;
  }
}
constexpr Phase after_sounding(Phase phase) {
  switch (phase) {
    case Phase::sounding:
      return Phase::answering;
    case Phase::control_sounding:
      return Phase::next_offered;
    case Phase::finished_sounding:
      return Phase::training_finished;
    case Phase::test_sounding:
      return Phase::test_finished;
    default:
      return phase;
  }
}

}  // namespace tonarix
