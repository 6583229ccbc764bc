#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/chance.h"
#include "music/naming.h"
#include "music/tone.h"
#include "music/tones.h"

namespace tonarix {

/// The scale table and the key it stands in. One instance for the process.
struct Key {
  std::array<Tone, 12> basis;     ///< the table as built, on C
  std::array<Tone, 12> skala;     ///< the table in the current key; rows 0 to anz_stufen are in use
  std::int16_t anz_stufen = 0;    ///< last row of the table, the octave of row 0
  std::int16_t iv_anzahl = 0;     ///< number of answer codes per direction
  std::int16_t qz_transpos = 0;   ///< offset of the key from C on the line of fifths
  std::int16_t chr_transpos = 0;  ///< chromatic offset of the key, 0 to 11
  std::int16_t tonart_offset = 0;  ///< the same folded to -5 to +6
};

/// Fills the C-based table for Dur (0), moll (1) or Dur-moll (2), copies it to `skala`, and sets
/// `anz_stufen` and `iv_anzahl`: as many codes as degrees when named from the keynote; 13, 17 or 19
/// from the tone before. The key stands on C until one is chosen. RuntimeError 9 for any other
/// `tongeschl`.
void build_scale(Key& key, std::int16_t tongeschl, Naming abfr_iv);

/// Draws a key that is never the one on C and moves `skala` there: one sign, then a distance, which
/// in moll is drawn again when it leads to C. Six fifths to either side of C, in moll of A minor.
void choose_key(Key& key, std::int16_t tongeschl, Chance& chance);

/// Moves `skala` to the key this many fifths from C, -10 to 14: every tone keeps a name.
void move_to_key(Key& key, int qz_transpos);

/// Row of the tone with this name in the current key, or nothing when it is not in the key.
inline std::optional<int> skala_row(const Key& key, int qz) {
  const int position = position_in_list(qz, key.skala, key.anz_stufen);
  return position == 0 ? std::nullopt : std::optional<int>(position - 1);
}

}  // namespace tonarix
