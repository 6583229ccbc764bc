#include "engine/answer_words.h"

#include "base/filled_text.h"
#include "base/module_texts.h"

namespace tonarix {

std::string tries_left_words(int tries, const Texts& texts) {
  if (tries == 1) return texts.Wort(text::one_try_left);
  return filled(texts.Wort(text::tries_left), {std::to_string(tries)});
}

}  // namespace tonarix
