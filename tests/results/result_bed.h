#pragma once

#include <memory>

#include "results/result_window.h"
#include "support/fake_host.h"
#include "support/recording_printer.h"
#include "support/window_bed.h"

namespace tonarix {

/// A result sheet with all it needs: a known user at level 1, naming from the tone before, a rising
/// second always right, a falling one always wrong, a further interval without an answer.
struct ResultBed : WindowBed {
  struct StandingClock final : WallClock {
    CivilTime now() const override { return {2026, 11, 21, 14, 40, 0}; }
  };

  ResultBed() {
    server.ServerInit("vemo06");
    host.answers["LOGIN"] = Variant::Array{"Lovelace", "Ada", "4711"};
    settings.Uebungsmodus = Level::training;
    settings.abfr_iv = Naming::from_tone_before;
    settings.EinstDatSave = {"4", "Übungsmodus", "Training", "Tempo", "40 (Largo)"};
    statistics.init_arr(3, 42);
    for (const std::int16_t row : {4, 25, 11}) statistics.Increment(StatisticRow(row), 3);
    statistics.Save(StatisticRow(4), 0, 1);
    statistics.Save(StatisticRow(4), 1, -16);
    statistics.Save(StatisticRow(25), 0, 1);
  }
  ~ResultBed() { windows.clear(); }
  ResultWindow& open() {
    const ResultContext context{common,     server, errors,  clock,      settings,
                                statistics, names,  printer, "praxis-3", {}};
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

  FakeHost host;
  Server server{host.factory(), {"vemo06", "test"}};
  ErrorReport errors{server, texts, dialogs};
  StandingClock clock;
  Settings settings;
  Auswertung statistics;
  IntervalNames names{texts};
  RecordingPrinter printer;
  int closed = 0;
  int windows_when_closed = -1;
};

}  // namespace tonarix
