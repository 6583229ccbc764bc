#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

#include "engine/material/range_repair.h"
#include "engine/material/test_list.h"
#include "engine/phase.h"
#include "engine/row_player.h"
#include "engine/task_answers.h"
#include "engine/task_tuning.h"
#include "protocol/protokoll.h"

namespace tonarix {

/// What one exercise window does differently from another, in the order in which a task goes by.
class ExerciseHooks {
 public:
  virtual ~ExerciseHooks() = default;

 protected:
  /// What lets the rows be heard, asked for once.
  virtual std::unique_ptr<RowPlayer> make_player() = 0;
  /// Captions and answers, before the first task.
  virtual void prepare() = 0;
  /// What the length of a test is reckoned from, where a window has measures of its own.
  virtual TestTiming test_timing(const TestTiming& usual) const { return usual; }
  /// A row was drawn, and this had to be moved into the range for it.
  virtual void row_drawn(std::span<const RangeMove>) {}
  /// How the row that was drawn is tuned.
  virtual TaskTuning tune() = 0;
  /// The first interval of a row that is asked, counted from 0; those before it are given.
  virtual int first_asked() const = 0;
  /// The first interval that counts, where a row is answered from its beginning all the same.
  virtual int first_scored() const = 0;
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
  /// Whether a finished row is heard once more before the next task is offered.
  virtual bool control_comes_first() const = 0;
  /// Shows the help of the window; `closed` runs when it has been read.
  virtual void show_help(const std::function<void()>& closed) = 0;
  /// Another line in the place of a usual one that does not fit the window; for the head none, 0,
  /// where the question of the task is to stand already.
  virtual TextKey line(TextKey usual) const { return usual; }
  /// The question that stands above the row while it is asked.
  virtual std::string question_text() const = 0;
};

}  // namespace tonarix
