#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "config/settings.h"
#include "config/settings_tables.h"
#include "host/server.h"
#include "host/text_tables.h"

namespace tonarix {

/// The exercise levels, the entries of `training_Combo`.
namespace level {
inline constexpr std::int16_t free = 0;
inline constexpr std::int16_t training = 1;   ///< can be saved
inline constexpr std::int16_t continued = 2;  ///< goes on with a saved training
inline constexpr std::int16_t test = 3;
inline constexpr std::int16_t exam = 4;
}  // namespace level

/// What stands in place of level 2 while there is no training to go on with.
inline constexpr char kNoSavedTraining[] = "---------------";
/// Element 0 of a training state that can be gone on with.
inline constexpr char kValidState[] = "true";

/// Short key of a store record: 'E' for the settings, 'A' for the state, then `ueb_typ`, and "b"
/// for theory: "E1", "A4b".
std::string short_key(char record, std::int16_t ueb_typ, SettingsKind kind);

/// The five entries of the level list; the third is the dashes unless `saved`.
std::array<std::string, 5> level_names(const TextTables& tables, bool saved);

/// True when both records of a training can be read and its state says that it is valid.
bool saved_training_offered(Server& server, std::int16_t ueb_typ, SettingsKind kind);

/// The settings of a training to store: one slot after the other, up to 13 + `ton_st_wahl`.
std::vector<std::string> build_EinstSicherung(const Settings& settings, SettingsKind kind);

/// The settings of a stored training laid over the given ones. Each slot must be a whole number
/// that its choice knows and that goes with the others; the array must have its length and its
/// empty slots. Anything else is RuntimeError 13 (no number), 6 (beyond 16 bits) or 9.
Settings read_EinstSicherung(const Settings& settings, SettingsKind kind,
                             const std::vector<std::string>& record);

/// Checks the build of a stored state: "true", six places for each of at least one row, two
/// counters. RuntimeError 9 for anything else.
void check_AntwSicherung(const std::vector<std::string>& record);

}  // namespace tonarix
