#include "base/windows/dialog_guard.h"

#include <QEvent>
#include <QWindow>

namespace tonarix {

DialogGuard::DialogGuard(QDialog& dialog, const Scheduler& scheduler)
    : QObject(&dialog), scheduler_(scheduler) {
  guard_.shown();
  dialog.winId();  // all input comes through the native window
  dialog.windowHandle()->installEventFilter(this);
}

bool DialogGuard::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Expose:
      guard_.seen(scheduler_.now());
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
      return !guard_.settled(scheduler_.now());
    default:
      return false;
  }
}

}  // namespace tonarix
