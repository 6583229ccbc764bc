#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/arithmetic.h"
#include "music/key.h"
#include "settings/settings.h"

namespace tonarix {

/// Every combination of settings that the drawing of a row looks at and the windows allow: level,
/// naming, degree, mode, key, size with its ranges, place of the range, count. Sizes above an
/// octave need four octaves; a chosen degree needs a single interval.
inline std::vector<Settings> material_settings() {
  std::vector<Settings> all(1);
  const auto vary = [&all]<typename Value>(Value Settings::*field, int first, int last,
                                           bool (*allowed)(const Settings&)) {
    std::vector<Settings> varied;
    for (Settings& s : all) {
      for (int value = first; value <= last; ++value) {
        s.*field = static_cast<Value>(value);
        if (allowed(s)) varied.push_back(s);
      }
    }
    all = std::move(varied);
  };
  const auto always = [](const Settings&) { return true; };
  vary(&Settings::Uebungsmodus, 0, 4, always);
  vary(&Settings::abfr_iv, 0, 1, always);
  vary(&Settings::tongeschl, 0, 2, always);
  vary(&Settings::Tonart, 0, 1, always);
  vary(&Settings::ivg, 0, 2, always);
  vary(&Settings::E_Oktav, 0, 3, [](auto& s) { return s.ivg == 0 || s.E_Oktav >= 2; });
  // At first the number of octaves over the lowest place.
  vary(&Settings::tonraum_min, 0, 3, [](auto& s) { return s.tonraum_min <= 3 - s.E_Oktav; });
  vary(&Settings::ton_st_wahl, 0, 1, always);
  vary(&Settings::stufe_wahl, 0, 10, [](auto& s) {
    return s.stufe_wahl == 0 || (s.ton_st_wahl == 1 && s.stufe_wahl < 7 + 2 * s.tongeschl);
  });
  vary(&Settings::invzahl, 1, 4, [](auto& s) { return s.ton_st_wahl == 0 || s.invzahl == 1; });
  for (Settings& s : all) {
    s.tonraum_min = static_cast<std::int16_t>(36 + 12 * s.tonraum_min);
    s.tonraum_max = static_cast<std::int16_t>(s.tonraum_min + 24 + 12 * s.E_Oktav);
  }
  return all;
}

/// The settings of a new window at a level, with the given mode and naming.
inline Settings material_of(int level, double mode, double abfr_iv) {
  Settings settings;
  settings.Uebungsmodus = static_cast<Level>(level);
  settings.tongeschl = to_int16(mode);
  settings.abfr_iv = static_cast<Naming>(abfr_iv);
  return settings;
}

inline std::string describe(const Settings& s) {
  const auto field = [](const char* name, int value) {
    return std::string(name) + "=" + std::to_string(value) + " ";
  };
  return field("Uebungsmodus", static_cast<int>(s.Uebungsmodus)) +
         field("abfr_iv", static_cast<int>(s.abfr_iv)) + field("tongeschl", s.tongeschl) +
         field("Tonart", s.Tonart) + field("ivg", s.ivg) + field("E_Oktav", s.E_Oktav) +
         field("tonraum_min", s.tonraum_min) + field("ton_st_wahl", s.ton_st_wahl) +
         field("stufe_wahl", s.stufe_wahl) + field("invzahl", s.invzahl);
}

}  // namespace tonarix
