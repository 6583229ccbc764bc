#include "engine/windows/standing_column.h"

#include <QGridLayout>
#include <vector>

#include "base/module_texts.h"
#include "base/windows/accessibility.h"
#include "engine/windows/places.h"
#include "engine/windows/standing.h"

namespace tonarix {
namespace {

constexpr int kFlat = 600;  // from here all that is compact has room side by side

}  // namespace

StandingColumn::StandingColumn(const Source& source, Shape shape, QWidget* parent)
    : QWidget(parent), from_(source), shape_(shape), cards_(new QVBoxLayout(this)) {
  cards_->setContentsMargins(0, 0, 0, 0);
  cards_->setSpacing(12);
  shape == Shape::compact ? build_compact() : build_cards();
}

Card* StandingColumn::add_card(TextKey name) {
  auto* card = new Card(this);
  card->setAccessibleName(word(name));
  cards_->addWidget(card);
  return card;
}

Label* StandingColumn::label(const Control& control, TextRole role, Binding look) {
  auto* made = new Label(role, this);
  from_.bindings.bind(*made, control, look);
  return made;
}

void StandingColumn::build_cards() {
  Card* training = add_card(text::training_status);
  add_training(training->body());
  Card* test = add_card(text::test_standing);
  test->title().setText(word(text::test_standing));
  add_test(test->body());
  add_counters(add_card(text::standing)->body(), 1);
  training_ = training;
  test_ = test;
}

void StandingColumn::build_compact() {
  Card* card = add_card(text::standing);
  compact_ = &card->body();
  add_counters(*compact_, 2);
  const auto part = [this, card] {
    auto* lines = new QVBoxLayout(new QWidget(card));
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(theme::inside);
    compact_->addWidget(lines->parentWidget());
    return lines;
  };
  QVBoxLayout* training = part();
  add_training(*training);
  QVBoxLayout* test = part();
  add_test(*test);
  compact_->addStretch(1);
  training_ = training->parentWidget();
  test_ = test->parentWidget();
}

void StandingColumn::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!compact_) return;
  const bool flat = width() >= kFlat;
  const auto direction = flat ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
  if (compact_->direction() == direction) return;
  compact_->setDirection(direction);
  for (QWidget* part : {training_, test_}) {
    static_cast<QBoxLayout*>(part->layout())->setDirection(direction);
  }
  const int rest = compact_->count() - 1;
  for (int i = 0; i < rest; ++i) compact_->setStretch(i, flat ? 1 : 0);
  compact_->setStretch(rest, flat ? 0 : 1);
}

void StandingColumn::show_level(Level level) {
  training_->setVisible(is_training(level));
  test_->setVisible(is_test(level));
}

void StandingColumn::add_training(QBoxLayout& into) {
  const ExerciseWindow& window = from_.window;
  auto* place = new Place(this);
  place->add(*label(window.ergebnis_anz[0], TextRole::title));
  for (const int end : {1, 2}) {
    auto* verdict = new EndPanel(end == 1 ? Label::Sign::right : Label::Sign::wrong, this);
    from_.bindings.bind(*verdict, window.ergebnis_anz[end]);
    place->add(*verdict);
  }
  into.addWidget(place, 0, Qt::AlignVCenter);
  const Control& value = window.matboxanz[window.matboxanz.last];
  auto* bar = new PercentBar(
      {word(text::percent), word(text::bar_solved), word(text::bar_too_difficult)}, this);
  from_.bindings.bind(*bar, value, [&window, bar, &value] {
    if (value.text.empty()) return;
    bar->set_percent(std::stoi(value.text));
    const QString name =
        (to_qstring(window.ergebnis_anz[0].text) + QLatin1Char(' ') + bar->number()).trimmed();
    set_accessible_name(*bar, name);
  });
  into.addWidget(bar);
}

void StandingColumn::add_test(QBoxLayout& into) {
  auto* lines = new QVBoxLayout;
  lines->setSpacing(theme::inside);
  into.addLayout(lines);
  for (const Control* line : {&from_.window.lab_aufgaben, &from_.window.stop_uhr}) {
    Label* shown = label(*line, TextRole::choice, {.keep_place = true});
    shown->setWordWrap(true);
    lines->addWidget(shown);
  }
  test_buttons_ = new Place(this);
  into.addWidget(test_buttons_);
}

void StandingColumn::add_counters(QBoxLayout& into, int columns) {
  struct Line {
    const Control& number;
    const Control& name;
  };
  const ExerciseWindow& window = from_.window;
  std::vector<Line> lines{{window.zaehler[0], window.true_false[0]},
                          {window.zaehler[1], window.true_false[1]}};
  if (from_.sounding) {
    lines.push_back({from_.sounding->whlgzaehler, from_.sounding->repeat_label});
    if (const KeynoteControls* keynote = from_.sounding->keynote()) {
      lines.push_back({keynote->GrdtonWhlg, keynote->keynote_label});
    }
  }
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(theme::inside);
  grid->setVerticalSpacing(2);
  int place = 0;
  for (const Line& line : lines) {
    const int row = place / columns;
    const int column = 2 * (place++ % columns);
    Label* number = label(line.number, TextRole::number);
    number->setMinimumWidth(columns == 1 ? 44 : 30);
    grid->addWidget(number, row, column);
    Label* name = label(line.name, TextRole::note);
    name->setWordWrap(true);
    grid->addWidget(name, row, column + 1);
    grid->setColumnStretch(column + 1, 1);
  }
  into.addLayout(grid);
}

}  // namespace tonarix
