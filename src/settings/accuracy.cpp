#include "settings/accuracy.h"

#include <cmath>

#include "base/module_texts.h"

namespace tonarix {

std::string cents_text(int steps, const Texts& texts) {
  const long tenths = std::lround(std::abs(cents(steps)) * 10.0);
  std::string text = (steps < 0 ? "-" : "") + std::to_string(tenths / 10);
  if (tenths % 10 != 0) text += texts.Wort(text::decimal_sign) + std::to_string(tenths % 10);
  return text;
}

}  // namespace tonarix
