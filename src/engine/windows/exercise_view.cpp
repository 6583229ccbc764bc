#include "engine/windows/exercise_view.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "base/module_texts.h"
#include "base/windows/accessibility.h"
#include "base/windows/mnemonics.h"

namespace tonarix {
namespace {

constexpr QSize kUsualSize(1024, 600);
constexpr int kColumnWidth = 228;
constexpr int kNarrow = 860;  // below this the column goes under the answers

bool pressable(const Button* button) {
  return button->isVisible() && button->open();
}

}  // namespace

ExerciseView::ExerciseView(ExerciseWindow& window, const Texts& texts, SoundingWindow* sounding)
    : WindowView(window, texts), window_(window), sounding_(sounding) {
  // The focus begins at the window itself, so that Return never leaves by accident.
  setFocusPolicy(Qt::ClickFocus);
  halves_ = new QBoxLayout(QBoxLayout::LeftToRight, &content());
  halves_->setContentsMargins(theme::edge, 12, theme::edge, 4);
  halves_->setSpacing(theme::between);
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
  Label* question = label(window_.question, TextRole::question);
  question->setMinimumHeight(28);
  head_->addWidget(question);
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
  row_card->head().addWidget(messages_, 1);
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

void ExerciseView::build_standing() {
  column_box_ = new QWidget(&content());
  column_ = new QVBoxLayout(column_box_);
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(12);
  halves_->addWidget(column_box_);

  training_card_ = card(nullptr, nullptr);
  training_card_->setAccessibleName(word(text::training_status));
  build_training(*training_card_);
  test_card_ = card(nullptr, nullptr);
  build_test(*test_card_);
  Card* counters = card(nullptr, nullptr);
  counters->setAccessibleName(word(text::standing));
  build_counters(*counters);
  for (Card* made : {training_card_, test_card_, counters}) column_->addWidget(made);
}

void ExerciseView::build_training(Card& card) {
  auto* place = new Place(&card);
  place->add(*label(window_.ergebnis_anz[0], TextRole::title));
  for (const int end : {1, 2}) {
    auto* verdict = new EndPanel(end == 1 ? Label::Sign::right : Label::Sign::wrong, &card);
    bindings().bind(*verdict, window_.ergebnis_anz[end]);
    place->add(*verdict);
  }
  card.body().addWidget(place);
  const Control& value = window_.matboxanz[window_.matboxanz.last];
  auto* bar = new PercentBar(
      {word(text::percent), word(text::bar_solved), word(text::bar_too_difficult)}, &card);
  bindings().bind(*bar, value, [this, bar, &value] {
    if (value.text.empty()) return;
    bar->set_percent(std::stoi(value.text));
    const QString name =
        (to_qstring(window_.ergebnis_anz[0].text) + QLatin1Char(' ') + bar->number()).trimmed();
    set_accessible_name(*bar, name);
  });
  card.body().addWidget(bar);
}

void ExerciseView::build_test(Card& card) {
  card.title().setText(word(text::test_standing));
  for (const Control* line : {&window_.lab_aufgaben, &window_.stop_uhr}) {
    Label* shown = label(*line, TextRole::choice, {.keep_place = true});
    shown->setWordWrap(true);
    card.body().addWidget(shown);
  }
  auto* place = new Place(&card);
  place->add(*action(window_.cmd_test_ein, [this] { window_.cmd_test_ein_click(); }));
  place->add(*action(window_.cmd_test_aus, [this] { window_.cmd_test_aus_click(); }));
  card.body().addWidget(place);
}

void ExerciseView::build_counters(Card& card) {
  struct Line {
    const Control& number;
    const Control& name;
  };
  std::vector<Line> lines{{window_.zaehler[0], window_.true_false[0]},
                          {window_.zaehler[1], window_.true_false[1]}};
  if (sounding_) {
    lines.push_back({sounding_->whlgzaehler, sounding_->repeat_label});
    if (const KeynoteControls* keynote = sounding_->keynote()) {
      lines.push_back({keynote->GrdtonWhlg, keynote->keynote_label});
    }
  }
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(theme::inside);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(1, 1);
  int row = 0;
  for (const Line& line : lines) {
    Label* number = label(line.number, TextRole::number);
    number->setMinimumWidth(44);
    grid->addWidget(number, row, 0);
    Label* name = label(line.name, TextRole::note);
    name->setWordWrap(true);
    grid->addWidget(name, row, 1);
    ++row;
  }
  card.body().addLayout(grid);
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
  if (column_) {
    training_card_->setVisible(is_training(window_.level()));
    test_card_->setVisible(is_test(window_.level()));
  }
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
  if (text.size() != 1 || !text[0].isLetter()) return false;
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
  halves_->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  if (head_) {
    head_->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    head_->setSpacing(narrow ? 0 : theme::between);
    explained_->setAlignment(Qt::AlignVCenter | (narrow ? Qt::AlignLeft : Qt::AlignRight));
  }
  // Room for a message that takes two lines, so that the row below it stays where it is.
  if (messages_) messages_->setMinimumHeight(narrow ? 2 * fontMetrics().lineSpacing() : 0);
  if (!column_box_) return;
  column_box_->setMinimumWidth(narrow ? 0 : kColumnWidth);
  column_box_->setMaximumWidth(narrow ? QWIDGETSIZE_MAX : kColumnWidth);
  // The clock stands at the foot of the column, the actions end where the answers end.
  if (clock_) clock_->setMinimumWidth(narrow ? 0 : kColumnWidth + theme::inside);
}

void ExerciseView::showEvent(QShowEvent* event) {
  setFocus();
  WindowView::showEvent(event);
}

}  // namespace tonarix
