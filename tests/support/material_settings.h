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
/// octave need four octaves; a chosen degree needs a single interval. `step` takes every step-th
/// only.
inline std::vector<Settings> material_settings(int step = 1) {
  std::vector<Settings> all;
  int number = 0;
  Settings s;
  const auto add_counts = [&] {
    for (s.invzahl = 1; s.invzahl <= (s.ton_st_wahl == 1 ? 1 : 4); ++s.invzahl) {
      if (number++ % step == 0) all.push_back(s);
    }
  };
  const auto add_degrees = [&] {
    constexpr std::int16_t kDegrees[] = {7, 9, 11};
    for (s.ton_st_wahl = 0; s.ton_st_wahl <= 1; ++s.ton_st_wahl) {
      const std::int16_t degrees = s.ton_st_wahl == 1 ? kDegrees[s.tongeschl] : std::int16_t{1};
      for (s.stufe_wahl = 0; s.stufe_wahl < degrees; ++s.stufe_wahl) add_counts();
    }
  };
  const auto add_ranges = [&] {
    for (s.ivg = 0; s.ivg <= 2; ++s.ivg) {
      for (s.E_Oktav = s.ivg == 0 ? 0 : 2; s.E_Oktav <= 3; ++s.E_Oktav) {
        for (int place = 0; place <= 3 - s.E_Oktav; ++place) {
          s.tonraum_min = static_cast<std::int16_t>(36 + 12 * place);
          s.tonraum_max = static_cast<std::int16_t>(s.tonraum_min + 24 + 12 * s.E_Oktav);
          add_degrees();
        }
      }
    }
  };
  for (int level = 0; level <= 4; ++level) {
    s.Uebungsmodus = static_cast<Level>(level);
    for (const Naming naming : {Naming::from_keynote, Naming::from_tone_before}) {
      s.abfr_iv = naming;
      for (s.tongeschl = 0; s.tongeschl <= 2; ++s.tongeschl) {
        for (s.Tonart = 0; s.Tonart <= 1; ++s.Tonart) add_ranges();
      }
    }
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
