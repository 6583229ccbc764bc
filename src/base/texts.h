#pragma once

#include <string>
#include <string_view>

#include "base/text_key.h"

namespace tonarix {

/// The texts of the language in force. A text that is missing reads "VOID".
class Texts {
 public:
  virtual ~Texts() = default;
  virtual std::string Wort(TextKey nr) const = 0;
};

/// The text with `value` in the place of its "%1".
inline std::string filled_in(std::string text, std::string_view value) {
  const auto place = text.find("%1");
  return place == std::string::npos ? text : text.replace(place, 2, value);
}

}  // namespace tonarix
