#pragma once

#include <string>
#include <vector>

#include "settings/settings.h"
#include "settings/settings_tables.h"

namespace tonarix {

/// The settings of a training to store: one slot after the other, up to 13 + `ton_st_wahl`.
std::vector<std::string> build_EinstSicherung(const Settings& settings, SettingsKind kind);

/// The settings of a stored training laid over the given ones. Each slot must be a whole number
/// that its choice knows and that goes with the others; the array must have its length and its
/// empty slots. Anything else is RuntimeError 13 (no number), 6 (beyond 16 bits) or 9.
Settings read_EinstSicherung(const Settings& settings, SettingsKind kind,
                             const std::vector<std::string>& record);

}  // namespace tonarix
