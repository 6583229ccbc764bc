// How long a click on a piano key takes to its note at a MIDI port, with the whole program between
// them. Needs a display and a JACK server; prints what 99 % of 500 clicks stay under, beyond the
// server's own period.

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <vector>

#include "app/program.h"
#include "base/windows/theme.h"
#include "config/einstellung1.h"
#include "exercises/play/arbeitsblatt3.h"
#include "port_delays.h"

namespace tonarix {
namespace {

constexpr std::size_t kClicks = 500;
constexpr double kClickPause = 31.7;  // ms, no multiple of a period
constexpr unsigned char kNoteOn = 0x90;

void send(QWidget& key, QEvent::Type type) {
  const QPointF at(key.width() / 2.0, key.height() - 4);
  const auto down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
  QMouseEvent event(type, at, key.mapToGlobal(at), Qt::LeftButton, down, Qt::NoModifier);
  QCoreApplication::sendEvent(&key, &event);
}

/// Plays whatever keys are open, one after the other, until enough of them were clicked.
class Pianist {
 public:
  Pianist(QtScheduler& scheduler, Program& program, Port& port, double period_ms)
      : scheduler_(scheduler), program_(program), port_(port), period_ms_(period_ms) {}

  void go_on() {
    auto& window = dynamic_cast<Arbeitsblatt3&>(*program_.windows().newest());
    const bool open = window.phase() == Phase::answering;
    port_.listen(open);
    if (open && clicked_.size() == kClicks) {
      std::_Exit(print_delays("key_to_port_ms", clicked_, port_.arrived(), period_ms_, "<= 2"));
    }
    if (open) click(window);
    if (window.phase() == Phase::next_offered && !open) window.CmdNextAufg_click();
    scheduler_.post(milliseconds(kClickPause), [this] { go_on(); });
  }

 private:
  void click(const Arbeitsblatt3& window) {
    const KeyRange& keys = window.keys();
    const int before = key_;
    do {
      key_ = std::uniform_int_distribution(keys.lowest, keys.highest)(chance_);
    } while (key_ == before || is_black(key_) || !window.taste[key_].open());
    for (QWidget* top : QApplication::topLevelWidgets()) {
      auto* key = top->findChild<QWidget*>(QStringLiteral("taste_%1").arg(key_));
      if (!key) continue;
      clicked_.push_back(now());
      send(*key, QEvent::MouseButtonPress);
      send(*key, QEvent::MouseButtonRelease);
    }
  }

  QtScheduler& scheduler_;
  Program& program_;
  Port& port_;
  double period_ms_;
  std::vector<Moment> clicked_;
  std::minstd_rand chance_;
  int key_ = 0;
};

int measure(int argc, char* argv[]) {
  const double period_ms = argc > 1 ? std::atof(argv[1]) : 0;
  QApplication application(argc, argv);
  theme::apply(application);
  Port port(kNoteOn);
  Options options;
  options.data = std::filesystem::temp_directory_path() / "tonarix-measure";
  options.midi = 0;
  Program program(options);
  QtScheduler scheduler;
  Pianist pianist(scheduler, program, port, period_ms);
  const auto at = [&](double ms, auto work) { scheduler.post(milliseconds(ms), work); };
  program.open();
  at(500, [&] {
    auto& selection = dynamic_cast<SelectionWindow&>(*program.windows().newest());
    selection.ueb_typ_click(static_cast<int>(ExerciseKind::play));
    selection.cmdOk_click();
  });
  at(1500, [&] {
    auto& settings = dynamic_cast<Einstellung1&>(*program.windows().newest());
    settings.choose(settings.temp_Combo, settings.temp_Combo.items.size() - 1);
    settings.click(settings.invzahl[settings.invzahl.last]);
    settings.click(settings.cmdOk);
  });
  at(4000, [&] { pianist.go_on(); });
  return application.exec();
}

}  // namespace
}  // namespace tonarix

int main(int argc, char* argv[]) {
  try {
    return tonarix::measure(argc, argv);
  } catch (const RtMidiError& error) {
    std::fprintf(stderr, "key_to_port: %s\n", error.what());
    return 1;
  }
}
