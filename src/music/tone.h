#pragma once

#include <array>
#include <cstdint>

namespace tonarix {

/// A tone as it sounds and as it is written.
struct Tone {
  std::int16_t chr = 0;  ///< MIDI note number, 60 is the c one line above the small octave
  std::int16_t qz = 0;   ///< position on the line of fifths, 0 (Fbb) to 34 (B##), C = 15
  friend constexpr bool operator==(const Tone&, const Tone&) = default;
};

/// The tone row of the running task and the intervals between its tones. One instance for the
/// process.
struct TaskRow {
  std::array<Tone, 6> inv_ton;  ///< row 0 is the first tone, the keynote where there is one
  std::array<std::int16_t, 5>
      iv{};  ///< iv[k] leads from inv_ton[k] to inv_ton[k + 1]; its sign is the direction
};

}  // namespace tonarix
