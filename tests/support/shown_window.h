#pragma once

#include <QAccessible>
#include <QCoreApplication>

#include "base/input_guard.h"
#include "base/windows/list_box.h"
#include "support/virtual_scheduler.h"

namespace tonarix {

/// Lets what has just come up be seen, so that it takes input.
inline void come_up(VirtualScheduler& scheduler) {
  QCoreApplication::processEvents();
  scheduler.advance_ms(InputGuard::kNewlyShown);
}

/// What a screen reader calls a widget.
inline QString spoken_name(QWidget& widget) {
  if (const auto* list = dynamic_cast<const ListBox*>(&widget)) return list->name();
  return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

}  // namespace tonarix
