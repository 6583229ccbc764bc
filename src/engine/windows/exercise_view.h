#pragma once

#include <optional>
#include <vector>

#include "base/windows/window_view.h"
#include "engine/exercise_window.h"
#include "engine/sounding_window.h"
#include "engine/windows/answer_grid.h"
#include "engine/windows/answer_row.h"
#include "engine/windows/places.h"
#include "engine/windows/standing_column.h"

class QBoxLayout;
class QVBoxLayout;

namespace tonarix {

/// What all exercise windows look like: the question on top, the tone row, below it the answers of
/// the exercise itself, beside them a narrow column with standing, counters and further cards, and
/// one line of actions. A subclass calls the build functions that it needs in this order, which is
/// the reading and the tab order, and puts its answers into `middle()` and its own cards into
/// `column()`.
///
/// Keys beside those of every window: Return presses the default button of the logic, another one
/// only when Tab has led to it since the exercise came to this phase; Escape presses the way out,
/// the keys printed on the answers press them, and the letters that are marked for Alt press the
/// actions without Alt too, as nothing here takes typed text; the way out they don't, for a letter
/// is struck by accident.
///
/// Where something takes the width below the row and the window is low, question and message stand
/// still above what scrolls.
class ExerciseView : public WindowView {
 public:
  /// `sounding` is the same window where its rows are heard, else null.
  ExerciseView(ExerciseWindow& window, const Texts& texts, SoundingWindow* sounding = nullptr);
  QSize sizeHint() const override;

 protected:
  /// The question, and on the right what explains it.
  void build_head(const Control& explanation);
  /// Card with the message line.
  Card* build_messages(const Control& title);
  /// The same with the tone row; `lead` is a short heading above the place of the first tone, or
  /// null.
  void build_row(const Control& title, const Control* lead, const PlaceControls& places);
  /// Standing and counters.
  void build_standing(StandingColumn::Shape shape = StandingColumn::Shape::cards);
  /// Below row and standing, over the whole width: what takes all the room that they leave. In a
  /// narrow window the standing comes last.
  void build_below(QWidget& widget);
  /// A button that Return presses while it is the logic's default.
  Button* action(const Control& control, Bindings::Handler pressed);
  /// A button that gives the answer, before the way on in the line of actions.
  void answer_action(const Control& control, Bindings::Handler pressed);
  /// The line of actions, in the frame of the logic where it has one.
  void build_actions(const Control* frame);

  /// Below the row: the answers.
  QVBoxLayout& middle() { return *middle_; }
  QVBoxLayout& column() { return standing_->cards(); }
  /// A grid of buttons for the codes, in their order.
  template <int First, int Last, typename Codes>
  AnswerGrid* answer_grid(const ControlArray<Control, First, Last>& controls, const Codes& codes,
                          int columns, const Bindings::NumberHandler& pressed) {
    auto* grid = new AnswerGrid(columns, &content());
    for (const int code : codes) {
      auto* made = new AnswerButton(&content());
      bindings().bind(*made, controls[code], [pressed, code] { pressed(code); },
                      {.keep_place = true, .mnemonic = false});
      grid->add(*made);
    }
    grids_.push_back(grid);
    return grid;
  }

  /// Whether letters press the actions without Alt too.
  virtual bool letters_press() const { return true; }

  void applied() override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct ActionButton {
    Button* button;
    const Control* control;
  };
  Button* button_of(const Control* control) const;
  bool press_answer(int key);
  void press_return();
  bool press_letter(const QString& text);
  bool low() const;
  void place_question();

  ExerciseWindow& window_;
  SoundingWindow* sounding_;
  QBoxLayout* whole_ = nullptr;
  QBoxLayout* halves_ = nullptr;  ///< row and answers, standing
  QBoxLayout* head_ = nullptr;
  QBoxLayout* row_head_ = nullptr;
  QVBoxLayout* middle_ = nullptr;
  StandingColumn* standing_ = nullptr;
  QWidget* below_ = nullptr;
  QWidget* still_ = nullptr;  ///< above what scrolls, in a low window
  AnswerRow* row_ = nullptr;
  const PlaceControls* places_ = nullptr;
  ActionLine* action_line_ = nullptr;
  Button* answer_button_ = nullptr;
  Label* question_ = nullptr;
  Label* explained_ = nullptr;
  Place* messages_ = nullptr;
  Label* clock_ = nullptr;
  std::vector<AnswerGrid*> grids_;
  std::vector<ActionButton> action_buttons_;
  bool sounds_ = false;             ///< the row of a task was sounding when last looked at
  std::optional<Phase> tabbed_in_;  ///< the phase that stands, where Tab was used in it
};

}  // namespace tonarix
