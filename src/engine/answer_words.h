#pragma once

#include <string>

#include "base/texts.h"

namespace tonarix {

/// "noch 2 Versuche"
std::string tries_left_words(int tries, const Texts& texts);

}  // namespace tonarix
