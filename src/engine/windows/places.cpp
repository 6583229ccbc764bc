#include "engine/windows/places.h"

#include <QEvent>
#include <QGridLayout>
#include <algorithm>

#include "base/windows/theme.h"

namespace tonarix {

Place::Place(QWidget* parent) : QWidget(parent) {
  auto* cell = new QGridLayout(this);
  cell->setContentsMargins(0, 0, 0, 0);
}

void Place::add(QWidget& widget, Qt::Alignment alignment) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
  static_cast<QGridLayout*>(layout())->addWidget(&widget, 0, 0, alignment);
}

ActionLine::ActionLine(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ActionLine::add(std::vector<QWidget*>& group, QWidget& widget) {
  widget.setParent(this);
  group.push_back(&widget);
}

int ActionLine::width_of(const QWidget& widget) {
  return std::max(widget.sizeHint().width(), widget.minimumWidth());
}

int ActionLine::width_of(const std::vector<QWidget*>& group) const {
  int width = 0;
  for (const QWidget* widget : group) width += width_of(*widget) + theme::inside;
  return std::max(0, width - theme::inside);
}

QSize ActionLine::sizeHint() const {
  int height = 0;
  for (const auto* group : {&left_, &right_}) {
    for (const QWidget* widget : *group) height = std::max(height, widget->sizeHint().height());
  }
  return {width_of(left_) + theme::between + width_of(right_), height};
}

QSize ActionLine::minimumSizeHint() const {
  int width = 0;
  for (const auto* group : {&left_, &right_}) {
    for (const QWidget* widget : *group) width = std::max(width, width_of(*widget));
  }
  return {width, sizeHint().height()};
}

bool ActionLine::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {
    arrange();
    updateGeometry();
  }
  return QWidget::event(event);
}

void ActionLine::resizeEvent(QResizeEvent*) {
  arrange();
}

void ActionLine::arrange() {
  const QSize whole = sizeHint();
  const int line = whole.height();
  const bool one_line = whole.width() <= width();
  int x = 0;
  int y = 0;
  const auto put = [&](QWidget* widget) {
    const int needed = width_of(*widget);
    if (!one_line && x > 0 && x + needed > width()) {
      x = 0;
      y += line + theme::inside;
    }
    widget->setGeometry(x, y, needed, line);
    x += needed + theme::inside;
  };
  for (QWidget* widget : left_) put(widget);
  if (one_line) x = width() - width_of(right_);
  for (QWidget* widget : right_) put(widget);
  setMinimumHeight(y + line);
  setMaximumHeight(y + line);
}

}  // namespace tonarix
