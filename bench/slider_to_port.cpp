// How long a step of the pitch slider takes to the bend at a MIDI port, with the whole program
// between them. Needs a display and a JACK server; prints what 99 % of 1,000 steps stay under,
// beyond the server's own period.

#include <RtMidi.h>

#include <QApplication>
#include <QKeyEvent>
#include <QSlider>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <vector>

#include "app/program.h"
#include "base/windows/theme.h"
#include "config/einstellung2.h"
#include "exercises/build/arbeitsblatt2.h"
#include "figure.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kSteps = 1000;
constexpr double kStepPause = 7.3;  // ms, no multiple of a period
constexpr unsigned char kFormedToneBend = 0xE4;

/// The port: when each bend of the formed tone arrived.
class Port {
 public:
  Port() : in_(RtMidi::UNIX_JACK, "tonarix-port") {
    in_.setCallback(
        [](double, std::vector<unsigned char>* message, void* self) {
          const auto now = Clock::now();
          auto& port = *static_cast<Port*>(self);
          const std::lock_guard lock(port.mutex_);
          if (message->at(0) == kFormedToneBend) port.arrived_.push_back(now);
        },
        this);
    in_.openVirtualPort("in");
  }
  std::vector<Clock::time_point> arrived() {
    const std::lock_guard lock(mutex_);
    return arrived_;
  }
  void clear() {
    const std::lock_guard lock(mutex_);
    arrived_.clear();
  }

 private:
  std::mutex mutex_;
  std::vector<Clock::time_point> arrived_;
  RtMidiIn in_;
};

QSlider* slider() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* found = window->findChild<QSlider*>(QStringLiteral("sldPitch"))) return found;
  }
  return nullptr;
}

int print(const std::vector<Clock::time_point>& moved,
          const std::vector<Clock::time_point>& arrived, double period_ms) {
  if (moved.size() != arrived.size()) {
    std::fprintf(stderr, "slider_to_port: %zu steps, %zu bends\n", moved.size(), arrived.size());
    return 1;
  }
  std::vector<double> delays;
  for (std::size_t i = 0; i < moved.size(); ++i) {
    delays.push_back(std::chrono::duration<double, std::milli>(arrived[i] - moved[i]).count());
  }
  std::sort(delays.begin(), delays.end());
  const double most = delays[delays.size() * 99 / 100];
  tonarix::print_figure("slider_to_port_ms", std::max(most - period_ms, 0.0), "ms", "<= 1");
  return 0;
}

int measure(int argc, char* argv[]) {
  const double period_ms = argc > 1 ? std::atof(argv[1]) : 0;
  QApplication application(argc, argv);
  tonarix::theme::apply(application);
  Port port;
  tonarix::Options options;
  options.data = std::filesystem::temp_directory_path() / "tonarix-measure";
  options.midi = 0;
  tonarix::Program program(options);
  tonarix::QtScheduler scheduler;
  std::vector<Clock::time_point> moved;
  const auto at = [&](double ms, auto work) { scheduler.post(tonarix::milliseconds(ms), work); };
  program.open();
  at(500, [&] {
    auto& selection = dynamic_cast<tonarix::SelectionWindow&>(*program.windows().newest());
    selection.ueb_typ_click(static_cast<int>(tonarix::ExerciseKind::build));
    selection.cmdOk_click();
  });
  at(1500, [&] {
    auto& settings = dynamic_cast<tonarix::Einstellung2&>(*program.windows().newest());
    settings.choose(settings.temp_Combo, settings.temp_Combo.items.size() - 1);
    settings.click(settings.cmdOk);
  });
  constexpr double kFirstStep = 6000;
  at(kFirstStep - 100, [&] { port.clear(); });
  for (int step = 0; step < kSteps; ++step) {
    at(kFirstStep + step * kStepPause, [&, step] {
      QKeyEvent key(QEvent::KeyPress, step % 2 == 0 ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
      moved.push_back(Clock::now());
      QCoreApplication::sendEvent(slider(), &key);
    });
  }
  at(kFirstStep + kSteps * kStepPause + 500,
     [&] { std::_Exit(print(moved, port.arrived(), period_ms)); });
  return application.exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    return measure(argc, argv);
  } catch (const RtMidiError& error) {
    std::fprintf(stderr, "slider_to_port: %s\n", error.what());
    return 1;
  }
}
