#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/texts.h"

namespace tonarix {

/// Accuracy of a tone that is formed, by `genau`: right is what lies less than so many bend steps
/// from the target. The last admits the target alone.
inline constexpr std::array<std::int16_t, 5> genauGrenze{9, 7, 5, 3, 1};

/// Cents of a bend step at a receiver's default range of two semitones up and down.
inline constexpr double kCentsOfStep = 3.125;
constexpr double cents(int steps) {
  return steps * kCentsOfStep;
}
/// The cents of so many steps, rounded half up to a tenth, with the language's decimal sign:
/// "12,5", "-25", "6,3".
std::string cents_text(int steps, const Texts& texts);
/// "richtig: bis 2 Schritte (6,3 Cent)": how far from the target is still right, by `genau` 0 to 4.
std::string accuracy_words(std::int16_t genau, const Texts& texts);

}  // namespace tonarix
