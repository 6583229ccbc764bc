// Exercises whose program is killed. A child works through a training in virtual time, with real
// files, and is killed at a random moment; the next start has to bring back every task that was
// done before the last one, whole, and a training that can be gone on with. Then the cost of
// keeping an exercise after a task. With --window: the running program works through an exercise by
// itself and prints each task that is done (see interrupted.sh).

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <thread>

#include "app/program.h"
#include "app/session_end.h"
#include "base/windows/theme.h"
#include "figure.h"
#include "flow/flow_bed.h"
#include "protocol/kept_files.h"
#include "support/temporary_folder.h"

namespace {

using namespace tonarix;
using Clock = std::chrono::steady_clock;

ProtocolFolders folders_in(const TemporaryFolder& folder) {
  return {folder.path / "protocols", folder.path / "data"};
}

void report(int end, int task) {
  if (write(end, &task, sizeof task) != sizeof task) std::_Exit(1);
}

/// A training that goes on for ever; the number of each task that is done goes into the pipe.
[[noreturn]] void work(const TemporaryFolder& folder, int end) {
  FakeHost host;
  FileDocumentWriter writer;
  KeptFiles kept(folders_in(folder).data);
  FlowBed bed(host, kept, writer, folders_in(folder));
  Arbeitsblatt1& window = bed.begin(1);
  for (int task = 1;; ++task) {
    bed.answer_row(window, 1, 0.5);
    report(end, task);
    if (is_over(window.phase())) break;
    bed.next_task(window);
  }
  while (true) pause();
}

struct Outcome {
  int done = 0;       ///< tasks that the killed program had reported
  int recovered = 0;  ///< tasks in the protocol after the next start
  bool whole = true;  ///< protocol and training, and nothing half written
};

Outcome kill_once(SeededChance& chance) {
  TemporaryFolder folder;
  std::filesystem::create_directories(folders_in(folder).data);
  int ends[2];
  if (pipe(ends) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) work(folder, ends[1]);
  close(ends[1]);
  Outcome outcome;
  int task = 0;
  if (read(ends[0], &task, sizeof task) == sizeof task) outcome.done = task;
  std::this_thread::sleep_for(std::chrono::microseconds(draw(chance, 20'000)));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  while (read(ends[0], &task, sizeof task) == sizeof task) outcome.done = task;
  close(ends[0]);

  FakeHost host;
  FileDocumentWriter writer;
  KeptFiles kept(folders_in(folder).data);
  clear_leftovers(folders_in(folder).data);
  FlowBed next(host, kept, writer, folders_in(folder));
  if (outcome.done < 2 && next.dialogs.shown.empty()) return outcome;  // nothing was kept yet
  pugi::xml_document document;
  outcome.whole =
      document.load_file((folders_in(folder).protocols / "EXR261121090532.xml").c_str());
  outcome.recovered = static_cast<int>(FlowBed::lessons(document.child("exercise")).size());
  const bool told = next.dialogs.shown.size() == 1;
  const bool over =
      told && next.dialogs.shown[0].text.starts_with("[1169s]");  // the training was solved
  const bool goes_on = told && (over || next.begin(2).level() == Level::continued);
  const bool clear = std::filesystem::is_empty(folders_in(folder).data);
  outcome.whole = outcome.whole && goes_on && clear;
  return outcome;
}

int kill_many(int kills) {
  SeededChance chance(7);
  int done = 0, missing = 0, broken = 0;
  for (int i = 0; i < kills; ++i) {
    const Outcome outcome = kill_once(chance);
    done += outcome.done;
    missing += std::max(0, outcome.done - 1 - outcome.recovered);
    broken += !outcome.whole;
  }
  print_figure("exercises_killed", kills, "", "= 1000");
  print_figure("tasks_done_before_kill", done, "", "");
  print_figure("tasks_missing", missing, "", "= 0");
  print_figure("recoveries_not_whole", broken, "", "= 0");
  return missing + broken == 0 ? 0 : 1;
}

/// Milliseconds that keeping takes after the last of so many tasks, the median of nine.
double kept_ms(int tasks) {
  TemporaryFolder folder;
  FakeHost host;
  FileDocumentWriter writer;
  KeptFiles kept(folder.path);
  FlowBed bed(host, kept, writer, folders_in(folder));
  Einstellung1& settings = bed.open_settings();
  settings.choose(settings.temp_Combo, 9);
  settings.click(settings.invzahl[4]);
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  std::vector<double> times;
  for (int task = 1; task <= tasks + 4; ++task) {
    bed.answer_row(window, 1, 0.3);
    const auto start = Clock::now();
    bed.scheduler.advance_ms(0);
    const std::chrono::duration<double, std::milli> passed = Clock::now() - start;
    if (task > tasks - 5) times.push_back(passed.count());
    bed.next_task(window);
  }
  std::ranges::nth_element(times, times.begin() + 4);
  return times[4];
}

/// Presses the right answer again and again, as fast as the window takes it.
class Student {
 public:
  Student(Program& program, Scheduler& scheduler) : program_(program), scheduler_(scheduler) {}
  void act() {
    Window* newest = program_.windows().newest();
    if (auto* first = dynamic_cast<SelectionWindow*>(newest)) first->cmdOk_click();
    if (auto* settings = dynamic_cast<Einstellung1*>(newest)) {
      settings->choose(settings->temp_Combo, 9);
      settings->choose(settings->training_Combo, 1);
      settings->click(settings->cmdOk);
    }
    if (auto* exercise = dynamic_cast<Arbeitsblatt1*>(newest)) answer(*exercise);
    scheduler_.post(milliseconds(50), [this] { act(); });
  }

 private:
  void answer(Arbeitsblatt1& window) {
    const int place = FlowBed::asked(window);
    if (window.phase() == Phase::answering && place >= 0) {
      FlowBed::press(window, static_cast<std::int16_t>(std::abs(
                                 program_.module().row().iv[static_cast<std::size_t>(place)])));
      if (FlowBed::asked(window) >= 0) return;
      std::printf("%d\n", ++tasks_);
      std::fflush(stdout);
    }
    if (window.phase() == Phase::row_done) window.wieder2_click();
    window.CmdNextAufg_click();
  }

  Program& program_;
  Scheduler& scheduler_;
  int tasks_ = 0;
};

int run_window(int argc, char* argv[]) {
  QApplication application(argc, argv);
  theme::apply(application);
  Options options;
  options.data = argv[2];
  Program program(options);
  const SessionEnd session_end(application, program);
  QtScheduler scheduler;
  Student student(program, scheduler);
  program.open();
  scheduler.post(milliseconds(500), [&] { student.act(); });
  return application.exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc == 3 && std::strcmp(argv[1], "--window") == 0) return run_window(argc, argv);
  const int failed = kill_many(argc > 1 ? std::atoi(argv[1]) : 1000);
  print_figure("kept_after_100_tasks_ms", kept_ms(100), "ms", "<= 5");
  print_figure("kept_after_2000_tasks_ms", kept_ms(2000), "ms", "<= 60");
  return failed;
}
