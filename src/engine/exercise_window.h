#pragma once

#include <memory>
#include <string>

#include "engine/exercise_context.h"
#include "engine/exercise_controls.h"
#include "engine/exercise_hooks.h"
#include "engine/keeping.h"
#include "engine/material/frequency_box.h"
#include "engine/material/material.h"
#include "engine/next_task.h"
#include "engine/sitting.h"
#include "engine/standing.h"
#include "engine/training_record.h"
#include "engine/way_out.h"

namespace tonarix {

/// The life that all exercise windows share: start, next task, standing, countdown, leaving. What
/// an answer is, how it is judged and what sounds is told by the hooks of the window itself.
class ExerciseWindow : public Window, public ExerciseControls, protected ExerciseHooks {
 public:
  ExerciseWindow(std::string name, const ExerciseContext& context);

  void CmdNextAufg_click();
  void zurueck_click();
  void cmd_test_ein_click();
  void cmd_test_aus_click();
  void cmdHilfe_click();

  Phase phase() const { return phase_; }
  Level level() const { return context_.settings.Uebungsmodus; }
  /// Silent at once; the protocol is written and the training kept without a question.
  void session_ends() override;
  /// What Return presses now: the way on, or nullptr while there is only answering to do.
  virtual const Control* default_button() const;

 protected:
  int first_scored() const override;
  /// In a test no time is lost: hearing the row again is left to the student.
  bool control_comes_first() const override { return player_->audible() && !is_test(level()); }
  LessonFacts lesson_facts() override;
  void show_help(const std::function<void()>& closed) override { context_.show_help(closed); }
  void close_requested() override { way_out(); }
  void failed(std::string_view tag, std::exception_ptr error) override;

  const ExerciseContext& context() const { return context_; }
  TaskAnswers& answers() { return answers_; }
  const TaskAnswers& answers() const { return answers_; }
  RowPlayer& player();
  /// Number of the task, from 1.
  int lesson_number() const { return lesson_nr_; }
  /// `keynote`: what sounds in this phase is the keynote and not the row.
  void enter(Phase phase, bool keynote = false);
  /// After a verdict: counts, and ends the row once all of it is answered.
  void go_on_after_answer();

 private:
  /// The next phase begins; the row was heard unless its device has failed.
  void after_playing(bool heard);
  void start_timer();
  void prepare_level();
  Sequence mat_wahl();
  void update_counts();
  void finish_row();
  void tell_phase();
  void way_out();
  void hold_back();
  void go_on_after_reading();
  Sequence break_off();
  SavedTraining training_now() const;
  Sequence leave();
  void leave_broken();
  void Uhrzeit_timer();
  void stop_all();

  ExerciseContext context_;
  FrequencyBox box_;
  Material material_;
  TaskAnswers answers_;
  TrainingRecord training_;
  Standing standing_;
  Sitting sitting_;
  NextTask next_task_;
  Keeping keeping_;
  WayOut way_out_;
  std::unique_ptr<RowPlayer> player_;
  Timer start_;
  Timer Uhrzeit_;
  Timer testtimer_;
  Phase phase_ = Phase::starting;
  int lesson_nr_ = 0;
  int reading_ = 0;  ///< boxes in front that are being read
};

}  // namespace tonarix
