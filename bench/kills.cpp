// A program that saves one training after the other is killed at a random moment, again and again,
// from the opening of its store on. What it leaves must be a training that it saved, whole, or
// none: with a host that takes both records at once, and with one that takes one at a time.
// Prints one figure a line.

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <map>
#include <random>
#include <string>

#include "figure.h"
#include "saving_student.h"
#include "support/temporary_folder.h"

namespace {

using tonarix::SavingStudent;
using Found = SavingStudent::Found;

constexpr int kLongestLife = 50'000;  // microseconds

pid_t start(const std::filesystem::path& folder, bool together, int number) {
  const pid_t child = fork();
  if (child != 0) return child;
  SavingStudent student(folder, 1, together);
  for (;; number = number % 30'000 + 1) student.save(number);
}

bool measure(const std::string& name, bool together, int kills) {
  const tonarix::TemporaryFolder folder;
  std::mt19937 draws(7);
  std::map<Found, int> found;
  int damaged = 0;
  int moved_on = 0;
  int number = 1;
  for (int kill_nr = 0; kill_nr < kills; ++kill_nr) {
    const pid_t child = start(folder.path / "data", together, number);
    usleep(draws() % kLongestLife);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const int before = number;
    SavingStudent looking(folder.path / "data", 1, together);
    damaged += !looking.all_is_well();
    ++found[looking.look(number)];
    moved_on += number != before;
  }
  tonarix::print_figure((name + "_mixed").c_str(), found[Found::mixed], "", "= 0");
  tonarix::print_figure((name + "_torn").c_str(), found[Found::torn] + damaged, "", "= 0");
  tonarix::print_figure((name + "_without").c_str(), found[Found::nothing], "", "-");
  tonarix::print_figure((name + "_had_saved").c_str(), moved_on, "",
                        ("of " + std::to_string(kills)).c_str());
  return found[Found::mixed] + found[Found::torn] + damaged == 0;
}

}  // namespace

int main(int argc, char* argv[]) {
  const int kills = argc > 1 ? std::atoi(argv[1]) : 1000;
  const bool at_once = measure("kills_at_once", true, kills);
  const bool one_by_one = measure("kills_one_by_one", false, kills);
  return at_once && one_by_one ? 0 : 1;
}
