#include "base/windows/list_box.h"

#include "base/windows/accessibility.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <utility>

namespace tonarix {

ListBox::ListBox(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::TabFocus);
  // Long lists (the instruments) need not all be measured to find the width.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(10);
  setMaxVisibleItems(16);
}

void ListBox::set_name(const QString& name) {
  name_ = name;
  if (!spoken_) {
    spoken_ = new QLabel(parentWidget());
    spoken_->hide();
    spoken_->setBuddy(this);
  }
  if (spoken_->text() != name) spoken_->setText(name);
}

bool ListBox::event(QEvent* event) {
  // A label names only its neighbours.
  if (event->type() == QEvent::ParentChange && spoken_) spoken_->setParent(parentWidget());
  return QComboBox::event(event);
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  const int step = event->key() == Qt::Key_Down ? 1 : event->key() == Qt::Key_Up ? -1 : 0;
  int next = currentIndex() + step;
  while (step != 0 && next >= 0 && next < count() && itemData(next, gap_role).toBool())
    next += step;
  if (step == 0 || event->modifiers() & Qt::AltModifier || next == currentIndex() + step) {
    QComboBox::keyPressEvent(event);
  } else if (next >= 0 && next < count()) {
    setCurrentIndex(next);
    Q_EMIT activated(next);
  }
}

void ListBox::showPopup() {
  if (may_open && !may_open()) return;
  set_accessible_name(*view(), name_);
  if (on_popup) on_popup();
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + 32);
  view()->window()->installEventFilter(this);
  QComboBox::showPopup();
}

bool ListBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide && watched == view()->window()) {
    closing_ = true;
    // What was chosen is told after the entries have gone, within the same event.
    QMetaObject::invokeMethod(this, &ListBox::told, Qt::QueuedConnection);
  }
  return QComboBox::eventFilter(watched, event);
}

void ListBox::told() {
  if (std::exchange(closing_, false) && on_closed) on_closed();
}

void ListBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    QComboBox::mousePressEvent(event);
  } else {
    event->ignore();
  }
}

void ListBox::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace tonarix
