#pragma once

#include <array>
#include <cstdint>

namespace tonarix {

/// Error score at which a solution is given, and the most that one interval can weigh: four wrong
/// tries. (`RF`)
inline constexpr float kErrorCeiling = 8;

/// What one interval of a row has come to.
struct AnsweredInterval {
  std::int16_t interval = 0;                  ///< signed interval value
  float rf = 0;                               ///< error score; below 0 when right at once
  float zeit_gewicht = 0;                     ///< what lateness takes from the reward
  std::int16_t wdh_gewicht = 0;               ///< listening repeats
  std::array<std::int16_t, 5> f_antw_wert{};  ///< slots 1 to 4: wrong answers; 0 ends them
};

}  // namespace tonarix
