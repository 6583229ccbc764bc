#include "base/windows/key_repeats.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tonarix {

KeyRepeats::KeyRepeats(QCoreApplication& application) {
  application.installEventFilter(this);
}

bool KeyRepeats::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyRelease) {
    const auto& release = static_cast<QKeyEvent&>(*event);
    released_ = release.key();
    moment_ = release.timestamp();
  } else if (event->type() == QEvent::KeyPress) {
    const auto& press = static_cast<QKeyEvent&>(*event);
    const bool repeats = press.key() == released_ && press.timestamp() == moment_;
    if (repeats && moment_ != 0 && !press.isAutoRepeat()) return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tonarix
