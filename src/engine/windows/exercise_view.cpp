#include "engine/windows/exercise_view.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "base/module_texts.h"
#include "base/windows/accessibility.h"
#include "base/windows/mnemonics.h"

namespace tonarix {
namespace {

constexpr QSize kUsualSize(1024, 600);
constexpr int kNarrow = 860;  // below this the column goes under the answers
constexpr int kLow = 500;     // below this row and answers don't stand one below the other

bool pressable(const Button* button) {
  return button->isVisible() && button->open();
}

}  // namespace

ExerciseView::ExerciseView(ExerciseWindow& window, const Texts& texts, SoundingWindow* sounding)
    : WindowView(window, texts), window_(window), sounding_(sounding) {
  // The focus begins at the window itself, so that Return never leaves by accident.
  setFocusPolicy(Qt::ClickFocus);
  whole_ = new QVBoxLayout(&content());
  whole_->setContentsMargins(theme::edge, 12, theme::edge, 4);
  whole_->setSpacing(12);
  halves_ = new QBoxLayout(QBoxLayout::LeftToRight);
  halves_->setSpacing(theme::between);
  whole_->addLayout(halves_, 1);
  middle_ = new QVBoxLayout;
  middle_->setSpacing(12);
  halves_->addLayout(middle_, 1);
}

QSize ExerciseView::sizeHint() const {
  return kUsualSize;
}

void ExerciseView::build_head(const Control& explanation) {
  head_ = new QBoxLayout(QBoxLayout::LeftToRight);
  head_->setSpacing(theme::between);
  question_ = label(window_.question, TextRole::question);
  question_->setMinimumHeight(28);
  head_->addWidget(question_);
  explained_ = label(explanation, TextRole::note);
  explained_->setWordWrap(true);
  head_->addWidget(explained_, 1);
  middle_->addLayout(head_);
}

Card* ExerciseView::build_messages(const Control& title) {
  Card* row_card = card(nullptr, nullptr);
  row_card->head().addWidget(label(title, TextRole::title));
  messages_ = new Place(row_card);
  for (const Control* message : {&window_.hint, &window_.WaitMeldung}) {
    Label* shown = label(*message, TextRole::plain);
    shown->setWordWrap(true);
    shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    messages_->add(*shown);
  }
  row_head_ = &row_card->head();
  row_head_->addWidget(messages_, 1);
  middle_->addWidget(row_card);
  return row_card;
}

void ExerciseView::build_row(const Control& title, const Control* lead,
                             const PlaceControls& places) {
  Card* row_card = build_messages(title);
  places_ = &places;
  row_ = new AnswerRow(sounding_ != nullptr, row_card);
  if (lead) row_->set_lead(*label(*lead, TextRole::note));
  for (int i = 0; i < AnswerRow::kFields; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const Control& number = places.nriv[i];
    bindings().bind(*row_->marks[at], number,
                    [this, i, &number] { row_->set_number(i, to_qstring(number.text)); });
    bindings().bind(*row_->fields[at], places.ergebnis[i], {.signs = true});
  }
  for (int i = 0; sounding_ && i <= AnswerRow::kFields; ++i) {
    SoundingMark* mark = row_->sounding[static_cast<std::size_t>(i)];
    bindings().bind(*mark, sounding_->sounding[i], [this, mark, i] {
      set_accessible_name(*mark,
                          word(text::tone_of_row) + QLatin1Char(' ') + QString::number(i + 1));
    });
  }
  row_card->body().addWidget(row_);
}

void ExerciseView::build_standing(StandingColumn::Shape shape) {
  standing_ = new StandingColumn({window_, sounding_, bindings(), texts()}, shape, &content());
  halves_->addWidget(standing_);
  Place& buttons = standing_->test_buttons();
  buttons.add(*action(window_.cmd_test_ein, [this] { window_.cmd_test_ein_click(); }));
  buttons.add(*action(window_.cmd_test_aus, [this] { window_.cmd_test_aus_click(); }));
}

void ExerciseView::build_below(QWidget& widget) {
  whole_->setStretchFactor(halves_, 0);
  whole_->addWidget(&widget, 1);
  below_ = &widget;
  still_ = new QWidget(this);
  auto* line = new QHBoxLayout(still_);
  line->setContentsMargins(theme::edge, 8, theme::edge, 4);
  line->setSpacing(theme::between);
  static_cast<QBoxLayout*>(layout())->insertWidget(0, still_);
  still_->lower();  // the first that a screen reader meets
  still_->hide();
}

bool ExerciseView::low() const {
  return below_ && height() < kLow;
}

void ExerciseView::place_question() {
  const bool still = low();
  if (!still_ || still == still_->isAncestorOf(question_)) return;
  auto* line = static_cast<QBoxLayout*>(still_->layout());
  (still ? line : head_)->insertWidget(0, question_);
  (still ? line : row_head_)->addWidget(messages_, 1);
  question_->setFont(theme::font(still ? TextRole::title : TextRole::question));
  still_->setVisible(still && content().isVisibleTo(this));
}

void ExerciseView::answer_action(const Control& control, Bindings::Handler pressed) {
  answer_button_ = action(control, std::move(pressed));
}

void ExerciseView::build_actions(const Control* frame) {
  auto* line = action_line_ = new ActionLine(this);
  if (frame) bindings().bind(*line, *frame, {});
  if (sounding_) {
    if (const KeynoteControls* keynote = sounding_->keynote()) {
      line->add_left(*action(keynote->grundton, [this] { sounding_->grundton_click(); }));
    }
    auto* repeats = new Place(line);
    repeats->add(*action(sounding_->wieder, [this] { sounding_->wieder_click(); }));
    repeats->add(*action(sounding_->wieder2, [this] { sounding_->wieder2_click(); }));
    line->add_left(*repeats);
  }
  if (answer_button_) line->add_right(*answer_button_);
  auto* next = new Place(line);
  next->add(*action(window_.CmdNextAufg, [this] { window_.CmdNextAufg_click(); }));
  next->add(*label(window_.LbNextAufg, TextRole::plain), Qt::AlignRight | Qt::AlignVCenter);
  line->add_right(*next);
  Button* back = action(window_.zurueck, [this] { window_.zurueck_click(); });
  for (const TextKey key : {640_text, 625_text}) {
    back->setText(word(key));
    back->setMinimumWidth(std::max(back->minimumWidth(), back->sizeHint().width()));
  }
  line->add_right(*back);
  Button* help_button = action(window_.cmdHilfe, [this] { window_.cmdHilfe_click(); });
  help(help_button);
  line->add_right(*help_button);
  clock_ = label(window_.Uhr, TextRole::note);
  clock_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  line->add_right(*clock_);
  actions().addWidget(line, 1);
}

Button* ExerciseView::action(const Control& control, Bindings::Handler pressed) {
  action_buttons_.push_back({button(control, std::move(pressed)), &control});
  return action_buttons_.back().button;
}

Button* ExerciseView::button_of(const Control* control) const {
  const auto found =
      std::find_if(action_buttons_.begin(), action_buttons_.end(),
                   [control](const ActionButton& action) { return action.control == control; });
  return found == action_buttons_.end() ? nullptr : found->button;
}

void ExerciseView::applied() {
  // Before the captions are there nothing would be seen but empty frames.
  const bool prepared = window_.phase() != Phase::starting;
  content().setVisible(prepared);
  if (action_line_) action_line_->setVisible(prepared);
  if (still_) still_->setVisible(prepared && low());

  if (tabbed_in_ != window_.phase()) tabbed_in_.reset();
  const Button* way_on = button_of(window_.default_button());
  for (const ActionButton& action : action_buttons_) {
    action.button->set_primary(action.button == way_on);
    // A hidden one holds its place by its caption.
    if (!action.control->visible) {
      action.button->setText(plain_caption(to_qstring(action.control->text)));
    }
  }

  if (row_) {
    int fields = 0;
    int current = -1;
    int tries = 0;
    for (int i = 0; i < AnswerRow::kFields; ++i) {
      if (places_->ergebnis[i].visible) fields = i + 1;
      if (!places_->nriv[i].visible) continue;
      current = i;
      tries = to_qstring(places_->tries[i].text).toInt();
    }
    row_->show_state(fields, current, tries);
    const bool sounds = window_.phase() == Phase::sounding;
    if (sounds && !sounds_ && current >= 0) {
      bring_into_view(*row_->fields[static_cast<std::size_t>(current)]);
    }
    sounds_ = sounds;
  }
  if (standing_) standing_->show_level(window_.level());
  for (AnswerGrid* grid : grids_) {
    int place = 0;
    for (AnswerButton* answer : grid->shown()) {
      const QString key = AnswerButton::key_name(place++);
      answer->set_key(key, word(text::key_of_answer).arg(key));
    }
  }
}

bool ExerciseView::press_answer(int key) {
  const int place = AnswerButton::place_of_key(key);
  if (place < 0) return false;
  for (const AnswerGrid* grid : grids_) {
    const auto answers = grid->shown();
    if (!grid->isVisible() || place >= static_cast<int>(answers.size())) continue;
    answers[static_cast<std::size_t>(place)]->click();
    return true;
  }
  return false;
}

bool ExerciseView::press_letter(const QString& text) {
  if (!letters_press() || text.size() != 1 || !text[0].isLetter()) return false;
  const QKeySequence alt(QStringLiteral("Alt+") + text.toUpper());
  for (const ActionButton& action : action_buttons_) {
    if (action.control == &window_.zurueck) continue;
    if (!pressable(action.button) || action.button->shortcut() != alt) continue;
    action.button->click();
    return true;
  }
  return false;
}

void ExerciseView::keyPressEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() || !bindings().live() || !window_.takes_input()) return;
  const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
  if (plain && event->key() == Qt::Key_Escape) {
    button_of(&window_.zurueck)->click();
    return;
  }
  if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    press_return();
    return;
  }
  if (plain && (press_answer(event->key()) || press_letter(event->text()))) return;
  WindowView::keyPressEvent(event);
}

// A focus that was put somewhere for an earlier step is no answer to the way on that is offered
// now.
void ExerciseView::press_return() {
  auto* focused = dynamic_cast<Button*>(focusWidget());
  const bool chosen =
      tabbed_in_ == window_.phase() || actions_in(window_.phase()).way_on == Way::none;
  Button* target =
      chosen && focused && pressable(focused) ? focused : button_of(window_.default_button());
  if (target) target->click();
}

bool ExerciseView::focusNextPrevChild(bool next) {
  tabbed_in_ = window_.phase();
  return WindowView::focusNextPrevChild(next);
}

void ExerciseView::resizeEvent(QResizeEvent* event) {
  WindowView::resizeEvent(event);
  const bool narrow = width() < kNarrow;
  place_question();
  halves_->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  if (head_) {
    head_->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    head_->setSpacing(narrow ? 0 : theme::between);
    explained_->setAlignment(Qt::AlignVCenter | (narrow ? Qt::AlignLeft : Qt::AlignRight));
  }
  // Room for a message that takes two lines, so that the row below it stays where it is.
  const bool two_lines = narrow || low();
  if (messages_) messages_->setMinimumHeight(two_lines ? 2 * fontMetrics().lineSpacing() : 0);
  if (!standing_) return;
  const int column = standing_->usual_width();
  QBoxLayout* holder = narrow && below_ ? whole_ : halves_;
  if (holder->indexOf(standing_) < 0) holder->addWidget(standing_);
  standing_->setMinimumWidth(narrow ? 0 : column);
  standing_->setMaximumWidth(narrow ? QWIDGETSIZE_MAX : column);
  // The clock stands at the foot of the column, the actions end where the answers end.
  if (clock_) clock_->setMinimumWidth(narrow ? 0 : column + theme::inside);
}

void ExerciseView::showEvent(QShowEvent* event) {
  setFocus();
  WindowView::showEvent(event);
}

}  // namespace tonarix
