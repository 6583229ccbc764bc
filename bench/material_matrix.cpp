#include <array>
#include <cstdio>
#include <exception>
#include <map>
#include <string>

#include "support/material_bed.h"
#include "support/material_settings.h"

// Draws rows in every combination of settings, checks all laws of a row, and tells how many rows
// were refused and why. A number as argument changes the rows per combination.
int main(int argc, char** argv) {
  using namespace tonarix;
  constexpr const char* kReasons[kRefusals] = {"no_name", "not_leading", "no_button",
                                               "tone_repeated", "out_of_range"};
  const int rows_each = argc > 1 ? std::atoi(argv[1]) : 200;
  constexpr int kRowsPerExercise = 40;

  std::array<long long, kRefusals> refused{};
  std::map<std::string, long long> broken;
  std::map<std::string, std::string> example;
  std::map<std::string, std::string> impossible;
  long long rows = 0;
  double most_refused = 0;
  std::string most_refused_in;
  std::uint64_t seed = 1;
  const auto all = material_settings();
  for (Settings s : all) {
    s.stimm_g = static_cast<std::int16_t>(seed % 3);
    s.frequenz = static_cast<std::int16_t>(seed % 2);
    MaterialBed bed(s, seed++);
    long long drawn = 0;
    try {
      for (int n = 0; n < rows_each; ++n, ++drawn) {
        if (n % kRowsPerExercise == 0) bed.begin();
        bed.material.mat_wahl();
        const std::string law = broken_law(bed);
        if (!law.empty()) {
          ++broken[law];
          example.try_emplace(law, describe(s));
        }
        if (!bed.answer(0.4)) bed.begin();
      }
    } catch (const std::exception& error) {
      impossible[describe(s)] = error.what();
    }
    rows += drawn;
    long long here = 0;
    for (int i = 0; i < kRefusals; ++i) {
      refused[static_cast<std::size_t>(i)] += bed.material.refused()[static_cast<std::size_t>(i)];
      here += bed.material.refused()[static_cast<std::size_t>(i)];
    }
    if (drawn > 0 && static_cast<double>(here) / static_cast<double>(drawn) > most_refused) {
      most_refused = static_cast<double>(here) / static_cast<double>(drawn);
      most_refused_in = describe(s);
    }
  }

  std::printf("combinations %zu\nrows %lld\n", all.size(), rows);
  for (int i = 0; i < kRefusals; ++i) {
    std::printf("refused %-14s %lld\n", kReasons[i], refused[static_cast<std::size_t>(i)]);
  }
  std::printf("most refusals per row %.2f in %s\n", most_refused, most_refused_in.c_str());
  for (const auto& [law, count] : broken) {
    std::printf("broken: %s, %lld times, e.g. %s\n", law.c_str(), count, example[law].c_str());
  }
  for (const auto& [settings, why] : impossible) {
    std::printf("can't be drawn: %s(%s)\n", settings.c_str(), why.c_str());
  }
  return impossible.empty() ? 0 : 1;
}
