#pragma once

#include <array>
#include <string>

#include "base/texts.h"
#include "exercises/play/spellings.h"
#include "music/tones.h"

namespace tonarix {

/// The short names that are printed on piano keys, and fields and tones in words. Loaded once.
class KeyNames {
 public:
  KeyNames(const Texts& texts, const ToneNames& tone_names);

  /// What is printed on a field of the key that sounds `note`: the name of its spelling, on the
  /// lowest band of a c with its octave. Empty for a field that stands for nothing.
  std::string caption(const Field& field, int note) const;
  /// The tone's full name with its octave behind it, as on the keys: "Fis", "fis", "fis'".
  std::string written(Tone tone) const;
  /// A tone by name and octave: "fis, kleine Oktave".
  std::string spoken(Tone tone) const;
  /// The band in words: "unteres Feld".
  const std::string& band(int band) const;

 private:
  static constexpr int kNames = 13;  ///< by pitch class; 12 is the c of the great octave

  const ToneNames& tone_names_;
  std::array<std::array<std::string, kBands>, kNames> namenTab_;
  std::array<std::string, kHighestOctaveMark + 1> octaves_;
  std::array<std::string, kBands> bands_;
};

}  // namespace tonarix
