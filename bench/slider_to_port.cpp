// How long a step of the pitch slider takes to the bend at a MIDI port, with the whole program
// between them. Needs a display and a JACK server; prints what 99 % of 1,000 steps stay under,
// beyond the server's own period.

#include <QApplication>
#include <QKeyEvent>
#include <QSlider>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "app/program.h"
#include "base/windows/theme.h"
#include "config/einstellung2.h"
#include "exercises/build/arbeitsblatt2.h"
#include "port_delays.h"

namespace tonarix {
namespace {

constexpr int kSteps = 1000;
constexpr double kStepPause = 7.3;  // ms, no multiple of a period
constexpr unsigned char kBend = 0xE0;
constexpr int kFormedTone = 4;  // its channel

QSlider* slider() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* found = window->findChild<QSlider*>(QStringLiteral("sldPitch"))) return found;
  }
  return nullptr;
}

int measure(int argc, char* argv[]) {
  const double period_ms = argc > 1 ? std::atof(argv[1]) : 0;
  QApplication application(argc, argv);
  theme::apply(application);
  Port port(kBend, kFormedTone);
  Options options;
  options.data = std::filesystem::temp_directory_path() / "tonarix-measure";
  options.midi = 0;
  Program program(options);
  QtScheduler scheduler;
  std::vector<Moment> moved;
  const auto at = [&](double ms, auto work) { scheduler.post(milliseconds(ms), work); };
  program.open();
  at(500, [&] {
    auto& selection = dynamic_cast<SelectionWindow&>(*program.windows().newest());
    selection.ueb_typ_click(static_cast<int>(ExerciseKind::build));
    selection.cmdOk_click();
  });
  at(1500, [&] {
    auto& settings = dynamic_cast<Einstellung2&>(*program.windows().newest());
    settings.choose(settings.temp_Combo, settings.temp_Combo.items.size() - 1);
    settings.click(settings.cmdOk);
  });
  constexpr double kFirstStep = 6000;
  at(kFirstStep - 100, [&] { port.listen(true); });
  for (int step = 0; step < kSteps; ++step) {
    at(kFirstStep + step * kStepPause, [&, step] {
      QKeyEvent key(QEvent::KeyPress, step % 2 == 0 ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
      moved.push_back(now());
      QCoreApplication::sendEvent(slider(), &key);
    });
  }
  at(kFirstStep + kSteps * kStepPause + 500, [&] {
    std::_Exit(print_delays("slider_to_port_ms", moved, port.arrived(), period_ms, "<= 1"));
  });
  return application.exec();
}

}  // namespace
}  // namespace tonarix

int main(int argc, char* argv[]) {
  try {
    return tonarix::measure(argc, argv);
  } catch (const RtMidiError& error) {
    std::fprintf(stderr, "slider_to_port: %s\n", error.what());
    return 1;
  }
}
