#include "engine/answer_words.h"

#include "base/filled_text.h"
#include "base/module_texts.h"

namespace tonarix {

std::string tries_left_words(int tries, const Texts& texts) {
  if (tries == 1) return texts.Wort(text::one_try_left);
  return filled(texts.Wort(text::tries_left), {std::to_string(tries)});
}

std::string show_wrong_try(Control& field, const std::string& number, const AnswerBook& book,
                           int place, const Texts& texts) {
  const bool black_on_red = book.wrong_tries(place) % 2 == 1;
  field.back = black_on_red ? signal::wrong : signal::black;
  field.fore = black_on_red ? signal::black : signal::wrong;
  field.text = texts.Wort(232_text);
  std::string still = tries_left_words(book.tries_left(place), texts);
  field.accessible_name = number + ": " + texts.Wort(text::spoken_wrong) + ", " + still;
  return still;
}

}  // namespace tonarix
