#include "app/language_choice.h"

#include <algorithm>

namespace tonarix {

namespace {

constexpr const char* kUsual = "Deutsch";

std::string joined(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all += (all.empty() ? "" : ", ") + name;
  return all;
}

}  // namespace

LanguageChoice choose_language(const std::optional<std::string>& typed,
                               const FoundCatalogues& found) {
  const std::string wanted = typed.value_or(kUsual);
  const std::string damaged = joined(found.damaged);
  const std::string help = ". Install the program again.";
  if (found.languages.empty()) {
    const std::string what =
        damaged.empty() ? "There are no language catalogues in " + found.folder
                        : "The language catalogues in " + found.folder + " are damaged: " + damaged;
    return {wanted, what + help + " Until then every text will read VOID."};
  }
  if (std::ranges::find(found.languages, wanted) != found.languages.end()) return {wanted, {}};
  if (typed && damaged.empty()) {
    return {{}, "--language: \"" + wanted + "\" is not one of " + joined(found.languages) + "."};
  }
  const std::string& instead = found.languages.front();
  const std::string why = damaged.empty() ? "its catalogue is missing in " + found.folder
                                          : "damaged in " + found.folder + ": " + damaged;
  return {instead, "The language \"" + wanted + "\" cannot be used: " + why + help +
                       " Until then the program speaks " + instead + "."};
}

}  // namespace tonarix
