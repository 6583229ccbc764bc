#include "config/levels.h"

#include "base/runtime_error.h"
#include "music/key.h"
#include "settings/exercises.h"
#include "settings/saved_settings.h"

namespace tonarix {

std::array<std::string, 5> level_names(const TextTables& tables, bool saved) {
  std::array<std::string, 5> names = tables.levels;
  if (!saved) names[static_cast<std::size_t>(Level::continued)] = kNoSavedTraining;
  return names;
}

RecordRead saved_training(Server& server, const Settings& settings) {
  std::vector<std::string> record;
  std::vector<std::string> state;
  const RecordRead read =
      server.read_both(record_key('E', settings), record, record_key('A', settings), state);
  return is_used_up(state) ? RecordRead::none : read;
}

StoredTraining read_stored_training(Server& server, const Settings& settings) {
  std::vector<std::string> record;
  std::vector<std::string> state;
  if (server.read_both(record_key('E', settings), record, record_key('A', settings), state) !=
      RecordRead::found) {
    throw RuntimeError(RuntimeError::kHostFailure, "The saved training cannot be read",
                       "training_Combo");
  }
  Settings restored = read_EinstSicherung(settings, exercise_row(settings).settings, record);
  Key key;
  build_scale(key, restored.tongeschl, restored.abfr_iv);
  const auto read = from_record(state, restored, key);
  const auto* training = std::get_if<SavedTraining>(&read);
  if (training == nullptr) {
    throw RuntimeError(RuntimeError::kTypeMismatch,
                       "The saved state does not fit the settings saved with it", "training_Combo");
  }
  restored.EinstSicherung = std::move(record);
  restored.AntwSicherung = std::move(state);
  return {std::move(restored), *training};
}

}  // namespace tonarix
