#include "engine/windows/answer_grid.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "base/windows/theme.h"

namespace tonarix {
namespace {

constexpr int kTallest = 44;  // of a button
constexpr int kKeyRoom = 18;  // at the left edge
constexpr int kDigits = 10;
constexpr int kFirstFunctionKey = 2;

}  // namespace

QString AnswerButton::key_name(int place) {
  return place < kDigits ? QString::number((place + 1) % kDigits)
                         : QLatin1Char('F') + QString::number(place - kDigits + kFirstFunctionKey);
}

int AnswerButton::place_of_key(int key) {
  if (key == Qt::Key_0) return kDigits - 1;
  if (key >= Qt::Key_1 && key <= Qt::Key_9) return key - Qt::Key_1;
  // F1 is the help.
  if (key >= Qt::Key_F2 && key <= Qt::Key_F12) return kDigits + key - Qt::Key_F2;
  return -1;
}

void AnswerButton::paintEvent(QPaintEvent* event) {
  Button::paintEvent(event);
  if (key().isEmpty()) return;
  QPainter painter(this);
  painter.setFont(theme::font(TextRole::note));
  painter.setPen(theme::colour(open() ? theme::note : theme::faint));
  painter.drawText(rect().adjusted(8, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, key());
}

AnswerGrid::AnswerGrid(int columns, QWidget* parent) : QWidget(parent), columns_(columns) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void AnswerGrid::add(AnswerButton& button) {
  button.setParent(this);
  buttons_.push_back(&button);
}

std::vector<AnswerButton*> AnswerGrid::shown() const {
  std::vector<AnswerButton*> found;
  std::copy_if(buttons_.begin(), buttons_.end(), std::back_inserter(found),
               [](const AnswerButton* button) { return !button->isHidden(); });
  return found;
}

QSize AnswerGrid::cell() const {
  QSize largest;
  for (const AnswerButton* button : buttons_) largest = largest.expandedTo(button->sizeHint());
  return {largest.width() + kKeyRoom / 2, largest.height()};
}

int AnswerGrid::columns_for(int width) const {
  return std::clamp((width + theme::inside) / (cell().width() + theme::inside), 1, columns_);
}

int AnswerGrid::rows_for(int columns) const {
  return (static_cast<int>(buttons_.size()) + columns - 1) / columns;
}

QSize AnswerGrid::sizeHint() const {
  const QSize one = cell();
  const int rows = rows_for(columns_);
  return {columns_ * (one.width() + theme::inside) - theme::inside,
          rows * (one.height() + theme::inside) - theme::inside};
}

QSize AnswerGrid::minimumSizeHint() const {
  const QSize one = cell();
  const int rows = rows_for(columns_for(width()));
  return {one.width(), rows * (one.height() + theme::inside) - theme::inside};
}

bool AnswerGrid::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {
    arrange();
    updateGeometry();
  }
  return QWidget::event(event);
}

void AnswerGrid::resizeEvent(QResizeEvent*) {
  arrange();
}

void AnswerGrid::arrange() {
  const int columns = columns_for(width());
  const int rows = rows_for(columns);
  if (minimumHeight() != minimumSizeHint().height()) setMinimumHeight(minimumSizeHint().height());
  const int step_x = (width() + theme::inside) / columns;
  const int step_y =
      std::min(kTallest + theme::inside, (height() + theme::inside) / std::max(rows, 1));
  for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
    buttons_[static_cast<std::size_t>(i)]->setGeometry(
        i % columns * step_x, i / columns * step_y, step_x - theme::inside, step_y - theme::inside);
  }
}

}  // namespace tonarix
