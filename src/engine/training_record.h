#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/delay.h"
#include "base/sequence.h"
#include "host/error_report.h"
#include "host/server.h"
#include "settings/exercises.h"
#include "settings/saved_training.h"
#include "settings/settings.h"

namespace tonarix {

/// The training of the chosen exercise among the host's records: kept, gone on with, dropped.
/// Settings and state belong together: the settings of one training beside the state of another
/// would go on with nonsense.
class TrainingRecord {
 public:
  /// `current` is what the settings window read when level 2 was chosen. While the host is busy a
  /// store waits in `waits`, which closing does not cut short, up to 10 s.
  /// A failure to keep a training is logged under `keep_tag`, and so is a host found busy, once.
  TrainingRecord(Server& server, ErrorReport& errors, Settings& settings,
                 std::optional<SavedTraining>& current, Scheduler& scheduler, Waits& waits,
                 std::string keep_tag = "zurueck_click.")
      : server_(server),
        errors_(errors),
        settings_(settings),
        current_(current),
        scheduler_(scheduler),
        waits_(waits),
        keep_tag_(std::move(keep_tag)) {}

  /// Stores both records, or none. Where the host can't take them at once, the state is marked as
  /// used up before and valid last, so that whatever breaks off in between leaves no training
  /// rather than a mixture; nothing is stored where the former records can't be read. `kept` is
  /// false when the host failed; the reason is in the log. `still` is asked before each try that
  /// begins anew: nothing is stored when it says no.
  Sequence keep(SavedTraining training, bool& kept, std::function<bool()> still = {});
  /// The training at level 2; RuntimeError 1000 when none was read.
  const SavedTraining& resumed() const;
  /// Marks the training as used up. `dropped` is false when the host failed.
  Sequence drop(bool& dropped);
  /// Whether the store holds a training to go on with, whichever it is.
  RecordRead stored() const;

 private:
  using Strings = std::vector<std::string>;
  /// What the host held before.
  struct Former {
    RecordRead settings_read;
    RecordRead state_read;
    Strings settings;
    Strings state;
  };

  /// Calls, again while the host is busy; at last its HostBusy goes on.
  Sequence patiently(std::function<void()> call, std::string_view tag);
  Former read_former();
  /// For a host that takes one record at a time.
  void keep_one_by_one(const Former& former);
  void put_back(const Former& former);
  std::string settings_key() const { return record_key('E', settings_); }
  std::string state_key() const { return record_key('A', settings_); }
  void store(const std::string& key, const Strings& record) {
    server_.ServerStore(key, Variant::strings(record));
  }

  Server& server_;
  ErrorReport& errors_;
  Settings& settings_;
  std::optional<SavedTraining>& current_;
  Scheduler& scheduler_;
  Waits& waits_;
  std::string keep_tag_;
};

}  // namespace tonarix
