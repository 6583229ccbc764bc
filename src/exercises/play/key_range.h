#pragma once

#include <cstdint>

#include "exercises/play/spellings.h"
#include "music/key.h"
#include "settings/settings.h"

namespace tonarix {

/// Keys are numbered from 0, the c an octave below the lowest range, to this g.
inline constexpr int kLastKey = 79;

/// Keys from `lowest` to `highest`, both counted in.
struct KeyRange {
  int lowest = 12;
  int highest = 36;
  friend constexpr bool operator==(const KeyRange&, const KeyRange&) = default;
};

/// The key that sounds a MIDI note, and the note that a key sounds. `tasteBasis` is the lowest note
/// of the chosen range, an octave of keys below it.
constexpr int key_of(int note, std::int16_t tasteBasis) {
  return note - tasteBasis + 12;
}
constexpr int note_of(int key, std::int16_t tasteBasis) {
  return tasteBasis + key - 12;
}

/// The keys that a task needs: the chosen range as it lies in the key of the task, where the key
/// changes as it lies in any, so that the picture stays; and on to the next white key at either
/// end, as a black one stands on two. At most from 0 to `kLastKey`.
KeyRange key_range(const Settings& settings, const Key& key, const TaskRow& row);

}  // namespace tonarix
