#include <QApplication>
#include <algorithm>
#include <chrono>
#include <memory>

#include "base/windows/presenter.h"
#include "base/windows/theme.h"
#include "figure.h"
#include "host/local/catalogue_folder.h"
#include "results/windows/result_view.h"
#include "support/fake_dialogs.h"
#include "support/fake_host.h"
#include "support/recording_printer.h"
#include "support/virtual_scheduler.h"

// Milliseconds from the start of the result sheet to its last painted pixel, with every row of both
// columns and seventeen settings: the slowest of twenty sheets, the first one of the process among
// them. Figures are printed as name, value, unit, goal.

namespace {

using namespace tonarix;

struct StandingClock final : WallClock {
  CivilTime now() const override { return {2026, 11, 21, 14, 40, 0}; }
};

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
    language_.SprachInit();
    language_.SprachWahl("Deutsch");
    names_ = std::make_unique<IntervalNames>(language_);
    host_.answers["LOGIN"] = Variant::Array{"Lovelace", "Ada", "4711"};
    server_.ServerInit("vemo06");
    settings_.Uebungsmodus = Level::training;
    settings_.abfr_iv = Naming::from_tone_before;
    settings_.EinstDatSave = {"34"};
    for (std::size_t pair = 0; pair < ResultWindow::kSettingRows; ++pair) {
      settings_.EinstDatSave.insert(settings_.EinstDatSave.end(),
                                    {"Iv-Bestimmung", "gemischt (0 - 2 Okt)"});
    }
    statistics_.init_arr(3, 42);
    for (std::int16_t row = 1; row <= 42; ++row) {
      statistics_.Increment(StatisticRow(row), 3);
      statistics_.Save(StatisticRow(row), 0, 4);
      statistics_.Save(StatisticRow(row), 1, -1.5F * static_cast<float>(row));
    }
    presenter_.add<ResultWindow, ResultView>("testergebnis", language_);
  }

  double sheet_ms() {
    ResultWindow& window = windows_.open(std::make_unique<ResultWindow>(
        ResultContext{.common = {scheduler_, windows_, language_, dialogs_},
                      .server = server_,
                      .errors = errors_,
                      .clock = clock_,
                      .settings = settings_,
                      .statistics = statistics_,
                      .interval_names = *names_,
                      .printer = printer_,
                      .computer_user = "praxis-3",
                      .show_help = {}},
        [] {}));
    QApplication::processEvents();  // the window stands, still empty
    WindowView& view = *presenter_.view_of(window);
    PaintWatch watch;
    for (const char* part : {"sheet", "chart"}) {
      view.findChild<QWidget*>(part)->installEventFilter(&watch);
    }
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    scheduler_.advance_ms(100);
    while (!watch.both()) QApplication::processEvents();
    QApplication::processEvents();  // what a new size of the window asks for
    const std::chrono::duration<double, std::milli> passed = Clock::now() - start;
    window.cmdOk_click();
    scheduler_.settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return passed.count();
  }

 private:
  VirtualScheduler scheduler_;
  WindowList windows_{scheduler_};
  Language language_{catalogue_folder(CATALOGUES)};
  FakeHost host_;
  Server server_{host_.factory(), {"vemo06", "bench"}};
  RecordingDialogs dialogs_{scheduler_};
  ErrorReport errors_{server_, language_, dialogs_};
  StandingClock clock_;
  Settings settings_;
  Auswertung statistics_;
  std::unique_ptr<IntervalNames> names_;
  RecordingPrinter printer_;
  Presenter presenter_{windows_};
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
