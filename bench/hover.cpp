// How long the outline of a field takes to follow the pointer on a piano keyboard of 61 keys at 200
// % scaling, from the move to the painted window. Needs a display; prints what 99 % of 1,000 moves
// from field to field stay under.

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <vector>

#include "figure.h"
#include "support/piano_bed.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kMoves = 1000;
constexpr tonarix::KeyRange kKeys{12, 72};

/// Tells when the keyboard is painted.
class Painted final : public QObject {
 public:
  explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    seen |= event->type() == QEvent::Paint;
    return false;
  }
  bool seen = false;
};

tonarix::Field field_of(int move) {
  const int keys = kKeys.highest - kKeys.lowest + 1;
  return {kKeys.lowest + move * 7 % keys, 1 + move % 2};
}

int measure(int argc, char* argv[]) {
  qputenv("QT_SCALE_FACTOR", "2");
  const QApplication application(argc, argv);
  tonarix::PianoBed bed(CATALOGUES, "Deutsch");
  QWidget window;
  bed.piano.setParent(&window);
  bed.piano.resize(960, 300);
  window.resize(960, 300);
  bed.show(kKeys);
  window.show();
  for (int i = 0; i < 100; ++i) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  Painted painted(bed.piano);
  std::vector<double> delays;
  for (int move = 0; move < kMoves; ++move) {
    const tonarix::Box box = bed.piano.geometry().band(field_of(move));
    const QPointF at =
        bed.piano.logical({(box.left + box.right) / 2.0, (box.top + box.bottom) / 2.0});
    QMouseEvent event(QEvent::MouseMove, at, at, window.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                      {});
    painted.seen = false;
    const auto moved = Clock::now();
    QCoreApplication::sendEvent(window.windowHandle(), &event);
    while (!painted.seen) QCoreApplication::processEvents();
    delays.push_back(std::chrono::duration<double, std::milli>(Clock::now() - moved).count());
  }
  bed.piano.setParent(nullptr);
  std::sort(delays.begin(), delays.end());
  tonarix::print_figure("hover_ms", delays[delays.size() * 99 / 100], "ms", "<= 8");
  return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
  return measure(argc, argv);
}
