#include "settings/accuracy.h"

#include <cmath>

#include "base/filled_text.h"
#include "base/module_texts.h"

namespace tonarix {

std::string cents_text(int steps, const Texts& texts) {
  const long tenths = std::lround(std::abs(cents(steps)) * 10.0);
  std::string text = (steps < 0 ? "-" : "") + std::to_string(tenths / 10);
  if (tenths % 10 != 0) text += texts.Wort(text::decimal_sign) + std::to_string(tenths % 10);
  return text;
}

std::string accuracy_words(std::int16_t genau, const Texts& texts) {
  const int farthest = genauGrenze.at(static_cast<std::size_t>(genau)) - 1;
  if (farthest == 0) return texts.Wort(text::right_exactly);
  return filled(texts.Wort(text::right_within),
                {std::to_string(farthest), cents_text(farthest, texts)});
}

}  // namespace tonarix
