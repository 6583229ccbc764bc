#pragma once

#include <cstdint>

#include "exercises/play/spellings.h"
#include "music/key.h"
#include "music/tone.h"
#include "settings/settings.h"

namespace tonarix {

/// How a key that was pressed compares with the tone asked.
enum class KeyVerdict : std::uint8_t {
  right,         ///< key and spelling
  tone_right,    ///< "TrOf": the right tone in the right direction, octaves off
  octave_right,  ///< "TfOr": the right key under another name
  wrong,
};

/// `before` is the tone that stands before the asked one in the row: a tone octaves off still
/// counts as nearly right when the melody goes the right way.
KeyVerdict judge_key(const Field& played, Tone asked, Tone before, std::int16_t tasteBasis);

/// The interval from `before` that was played, as the row's own intervals are told: signed, by
/// degree or from tone to tone. 0 where no interval that is asked leads there.
std::int16_t played_interval(Tone played, Tone before, const Settings& settings, const Key& key);

}  // namespace tonarix
