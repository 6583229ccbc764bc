#pragma once

#include <string>

#include "base/controls.h"
#include "base/texts.h"
#include "engine/answer_book.h"

namespace tonarix {

/// "noch 2 Versuche"
std::string tries_left_words(int tries, const Texts& texts);

/// Shows in the field that the last try was wrong, black on red and red on black in turn; how many
/// tries are left, in words. `number` is what the field is called.
std::string show_wrong_try(Control& field, const std::string& number, const AnswerBook& book,
                           int place, const Texts& texts);

}  // namespace tonarix
