// Prints how far the worst onset of rendered rows lies from its time: one audio block is the goal.

#include <cstdio>

#include "figure.h"
#include "support/rendered_row.h"

int main() {
  using namespace tonarix;
  const auto synthesizer = std::make_shared<Synthesizer>(Synthesizer::Output::rendered_by_caller,
                                                         sound_font_places(), [](const auto&) {});
  if (synthesizer->problem() != Synthesizer::Problem::none) {
    std::fprintf(stderr, "onset_error: %s\n", synthesizer->reason().c_str());
    return 1;
  }
  double worst = 0;
  for (const int beat_ms : {250, 333, 400, 617, 1000, 1517, 2000}) {
    worst = std::max(worst, worst_onset_error_ms(synthesizer, 6, beat_ms));
  }
  print_figure("onset_error_ms", worst, "ms", "<= 1.4");
  return 0;
}
