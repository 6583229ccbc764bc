#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "figure.h"
#include "support/material_bed.h"
#include "support/material_settings.h"

// Rows per second of the drawing in its slowest setting, 20 us a row at most, and the time the box
// takes to apply a task.

namespace {

using namespace tonarix;
using Clock = std::chrono::steady_clock;

double seconds_since(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Seconds per row over whole exercises, so that boxes and lists wear on; only the drawing counts.
double seconds_per_row(const Settings& settings, int rows) {
  MaterialBed bed(settings, 7);
  double drawing = 0;
  for (int n = 0; n < rows; ++n) {
    const Clock::time_point start = Clock::now();
    bed.material.mat_wahl();
    drawing += seconds_since(start);
    if (!bed.answer(0.4)) bed.begin();
  }
  return drawing / rows;
}

// A short pass over all settings finds the candidates; the best of many passes, which are short so
// that one of them runs undisturbed, tells the slowest.
std::pair<double, Settings> slowest(const std::vector<Settings>& all) {
  std::vector<std::pair<double, Settings>> candidates;
  for (const Settings& settings : all) {
    candidates.emplace_back(
        std::min(seconds_per_row(settings, 200), seconds_per_row(settings, 200)), settings);
  }
  const auto slower = [](const auto& a, const auto& b) { return a.first > b.first; };
  constexpr std::size_t kCandidates = 12;
  const std::size_t kept = std::min(kCandidates, candidates.size());
  std::partial_sort(candidates.begin(), candidates.begin() + static_cast<std::ptrdiff_t>(kept),
                    candidates.end(), slower);
  candidates.resize(kept);
  for (auto& [time, settings] : candidates) {
    time = std::numeric_limits<double>::max();
    for (int pass = 0; pass < 40; ++pass) time = std::min(time, seconds_per_row(settings, 3000));
  }
  return *std::min_element(candidates.begin(), candidates.end(), slower);
}

// The largest box that its bounds allow, 42 rows: every code in both directions. Its weights are
// worn, and every interval of the task was confused with three others.
double microseconds_of_box_auswerten() {
  Settings settings;
  settings.Uebungsmodus = Level::training;
  settings.abfr_iv = Naming::from_tone_before;
  settings.tongeschl = 2;
  settings.invzahl = 4;
  MaterialBed bed(settings, 3);
  std::vector<BoxRow> rows;
  for (int i = 0; i < FrequencyBox::kMaxRows; ++i) {
    const int code = i / 2 + 1;
    rows.push_back({to_int16(i % 2 == 0 ? code : -code), to_int16(i % 12 - 2)});
  }
  std::vector<AnsweredInterval> answered;
  for (const std::int16_t interval : {2, -3, 21, -21, 8}) {
    answered.push_back({interval, 6, 0, 0, {0, 11, 12, 13}});
  }
  double best = std::numeric_limits<double>::max();
  for (int pass = 0; pass < 2000; ++pass) {
    bed.box.restore(rows);
    const Clock::time_point start = Clock::now();
    bed.box.BoxAuswerten(answered);
    best = std::min(best, seconds_since(start));
  }
  return best * 1e6;
}

}  // namespace

int main() {
  std::vector<Settings> all = material_settings();
  std::erase_if(all, [](const Settings& s) { return s.Tonart == 0; });  // no key to draw: faster
  std::vector<Settings> level_0;
  std::copy_if(all.begin(), all.end(), std::back_inserter(level_0),
               [](const Settings& s) { return s.Uebungsmodus == Level::free; });
  const auto [time, settings] = slowest(all);
  const auto [time_0, settings_0] = slowest(level_0);
  print_figure("mat_wahl_rows_per_s", 1 / time, "rows/s", ">= 50000");
  print_figure("mat_wahl_level_0_rows_per_s", 1 / time_0, "rows/s", ">= 50000");
  print_figure("box_auswerten_us", microseconds_of_box_auswerten(), "us", "<= 5");
  std::fprintf(stderr, "slowest: %s\nslowest at level 0: %s\n", describe(settings).c_str(),
               describe(settings_0).c_str());
}
