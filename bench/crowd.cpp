// A class that saves at the bell: programs that open one store and save two trainings each, all at
// the same moment, on a disk that takes 10 ms longer for each synchronisation. Twice: with a store
// that is made then, and with one that stands. Prints one figure a line.

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "figure.h"
#include "saving_student.h"
#include "support/temporary_folder.h"

namespace {

using tonarix::SavingStudent;

constexpr int kStores = 2;              // of each program
constexpr useconds_t kSlower = 10'000;  // microseconds of each synchronisation

int (*usual_open)(sqlite3_vfs*, sqlite3_filename, sqlite3_file*, int, int*);
int (*usual_sync)(sqlite3_file*, int);

int slow_sync(sqlite3_file* file, int flags) {
  usleep(kSlower);
  return usual_sync(file, flags);
}

int open_slow(sqlite3_vfs* system, sqlite3_filename name, sqlite3_file* file, int flags, int* out) {
  const int code = usual_open(system, name, file, flags, out);
  if (code != SQLITE_OK || file->pMethods == nullptr) return code;
  // A database has other methods than its log; they synchronise alike.
  static std::map<const sqlite3_io_methods*, sqlite3_io_methods> slow;
  usual_sync = file->pMethods->xSync;
  sqlite3_io_methods& methods = slow.try_emplace(file->pMethods, *file->pMethods).first->second;
  methods.xSync = slow_sync;
  file->pMethods = &methods;
  return code;
}

void slow_the_disk_down() {
  static sqlite3_vfs slow = *sqlite3_vfs_find(nullptr);
  usual_open = slow.xOpen;
  slow.zName = "slow";
  slow.xOpen = open_slow;
  sqlite3_vfs_register(&slow, 1);
}

/// What a program tells of itself.
struct Told {
  int refused = 0;
  std::array<double, kStores> waited{};  // ms from the press to the record
  double standstill = 0;                 // ms
};

double in_ms(tonarix::Scheduler::Time time) {
  return static_cast<double>(time.count()) / 1000;
}

Told program(const std::filesystem::path& folder, int student) {
  Told told;
  std::optional<SavingStudent> module;
  const tonarix::SleepingScheduler clock;
  // Opening counts: the first store may have to wait for it.
  double opened = in_ms(clock.timed([&] { module.emplace(folder, student, true); }));
  if (!module->all_is_well()) ++told.refused;
  for (double& waited : told.waited) {
    waited = opened + in_ms(clock.timed([&] {
               if (!module->save(student)) ++told.refused;
             }));
    opened = 0;
  }
  told.standstill = in_ms(module->scheduler().longest_standstill());
  return told;
}

std::vector<Told> crowd(const std::filesystem::path& folder, int programs) {
  std::array<int, 2> bell{};
  std::array<int, 2> answers{};
  if (pipe(bell.data()) != 0 || pipe(answers.data()) != 0) return {};
  for (int student = 1; student <= programs; ++student) {
    if (fork() != 0) continue;
    close(bell[1]);
    char rung = 0;
    if (read(bell[0], &rung, 1) < 0) std::_Exit(1);  // ends when the bell is closed
    const Told told = program(folder, student);
    std::_Exit(write(answers[1], &told, sizeof told) == sizeof told ? 0 : 1);
  }
  for (const int end : {bell[0], bell[1], answers[1]}) close(end);
  std::vector<Told> all;
  Told told;
  while (read(answers[0], &told, sizeof told) == sizeof told) all.push_back(told);
  close(answers[0]);
  while (wait(nullptr) > 0) continue;
  return all;
}

bool measure(const std::filesystem::path& folder, int programs, const std::string& name) {
  const std::vector<Told> all = crowd(folder, programs);
  std::vector<double> waited;
  double standstill = 0;
  int refused = (programs - static_cast<int>(all.size())) * kStores;
  for (const Told& told : all) {
    refused += told.refused;
    waited.insert(waited.end(), told.waited.begin(), told.waited.end());
    standstill = std::max(standstill, told.standstill);
  }
  std::sort(waited.begin(), waited.end());
  int missing = 0;
  for (int student = 1; student <= programs; ++student) {
    int number = 0;
    SavingStudent looking(folder, student, true);
    missing += looking.look(number) != SavingStudent::Found::whole || number != student;
  }
  const double slowest = waited.empty() ? 0 : waited[waited.size() * 99 / 100];
  tonarix::print_figure((name + "_refused").c_str(), refused, "", "= 0");
  tonarix::print_figure((name + "_only_in_memory").c_str(), missing, "", "= 0");
  tonarix::print_figure((name + "_99_percent_ms").c_str(), slowest, "ms", "<= 2000");
  tonarix::print_figure((name + "_standstill_ms").c_str(), standstill, "ms", "<= 100");
  return refused == 0 && missing == 0 && slowest <= 2000;
}

}  // namespace

int main(int argc, char* argv[]) {
  const int programs = argc > 1 ? std::atoi(argv[1]) : 30;
  slow_the_disk_down();
  const tonarix::TemporaryFolder folder;
  const bool anew = measure(folder.path / "data", programs, "crowd_new");
  const bool standing = measure(folder.path / "data", programs, "crowd");
  return anew && standing ? 0 : 1;
}
