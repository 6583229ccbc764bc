#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/window.h"
#include "host/error_report.h"
#include "host/server.h"
#include "host/text_tables.h"
#include "music/interval.h"
#include "settings/saved_training.h"
#include "settings/settings.h"
#include "sound/midi.h"
#include "statistics/records.h"

namespace tonarix {

class SettingsWindow;

/// Puts a supervisor's listing into the diagnostic stream. Where that is, in words of the
/// catalogue; nothing when it could not be written.
using PutListing = std::function<std::optional<TextKey>(const std::string& document)>;

/// Whom and what a settings window works with; all of it outlives the window.
struct SettingsContext {
  WindowContext common;
  Server& server;
  ErrorReport& errors;
  Midi& midi;
  MidiDevices& devices;
  MidiEvent& midi_event;
  Settings& settings;
  std::optional<SavedTraining>& saved_training;  ///< what level 2 goes on with
  Auswertung& statistics;
  Ergebnis& best;
  const TextTables& tables;
  const IntervalNames& interval_names;
  std::function<void()> ProtokollNeu;  ///< begins the protocol document of the exercise
  /// Opens the exercise window for `ueb_typ`; an exception leads back to the selection.
  std::function<void(SettingsWindow& caller)> open_exercise;
  std::function<void()> show_selection;
  std::function<void(const std::string& keys)> send_keys;  ///< "{F1}"
  PutListing put_listing;
};

}  // namespace tonarix
