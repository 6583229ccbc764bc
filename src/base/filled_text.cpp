#include "base/filled_text.h"

#include <cstddef>

namespace tonarix {

std::string filled(const std::string& text, std::initializer_list<std::string> values) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t place = text[at] == '%' && at + 1 < text.size()
                                  ? static_cast<std::size_t>(text[at + 1] - '1')
                                  : values.size();
    if (place < values.size()) {
      result += values.begin()[place];
      ++at;
    } else {
      result += text[at];
    }
  }
  return result;
}

}  // namespace tonarix
