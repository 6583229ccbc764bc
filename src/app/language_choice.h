#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tonarix {

/// The catalogues as the start finds them.
struct FoundCatalogues {
  std::string folder;
  std::vector<std::string> languages;  ///< names of those that are whole
  std::vector<std::string> damaged;    ///< files that are not
};

/// The language to begin with, and what the user must know of the catalogues.
struct LanguageChoice {
  std::string language;  ///< empty when a name was typed that never was one
  std::string trouble;   ///< in English, as there may be no language to say it in; else empty
};

/// The language asked for on the command line, else German, else one that is there.
LanguageChoice choose_language(const std::optional<std::string>& typed,
                               const FoundCatalogues& found);

}  // namespace tonarix
