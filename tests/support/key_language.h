#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/language.h"

namespace tonarix {

/// Two languages whose texts show their key: "[629s]".
struct KeyLanguage final : LanguageObject, LanguageList {
  std::vector<LanguageRow> languages() override {
    return {{"English", "english"}, {"Deutsch", "deutsch"}};
  }
  std::string Wort(const std::string& key) override { return "[" + key + "]"; }
};

inline LanguageLibraries key_languages() {
  return {[] { return std::make_unique<KeyLanguage>(); },
          [](const std::string&) { return std::make_unique<KeyLanguage>(); }};
}

}  // namespace tonarix
