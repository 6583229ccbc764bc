#include "engine/training_record.h"

#include "base/runtime_error.h"
#include "settings/exercises.h"

namespace tonarix {

bool TrainingRecord::keep(const SavedTraining& training) {
  constexpr std::string_view kTag = "zurueck_click.";
  const std::string settings_key = record_key('E', settings_);
  std::vector<std::string> former;
  bool had_former = false;
  try {
    had_former = server_.ServerRead(settings_key, former);
    settings_.AntwSicherung = to_record(training, settings_);
    server_.ServerStore(settings_key, Variant::strings(settings_.EinstSicherung));
    server_.ServerStore(record_key('A', settings_), Variant::strings(settings_.AntwSicherung));
    current_ = training;
    return true;
  } catch (const std::exception&) {
    errors_.log(kTag, std::current_exception());
  }
  try {
    if (had_former) server_.ServerStore(settings_key, Variant::strings(former));
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

}  // namespace tonarix
