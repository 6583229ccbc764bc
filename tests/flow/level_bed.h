#pragma once

#include <gtest/gtest.h>

#include <string>

#include "flow/flow_bed.h"

namespace tonarix {

/// Trainings and exams in the whole module.
struct LevelBed : FlowBed {
  using FlowBed::FlowBed;

  /// Answers to the end of a training, each interval wrong at first with the chance `wrong`.
  void play(Arbeitsblatt1& window, double wrong) {
    for (int task = 0; task < 500 && !is_over(window.phase()); ++task) {
      if (task > 0) next_task(window);
      answer_row(window, 1, wrong);
    }
  }
  /// Leaves for the settings and has the training saved.
  void save(Arbeitsblatt1& window) {
    dialogs.script = {Reply::yes};
    leave(window);
  }
  /// How the settings list the saved training.
  std::string saved_training_entry() {
    return dynamic_cast<Einstellung1&>(*windows.at(1)).training_Combo.items.at(2).text;
  }
};

/// The host that several processes share.
struct LevelFlowTest : testing::Test {
  Variant& state() { return host.records["vemo06/A1"]; }
  FakeHost host;
};

}  // namespace tonarix
