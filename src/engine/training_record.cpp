#include "engine/training_record.h"

#include "base/runtime_error.h"
#include "settings/exercises.h"

namespace tonarix {

bool TrainingRecord::keep(const SavedTraining& training) {
  constexpr std::string_view kTag = "zurueck_click.";
  const std::string settings_key = record_key('E', settings_);
  const std::string state_key = record_key('A', settings_);
  std::vector<std::string> former;
  bool settings_first = false;
  try {
    const RecordRead read = server_.read_record(settings_key, former);
    if (read == RecordRead::failed) {
      throw RuntimeError(RuntimeError::kHostFailure, "The former record cannot be read",
                         settings_key);
    }
    // Where no settings are stored, even a valid state is no training: then the state goes first,
    // for the new settings must not meet a state of old.
    settings_first = read == RecordRead::found;
    settings_.AntwSicherung = to_record(training, settings_);
    const Variant state = Variant::strings(settings_.AntwSicherung);
    if (!settings_first) server_.ServerStore(state_key, state);
    server_.ServerStore(settings_key, Variant::strings(settings_.EinstSicherung));
    if (settings_first) server_.ServerStore(state_key, state);
    current_ = training;
    return true;
  } catch (const std::exception&) {
    errors_.log(kTag, std::current_exception());
  }
  try {
    if (settings_first) server_.ServerStore(settings_key, Variant::strings(former));
  } catch (const std::exception&) {
    errors_.log(kTag, std::current_exception());
  }
  return false;
}

const SavedTraining& TrainingRecord::resumed() const {
  if (!current_) {
    throw RuntimeError(RuntimeError::kOther, "No saved training was read", "AntwSicherung");
  }
  return *current_;
}

bool TrainingRecord::drop() {
  try {
    server_.ServerStore(record_key('A', settings_), Variant::strings({"False"}));
    return true;
  } catch (const std::exception&) {
    errors_.log("intervall_antw.", std::current_exception());
    return false;
  }
}

RecordRead TrainingRecord::stored() const {
  std::vector<std::string> record;
  std::vector<std::string> state;
  const RecordRead settings_read = server_.read_record(record_key('E', settings_), record);
  const RecordRead state_read = server_.read_record(record_key('A', settings_), state);
  const bool used_up = state_read == RecordRead::found && !says_valid(state);
  // One half that is surely missing is enough to know that there is none.
  if (used_up || settings_read == RecordRead::none) return RecordRead::none;
  return state_read == RecordRead::found ? settings_read : state_read;
}

}  // namespace tonarix
