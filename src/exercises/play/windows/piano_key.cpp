#include <QMouseEvent>

#include "base/windows/accessibility.h"
#include "exercises/play/windows/piano_keyboard.h"

namespace tonarix {

PianoKey::PianoKey(PianoKeyboard& keyboard, int number)
    : QWidget(&keyboard), keyboard_(keyboard), number_(number) {
  setMouseTracking(true);
  setVisible(false);
  set_accessible_role(*this, QAccessible::StaticText);
}

bool PianoKey::event(QEvent* event) {
  // Before the toolkit drops the events of a disabled widget: it may be held down.
  const auto position = [&] {
    return mapTo(&keyboard_, static_cast<QSinglePointEvent*>(event)->position());
  };
  const auto left_button = [&] {
    return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
  };
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (!left_button()) break;
      keyboard_.mouse_pressed(position());
      return true;
    case QEvent::MouseButtonRelease:
      if (!left_button()) break;
      keyboard_.mouse_released();
      return true;
    case QEvent::MouseMove:
    case QEvent::Enter:
      keyboard_.pointer_at(position());
      return true;
    case QEvent::Leave:
      keyboard_.pointer_at({});
      break;
    case QEvent::Hide:
      if (keyboard_.held_ && keyboard_.held_->key == number_) keyboard_.let_go();
      break;
    default:
      break;
  }
  return QWidget::event(event);
}

}  // namespace tonarix
