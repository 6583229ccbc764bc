#pragma once

#include <memory>
#include <string>

#include "engine/phase.h"
#include "engine/row_player.h"
#include "engine/task_answers.h"
#include "engine/task_tuning.h"
#include "protocol/protokoll.h"

namespace tonarix {

/// What one exercise window does differently from another. The life of the exercise calls these in
/// the order in which they stand.
class ExerciseHooks {
 public:
  virtual ~ExerciseHooks() = default;

 protected:
  /// What lets the rows be heard, asked for once.
  virtual std::unique_ptr<RowPlayer> make_player() = 0;
  /// Captions and answers, before the first task.
  virtual void prepare() = 0;
  /// How the row that was drawn is tuned.
  virtual TaskTuning tune() = 0;
  /// The first interval of a row that is asked, counted from 0; those before it are given.
  virtual int first_asked() const = 0;
  /// Shows the task that was drawn, nothing answered yet.
  virtual void show_task() = 0;
  /// What the protocol tells of the task when it begins.
  virtual LessonFacts lesson_facts() = 0;
  /// The task has sounded, for the first time or again; the answers open behind this.
  virtual void row_sounded() {}
  /// Opens what the student answers with, or closes it.
  virtual void open_answers(bool open) = 0;
  /// Shows the actions of the window's own that a phase opens.
  virtual void show_actions(const Actions&) {}
  /// Shows the counters of the window's own.
  virtual void show_counts(const TaskAnswers::Counts&) {}
  /// The question that stands above the row while it is asked.
  virtual std::string question_text() const = 0;
};

}  // namespace tonarix
