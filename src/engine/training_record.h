#pragma once

#include <optional>

#include "host/error_report.h"
#include "host/server.h"
#include "settings/saved_training.h"
#include "settings/settings.h"

namespace tonarix {

/// The training of the chosen exercise among the host's records: kept, gone on with, dropped.
class TrainingRecord {
 public:
  /// `current` is what the settings window read when level 2 was chosen.
  TrainingRecord(Server& server, ErrorReport& errors, Settings& settings,
                 std::optional<SavedTraining>& current)
      : server_(server), errors_(errors), settings_(settings), current_(current) {}

  /// Stores settings and state, both or none: the settings of one training beside the state of
  /// another would go on with nonsense. Nothing is stored when the former settings can't be read
  /// and so could not be restored. False when the host failed; the reason is in the log.
  bool keep(const SavedTraining& training);
  /// The training at level 2; RuntimeError 1000 when none was read.
  const SavedTraining& resumed() const;
  /// Marks the training as used up. False when the host failed.
  bool drop();
  /// Whether the store holds a training to go on with, whichever it is; `failed` when the host
  /// doesn't tell.
  RecordRead stored() const;

 private:
  Server& server_;
  ErrorReport& errors_;
  Settings& settings_;
  std::optional<SavedTraining>& current_;
};

}  // namespace tonarix
