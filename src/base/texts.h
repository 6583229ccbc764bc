#pragma once

#include <string>

#include "base/text_key.h"

namespace tonarix {

/// The texts of the language in force. A text that is missing reads "VOID".
class Texts {
 public:
  virtual ~Texts() = default;
  virtual std::string Wort(TextKey nr) const = 0;
};

}  // namespace tonarix
