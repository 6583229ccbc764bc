#pragma once

#include <functional>
#include <optional>

#include "base/chance.h"
#include "base/rich_text.h"
#include "base/wall_clock.h"
#include "base/window.h"
#include "engine/interrupted_exercises.h"
#include "host/error_report.h"
#include "host/server.h"
#include "music/interval.h"
#include "music/key.h"
#include "music/tones.h"
#include "protocol/protokoll.h"
#include "settings/saved_training.h"
#include "settings/settings.h"
#include "sound/midi.h"
#include "statistics/records.h"
#include "statistics/work_done.h"

namespace tonarix {

/// What an exercise tells the window that opened it.
struct ExerciseCaller {
  std::function<void()> training_saved;     ///< the training can be gone on with
  std::function<void()> training_finished;  ///< the saved training is used up
  std::function<void()> show_again;         ///< the exercise has closed
};

/// Whom and what an exercise window works with; all of it outlives the window.
struct ExerciseContext {
  WindowContext common;
  Server& server;
  ErrorReport& errors;
  const WallClock& clock;
  Chance& chance;
  Midi& midi;
  MidiEvent& midi_event;
  Settings& settings;
  std::optional<SavedTraining>& saved_training;  ///< what level 2 goes on with
  Key& key;
  TaskRow& row;
  Auswertung& statistics;
  Ergebnis& best;
  Protokoll& protocol;
  KeptExercises& kept;
  InterruptedExercises& interrupted;
  const ToneNames& tone_names;
  const IntervalNames& interval_names;
  ExerciseCaller caller;
  /// The help page of an exercise, by the beginning of its file's name; nothing where there is none
  /// that can be read.
  std::function<std::optional<RichText>(std::string_view stem)> help_page;
  /// Shows the help; `closed` runs when it has been read.
  std::function<void(std::function<void()> closed)> show_help;
  /// Opens the result sheet; `closed` runs when the student has left it.
  std::function<void(const WorkDone& work, std::function<void()> closed)> open_result;
};

}  // namespace tonarix
