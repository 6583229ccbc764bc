#pragma once

#include <memory>
#include <optional>

#include "engine/exercise_context.h"
#include "settings/settings_tables.h"
#include "support/fake_dialogs.h"
#include "support/fake_document_writer.h"
#include "support/fake_host.h"
#include "support/key_texts.h"
#include "support/recording_midi.h"
#include "support/standing_clock.h"
#include "support/virtual_scheduler.h"

namespace tonarix {

/// What an exercise window works with, without the windows around it.
struct EngineBed {
  EngineBed() {
    server.ServerInit("vemo06");
    settings.tempo_ms = tempo_beats();
    settings.EinstDatSave = {"0"};
    midi.midi_geraet = 0;
    midi.MidiAnschluss(output);
    protocol.ProtokollNeu();
  }
  template <typename Kind>
  Kind& open() {
    Kind& window = windows.open(std::make_unique<Kind>(context()));
    scheduler.settle();
    return window;
  }
  ExerciseContext context() {
    return {.common = {scheduler, windows, texts, dialogs},
            .server = server,
            .errors = errors,
            .clock = clock,
            .chance = chance,
            .midi = midi,
            .midi_event = midi_event,
            .settings = settings,
            .saved_training = saved_training,
            .key = key,
            .row = row,
            .statistics = statistics,
            .best = best,
            .protocol = protocol,
            .tone_names = tone_names,
            .interval_names = interval_names,
            .caller = {[] {}, [] {}, [] {}},
            .open_result = [](const std::function<void()>& closed) { closed(); }};
  }

  VirtualScheduler scheduler;
  FakeHost host;
  Server server{host.factory(), {"vemo06", "vemo06"}};
  KeyTexts texts;
  RecordingDialogs dialogs{scheduler};
  ErrorReport errors{server, texts, dialogs};
  StandingClock clock;
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
  FakeDocumentWriter documents;
  Protokoll protocol{server, clock, documents, {"/protocols", "/data"}, {}};
  ToneNames tone_names{texts};
  IntervalNames interval_names{texts};
  WindowList windows{scheduler};
};

}  // namespace tonarix
