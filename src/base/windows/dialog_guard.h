#pragma once

#include <QDialog>

#include "base/input_guard.h"

namespace tonarix {

/// Keeps presses that were not meant from a dialog of the toolkit's own, as `InputGuard` does from
/// our windows: nothing that the pointer or the keys do counts until it has been seen for a while.
/// The dialog owns its guard and is drawn by the toolkit itself.
class DialogGuard final : public QObject {
 public:
  DialogGuard(QDialog& dialog, const Scheduler& scheduler);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const Scheduler& scheduler_;
  InputGuard guard_;
};

}  // namespace tonarix
