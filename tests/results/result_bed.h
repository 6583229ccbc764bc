#pragma once

#include <memory>

#include "results/result_window.h"
#include "support/host_bed.h"
#include "support/recording_printer.h"

namespace tonarix {

/// A result sheet with all it needs, in a training of intervals named from the tone before, of
/// which none was offered yet.
struct ResultBed : HostBed {
  ResultBed() {
    server.ServerInit("vemo06");
    settings.Uebungsmodus = Level::training;
    settings.abfr_iv = Naming::from_tone_before;
    settings.EinstDatSave = {"4", "Übungsmodus", "Training", "Tempo", "40 (Largo)"};
    statistics.init_arr(3, 42);
  }
  ~ResultBed() { windows.clear(); }

  void offered(std::int16_t row) { statistics.Increment(StatisticRow(row), 3); }
  /// Offered and answered: the columns 0 to 2 of the statistics.
  void answered(std::int16_t row, float times, float sum, float wrong = 0) {
    offered(row);
    statistics.Save(StatisticRow(row), 0, times);
    statistics.Save(StatisticRow(row), 1, sum);
    statistics.Save(StatisticRow(row), 2, wrong);
  }
  /// The longest sheet there is and more: a known user, all intervals in all colours.
  void fill() {
    host.answers["LOGIN"] = Variant::Array{"Lovelace", "Ada", "4711"};
    for (std::size_t pair = 0; pair < ResultWindow::kSettingRows; ++pair) {
      settings.EinstDatSave.insert(settings.EinstDatSave.end(),
                                   {"Iv-Bestimmung", "gemischt (0 - 2 Okt)"});
    }
    for (std::int16_t row = 1; row <= 42; ++row) {
      answered(row, 1, -0.4F * static_cast<float>(row));
    }
  }

  ResultWindow& open() {
    const ResultContext context{common, server, errors,  clock,      settings, statistics,
                                names,  work,   printer, "praxis-3", {}};
    return windows.open(std::make_unique<ResultWindow>(context, [this] {
      ++closed;
      windows_when_closed = windows.count();
    }));
  }
  ResultWindow& open_filled() {
    ResultWindow& window = open();
    scheduler.advance_ms(100);
    return window;
  }

  Settings settings;
  Auswertung statistics;
  IntervalNames names{texts};
  WorkDone work{.tasks = 3, .tasks_in_all = {}, .seconds = 252, .right = 10, .wrong = 2};
  RecordingPrinter printer;
  int closed = 0;
  int windows_when_closed = -1;
};

}  // namespace tonarix
