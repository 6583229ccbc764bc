#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/language.h"

namespace tonarix {

/// Texts that show their key: "[629s]".
struct KeyLanguage final : LanguageObject {
  std::string Wort(const std::string& key) override { return "[" + key + "]"; }
};
struct TwoLanguages final : LanguageList {
  std::vector<LanguageRow> languages() override {
    return {{"English", "english"}, {"Deutsch", "deutsch"}};
  }
};

/// Two languages of such texts.
inline LanguageLibraries key_languages() {
  return {[] { return std::make_unique<TwoLanguages>(); },
          [](const std::string&) { return std::make_unique<KeyLanguage>(); }};
}

}  // namespace tonarix
