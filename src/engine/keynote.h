#pragma once

#include <array>
#include <cstdint>

#include "base/chance.h"
#include "music/key.h"
#include "settings/settings.h"

namespace tonarix {

/// Which thirds over the keynote the row of a Dur-moll task holds.
enum class Third : std::int16_t { none = 0, minor = 1, major = 2, both = 3 };

/// One note of the keynote chord.
struct ChordNote {
  std::int16_t note = 0;     ///< MIDI note number
  std::int16_t ton_abw = 0;  ///< deviation of the temperament in bend steps
  friend constexpr bool operator==(const ChordNote&, const ChordNote&) = default;
};

/// The keynote above, then keynote, third and fifth.
using KeynoteChord = std::array<ChordNote, 4>;

/// Octave of the keynote that sounds along, as a distance from the scale table.
constexpr std::int16_t grdton_lage(const Settings& settings) {
  return static_cast<std::int16_t>(settings.tonraum_min > 35 ? settings.tonraum_min - 24 : 12);
}

/// Octave of the keynote chord, as a distance from the scale table.
constexpr std::int16_t grdton_lage2(const Settings& settings, const Key& key) {
  return static_cast<std::int16_t>(
      key.tonart_offset + settings.tonraum_min > 47 ? settings.tonraum_min - 12 : 24);
}

/// Builds `GrdAkk` in the current key. Dur and moll have one third; in Dur-moll the chord takes the
/// third heard in the row, so that it never contradicts the ear. Where both were heard, the tone
/// just answered decides when it is one of them; chance decides what is still open. `terz_typ`
/// becomes the third of the chord, so that all later checks of the task keep its mode.
KeynoteChord keynote_chord(const Settings& settings, const Key& key, Tone just_answered,
                           std::int16_t& terz_typ, Chance& chance);

}  // namespace tonarix
