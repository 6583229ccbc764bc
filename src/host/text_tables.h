#pragma once

#include <array>
#include <string>

#include "base/texts.h"

namespace tonarix {

/// The rows of texts that lists and titles are made of, loaded once per language. The names of
/// intervals and tones are loaded by the music room.
struct TextTables {
  std::array<std::string, 3> theory_kinds;  ///< 0 the heading, 1 ear training, 2 theory
  std::array<std::string, 5> levels;        ///< by `Uebungsmodus`
  std::array<std::string, 5> accuracies;    ///< by `genau`, lowest first
  std::array<std::string, 8> stufe_kurz;    ///< interval names without their quality

  void load(const Texts& texts);

  /// The kind of study, by `Theoriewahl`; RuntimeError 9 outside 0 to 1.
  const std::string& theory_kind(int Theoriewahl) const;
};

}  // namespace tonarix
