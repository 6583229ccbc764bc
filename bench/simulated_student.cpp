#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "settings/offered_intervals.h"
#include "support/material_bed.h"

// A student with a fixed chance of being right per interval works through trainings at level 1 to
// their end, and through as many tasks at level 0. Prints a table; a file name as argument gets a
// plot of where the questions go.

namespace {

using namespace tonarix;

constexpr int kRuns = 1000;
constexpr int kMostTasks = 1000;
constexpr int kTenths = 10;
constexpr double kStrong = 0.95;  // chance of being right on all other intervals

// Major seventh, minor sixth, augmented fourth, diminished fifth: 4 of the 13 intervals of Dur.
bool is_weak(int iv) {
  const int code = std::abs(iv);
  return code == 10 || code == 9 || code == 12 || code == 13;
}

struct Questions {
  double weak = 0;
  double all = 0;
  double percent() const { return all == 0 ? 0 : 100 * weak / all; }
};

struct Result {
  int solved = 0;
  int too_hard = 0;
  std::vector<int> tasks;  // of each run
  Questions level_1;
  Questions level_0;
  std::array<Questions, kTenths> by_tenth_1;  // of each run's tasks
  std::array<Questions, kTenths> by_tenth_0;
};

Settings settings_of(std::int16_t level) {
  Settings settings;
  settings.Uebungsmodus = static_cast<Level>(level);
  settings.abfr_iv = Naming::from_tone_before;
  settings.Tonart = 1;
  settings.invzahl = 2;
  settings.E_Oktav = 1;
  settings.tonraum_max = 84;
  return settings;
}

// Presses buttons, each wrong one only once, until one is right or the fourth was wrong. The time
// stays within the limit.
AnsweredInterval answer(MaterialBed& bed, std::int16_t asked, double right,
                        const std::vector<int>& codes) {
  AnsweredInterval answer{asked, 0, 0, 0, {}};
  std::vector<int> open;
  std::ranges::copy_if(codes, std::back_inserter(open),
                       [&](int code) { return code != std::abs(asked); });
  for (std::size_t wrong = 1; wrong <= 4; ++wrong) {
    if (bed.chance.Rnd() < right) break;
    answer.rf += 2;
    const auto pressed = open.begin() + draw(bed.chance, static_cast<int>(open.size()));
    answer.f_antw_wert[wrong] = to_int16(*pressed * Sgn(asked));
    open.erase(pressed);
  }
  if (answer.rf == 0) answer.rf = -4;
  return answer;
}

using Row = std::vector<bool>;  // which questions of a task were weak

std::vector<Row> work_through(std::int16_t level, double weak, std::uint64_t seed, int tasks,
                              int& panel) {
  MaterialBed bed(settings_of(level), seed);
  std::vector<int> codes;
  const std::bitset<22> offered = offered_codes(bed.settings, bed.key);
  for (int code = 1; code < 22; ++code) {
    if (offered[static_cast<std::size_t>(code)]) codes.push_back(code);
  }
  std::vector<Row> rows;
  const int asked = bed.settings.invzahl + 1;
  for (panel = 0; panel == 0 && static_cast<int>(rows.size()) < tasks;) {
    bed.material.mat_wahl();
    Row row;
    std::vector<AnsweredInterval> answered;
    for (std::size_t i = 0; i < static_cast<std::size_t>(asked); ++i) {
      row.push_back(is_weak(bed.row.iv[i]));
      answered.push_back(answer(bed, bed.row.iv[i], row.back() ? weak : kStrong, codes));
    }
    rows.push_back(row);
    if (level == 1) panel = bed.box.BoxAuswerten(answered).ergebnis_anz;
  }
  return rows;
}

void count(const std::vector<Row>& rows, Questions& sum, std::array<Questions, kTenths>& tenths) {
  for (std::size_t task = 0; task < rows.size(); ++task) {
    Questions& tenth = tenths[task * kTenths / rows.size()];
    for (const bool weak : rows[task]) {
      for (Questions* questions : {&sum, &tenth}) {
        questions->weak += weak;
        ++questions->all;
      }
    }
  }
}

Result simulate(double weak) {
  Result result;
  for (std::uint64_t run = 1; run <= kRuns; ++run) {
    int panel = 0;
    const auto training = work_through(1, weak, run, kMostTasks, panel);
    result.solved += panel == 1;
    result.too_hard += panel == 2;
    result.tasks.push_back(static_cast<int>(training.size()));
    count(training, result.level_1, result.by_tenth_1);
    const auto free = work_through(0, weak, run + kRuns, static_cast<int>(training.size()), panel);
    count(free, result.level_0, result.by_tenth_0);
  }
  std::ranges::sort(result.tasks);
  return result;
}

int height_of(double percent) {
  constexpr int kFloor = 300;
  constexpr int kPixelsPerPercent = 6;
  return kFloor - static_cast<int>(Round(kPixelsPerPercent * percent));
}

std::string line(const std::array<Questions, kTenths>& tenths, const char* style) {
  std::string points;
  for (std::size_t i = 0; i < kTenths; ++i) {
    points +=
        std::to_string(95 + 50 * i) + "," + std::to_string(height_of(tenths[i].percent())) + " ";
  }
  return "<polyline points=\"" + points + "\" fill=\"none\" " + style + "/>\n";
}

void write_plot(const char* path, const Result& result, double weak) {
  std::ofstream svg(path);
  svg << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 620 370\" "
         "font-family=\"sans-serif\" font-size=\"13\" role=\"img\">\n"
         "<title>Share of questions on the four weak intervals over the course of a "
         "training</title>\n<rect width=\"620\" height=\"370\" fill=\"#ffffff\"/>\n";
  for (int percent = 0; percent <= 40; percent += 10) {
    const int y = height_of(percent);
    svg << "<line x1=\"70\" x2=\"570\" y1=\"" << y << "\" y2=\"" << y
        << "\" stroke=\"#d0d0d0\"/><text x=\"62\" y=\"" << y + 4 << "\" text-anchor=\"end\">"
        << percent << " %</text>\n";
  }
  for (int tenth = 0; tenth < kTenths; ++tenth) {
    svg << "<text x=\"" << 95 + 50 * tenth << "\" y=\"320\" text-anchor=\"middle\">" << tenth + 1
        << "</text>\n";
  }
  svg << "<text x=\"320\" y=\"345\" text-anchor=\"middle\">tenth of the training</text>\n"
         "<text x=\"70\" y=\"28\" font-size=\"15\">Questions on the four weak intervals (right in "
      << static_cast<int>(100 * weak + 0.5) << " of 100)</text>\n"
      << line(result.by_tenth_1, "stroke=\"#0050a0\" stroke-width=\"3\"")
      << line(result.by_tenth_0, "stroke=\"#b04000\" stroke-width=\"3\" stroke-dasharray=\"8 5\"")
      << "<line x1=\"380\" x2=\"420\" y1=\"250\" y2=\"250\" stroke=\"#0050a0\" "
         "stroke-width=\"3\"/><text x=\"428\" y=\"254\">level 1, with the box</text>\n"
         "<line x1=\"380\" x2=\"420\" y1=\"272\" y2=\"272\" stroke=\"#b04000\" stroke-width=\"3\" "
         "stroke-dasharray=\"8 5\"/><text x=\"428\" y=\"276\">level 0, without</text>\n</svg>\n";
}

}  // namespace

int main(int argc, char** argv) {
  constexpr double kPlotted = 0.7;
  std::puts(
      "| weak intervals right | solved | too hard | neither in 1,000 tasks | tasks to the end: "
      "median | 9 of 10 within | "
      "questions on weak intervals, level 1 | level 0 |\n|---|---|---|---|---|---|---|---|");
  for (const double weak : {0.95, 0.9, 0.8, 0.7, 0.6, 0.5, 0.4, 0.3}) {
    const Result result = simulate(weak);
    std::printf("| %.0f %% | %.1f %% | %.1f %% | %.1f %% | %d | %d | %.1f %% | %.1f %% |\n",
                weak * 100, 100.0 * result.solved / kRuns, 100.0 * result.too_hard / kRuns,
                100.0 * (kRuns - result.solved - result.too_hard) / kRuns, result.tasks[kRuns / 2],
                result.tasks[kRuns * 9 / 10], result.level_1.percent(), result.level_0.percent());
    if (weak == kPlotted && argc > 1) write_plot(argv[1], result, weak);
  }
}
