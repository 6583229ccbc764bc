#include <QApplication>
#include <algorithm>
#include <chrono>
#include <memory>

#include "base/windows/presenter.h"
#include "base/windows/theme.h"
#include "figure.h"
#include "host/local/catalogue_folder.h"
#include "results/result_bed.h"
#include "results/windows/result_view.h"

// Milliseconds from the start of the result sheet to its last painted pixel, with every row of both
// columns and seventeen settings: the slowest of twenty sheets, the first one of the process among
// them. Figures are printed as name, value, unit, goal.

namespace {

using namespace tonarix;

/// Notes when the sheet and its chart were painted.
struct PaintWatch final : QObject {
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted |= watched->objectName() == "sheet" ? 1 : 2;
    return false;
  }
  bool both() const { return painted == 3; }
  int painted = 0;
};

class Bed {
 public:
  Bed() {
    Language german(catalogue_folder(CATALOGUES));
    german.SprachInit();
    german.SprachWahl("Deutsch");
    for (int key = 1; key < 3000; ++key) bed_.texts.given[key] = german.Wort({key});
    bed_.fill();
    presenter_.add<ResultWindow, ResultView>("testergebnis", bed_.texts);
  }

  double sheet_ms() {
    ResultWindow& window = bed_.open();
    QApplication::processEvents();  // the window stands, still empty
    WindowView& view = *presenter_.view_of(window);
    PaintWatch watch;
    for (const char* part : {"sheet", "chart"}) {
      view.findChild<QWidget*>(part)->installEventFilter(&watch);
    }
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    bed_.scheduler.advance_ms(100);
    while (!watch.both()) QApplication::processEvents();
    QApplication::processEvents();  // what a new size of the window asks for
    const std::chrono::duration<double, std::milli> passed = Clock::now() - start;
    window.cmdOk_click();
    bed_.scheduler.settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return passed.count();
  }

 private:
  ResultBed bed_;
  Presenter presenter_{bed_.windows};
};

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  theme::apply(application);
  Bed bed;
  double slowest = 0;
  for (int sheet = 0; sheet < 20; ++sheet) slowest = std::max(slowest, bed.sheet_ms());
  print_figure("sheet_ms", slowest, "ms", "<= 50");
  return 0;
}
