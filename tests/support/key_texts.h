#pragma once

#include <map>
#include <string>

#include "base/texts.h"

namespace tonarix {

/// Texts that show their key, "[629]", unless a text of their own is given to them.
class KeyTexts final : public Texts {
 public:
  std::string Wort(TextKey nr) const override {
    const auto found = given.find(nr.number);
    return found == given.end() ? shown(nr) : found->second;
  }

  /// "[629]"
  static std::string shown(TextKey nr) { return "[" + std::to_string(nr.number) + "]"; }

  std::map<int, std::string> given;  ///< by key
};

}  // namespace tonarix
