// Figures of the running program: how fast the first window and an exercise are on the screen, and
// how much memory an open exercise takes. Needs a display. Prints one figure a line.

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "app/program.h"
#include "base/windows/theme.h"
#include "config/einstellung1.h"
#include "figure.h"

namespace {

using Clock = std::chrono::steady_clock;

double ms_since(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Calls back once a window has been painted for the first time after `expect`.
class PaintWatch final : public QObject {
 public:
  void expect(std::function<void()> painted) { painted_ = std::move(painted); }
  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::UpdateRequest && widget != nullptr && widget->isWindow()) {
      // UpdateRequest paints the window; what is posted now runs when that is done.
      QMetaObject::invokeMethod(
          this,
          [this] {
            if (const auto painted = std::exchange(painted_, nullptr)) painted();
          },
          Qt::QueuedConnection);
    }
    return false;
  }

 private:
  std::function<void()> painted_;
};

/// Proportional share of this process's memory in MB, without the pool that a JACK server keeps for
/// all its clients.
double pss_mb() {
  std::ifstream maps("/proc/self/smaps");
  std::string line;
  bool own = true;
  double kilobytes = 0;
  while (std::getline(maps, line)) {
    if (line.rfind("Pss:", 0) == 0) {
      if (own) kilobytes += std::stod(line.substr(4));
    } else if (line.find('-') < line.find(' ')) {
      own = line.find("/dev/shm/jack") == std::string::npos;
    }
  }
  return kilobytes / 1024.0;
}

tonarix::Options options_for(const std::filesystem::path& folder) {
  tonarix::Options options;
  options.data = folder;
  return options;
}

int first_window(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tonarix::theme::apply(application);
  tonarix::Program program(options_for(argv[2]));
  PaintWatch watch;
  application.installEventFilter(&watch);
  watch.expect([] {
    std::fputs("painted\n", stdout);
    std::fflush(stdout);
    std::_Exit(0);
  });
  program.open();
  return application.exec();
}

double time_first_window(const std::string& self, const std::string& folder) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return -1;
  const auto start = Clock::now();
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl(self.c_str(), self.c_str(), "--first-window", folder.c_str(), nullptr);
    std::_Exit(127);
  }
  close(ends[1]);
  char byte = 0;
  const bool painted = read(ends[0], &byte, 1) == 1;
  const double taken = ms_since(start);
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return painted ? taken : -1;
}

int open_exercise(int argc, char* argv[], const std::filesystem::path& folder) {
  QApplication application(argc, argv);
  tonarix::theme::apply(application);
  tonarix::Program program(options_for(folder));
  PaintWatch watch;
  application.installEventFilter(&watch);
  tonarix::QtScheduler scheduler;
  Clock::time_point pressed;
  program.open();
  scheduler.post(tonarix::milliseconds(500), [&] {
    dynamic_cast<tonarix::SelectionWindow&>(*program.windows().newest()).cmdOk_click();
  });
  scheduler.post(tonarix::milliseconds(2000), [&] {
    auto& settings = dynamic_cast<tonarix::Einstellung1&>(*program.windows().newest());
    watch.expect(
        [&] { tonarix::print_figure("exercise_open_ms", ms_since(pressed), "ms", "<= 200"); });
    pressed = Clock::now();
    settings.click(settings.cmdOk);
  });
  scheduler.post(tonarix::milliseconds(6000), [&] {
    tonarix::print_figure("pss_mb", pss_mb(), "MB", "<= 50");
    std::_Exit(program.windows().newest()->name() == "arbeitsblatt1" ? 0 : 1);
  });
  return application.exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc == 3 && std::strcmp(argv[1], "--first-window") == 0) return first_window(argc, argv);
  const auto folder = std::filesystem::temp_directory_path() / "tonarix-measure";
  std::filesystem::create_directories(folder);
  const std::string self = std::filesystem::read_symlink("/proc/self/exe");
  std::vector<double> times;
  for (int run = 0; run < 7; ++run) times.push_back(time_first_window(self, folder));
  std::sort(times.begin(), times.end());
  tonarix::print_figure("first_window_ms", times[times.size() / 2], "ms", "<= 300");
  return open_exercise(argc, argv, folder);
}
