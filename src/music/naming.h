#pragma once

#include <cstdint>

namespace tonarix {

/// What an interval is named from; the numbers are those of the field `abfr_iv`.
enum class Naming : std::int16_t {
  from_keynote = 0,      ///< as a degree of the scale
  from_tone_before = 1,  ///< as a direct interval
};

}  // namespace tonarix
