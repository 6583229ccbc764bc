#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/module_texts.h"
#include "config/einstellung1.h"
#include "config/einstellung2.h"
#include "support/host_bed.h"
#include "support/recording_midi.h"

namespace tonarix {

/// One settings window with all that it needs, on virtual time.
struct SettingsBed : HostBed {
  explicit SettingsBed(ExerciseKind ueb_typ = ExerciseKind::determine) {
    server.ServerInit("vemo06");
    tables.load(texts);
    settings.ueb_typ = ueb_typ;
    settings.tempo_ms = tempo_beats();
  }

  ~SettingsBed() { windows.clear(); }

  /// Opens the window and lets it start.
  template <typename Kind>
  Kind& open() {
    Kind& opened = windows.open(std::make_unique<Kind>(context()));
    scheduler.settle();
    return opened;
  }
  Einstellung1& open() { return *(window = &open<Einstellung1>()); }
  /// The window of the exercise.
  EarSettingsWindow& open_own() {
    if (settings.ueb_typ == ExerciseKind::build) return open<Einstellung2>();
    return open();
  }
  void store(const std::string& key, const std::vector<std::string>& record) {
    records["vemo06/" + key] = Variant::strings(record);
  }
  void choose_level(int which) {
    auto& newest = dynamic_cast<SettingsWindow&>(*windows.newest());
    newest.choose(newest.training_Combo, which);
  }

  SettingsContext context() {
    return {.common = common,
            .server = server,
            .errors = errors,
            .midi = midi,
            .devices = devices,
            .midi_event = midi_event,
            .settings = settings,
            .saved_training = saved_training,
            .statistics = statistics,
            .best = best,
            .tables = tables,
            .interval_names = interval_names,
            .ProtokollNeu = [this] { steps.push_back("protocol"); },
            .open_exercise =
                [this](SettingsWindow&) {
                  if (exercise_fails) throw std::runtime_error("no exercise");
                  steps.push_back("exercise");
                },
            .show_selection = [this] { steps.push_back("selection"); },
            .send_keys = [this](const std::string& keys) { steps.push_back(keys); },
            .put_listing = [this](const std::string& document) -> std::optional<TextKey> {
              listing = document;
              if (listing_fails) return {};
              return text::diagnostic_stream;
            }};
  }

  std::map<std::string, Variant>& records = host.records;
  Midi midi;
  RecordingDevices devices{scheduler};
  MidiEvent midi_event;
  Settings settings;
  std::optional<SavedTraining> saved_training;
  Auswertung statistics;
  Ergebnis best;
  TextTables tables;
  IntervalNames interval_names{texts};
  std::vector<std::string> steps;
  std::string listing;
  bool listing_fails = false;
  bool exercise_fails = false;
  Einstellung1* window = nullptr;
};

}  // namespace tonarix
