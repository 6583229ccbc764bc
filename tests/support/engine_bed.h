#pragma once

#include <memory>
#include <optional>

#include "engine/exercise_context.h"
#include "settings/settings_tables.h"
#include "support/fake_document_writer.h"
#include "support/fake_kept_exercises.h"
#include "support/host_bed.h"
#include "support/recording_midi.h"

namespace tonarix {

/// What an exercise window works with, without the windows around it.
struct EngineBed : HostBed {
  EngineBed() {
    server.ServerInit("vemo06");
    settings.tempo_ms = tempo_beats();
    settings.EinstDatSave = {"0"};
    midi.midi_geraet = 0;
    midi.MidiAnschluss(output);
    protocol.ProtokollNeu();
  }
  ~EngineBed() { windows.clear(); }
  template <typename Kind>
  Kind& open() {
    ExerciseContext context{
        common, server, errors,     clock, chance,   midi, midi_event,  settings,   saved_training,
        key,    row,    statistics, best,  protocol, kept, interrupted, tone_names, interval_names,
        {},     {},     {},         {}};
    context.caller = {[] {}, [] {}, [] {}};
    context.open_result = [this](const WorkDone& told, const std::function<void()>& closed) {
      work = told;
      closed();
    };
    Kind& window = windows.open(std::make_unique<Kind>(context));
    scheduler.settle();
    return window;
  }

  SeededChance chance{5};
  RecordingDevices devices{scheduler};
  MIDIOutput output{devices};
  Midi midi;
  MidiEvent midi_event;
  Settings settings;
  std::optional<SavedTraining> saved_training;
  Key key;
  TaskRow row;
  Auswertung statistics;
  Ergebnis best;
  WorkDone work;  ///< what the result sheet was told
  FakeDocumentWriter documents;
  Protokoll protocol{server, clock, documents, {"/protocols", "/data"}, {}};
  FakeKeptExercises kept;
  InterruptedExercises interrupted{scheduler, server, errors, texts, dialogs};
  ToneNames tone_names{texts};
  IntervalNames interval_names{texts};
};

}  // namespace tonarix
