#pragma once

#include <array>
#include <string>
#include <vector>

#include "host/server.h"
#include "host/text_tables.h"
#include "settings/saved_training.h"
#include "settings/settings.h"

namespace tonarix {

/// What stands in place of level 2 while there is no training to go on with.
inline constexpr char kNoSavedTraining[] = "---------------";

/// The five entries of the level list; the third is the dashes unless `saved`.
std::array<std::string, 5> level_names(const TextTables& tables, bool saved);

/// Whether there is a training of the chosen exercise to go on with: `found` when both records can
/// be read and the state says that it is valid.
RecordRead saved_training(Server& server, const Settings& settings);

/// A stored training, whole and fit to go on with: the settings in force with the stored ones laid
/// over them (records included), and the state of the box.
struct StoredTraining {
  Settings settings;
  SavedTraining training;
};
/// Reads both records of the chosen exercise. RuntimeError when they can't be read, are broken, or
/// don't belong together.
StoredTraining read_stored_training(Server& server, const Settings& settings);

}  // namespace tonarix
