#pragma once

#include <QObject>

class QCoreApplication;

namespace tonarix {

/// Keeps repeats of a key that is held down from counting as strokes of their own. X tells a repeat
/// as a release and a press of the same moment, and the toolkit knows it for one only where both
/// have come together; on a busy machine some are taken for new strokes. Those presses go no
/// further. One for the process.
class KeyRepeats final : public QObject {
 public:
  explicit KeyRepeats(QCoreApplication& application);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int released_ = 0;    ///< the Qt::Key that was let go last
  quint64 moment_ = 0;  ///< when, in milliseconds of the display; 0 where none is told
};

}  // namespace tonarix
