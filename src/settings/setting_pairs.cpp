#include "settings/setting_pairs.h"

namespace tonarix {

std::string setting_value(const std::vector<std::string>& pairs, std::string_view label) {
  for (std::size_t i = 1; i + 1 < pairs.size(); i += 2) {
    if (pairs[i] == label) return pairs[i + 1];
  }
  return {};
}

std::string joined_values(const std::vector<std::string>& pairs,
                          const std::vector<std::string>& labels) {
  std::string line;
  for (const std::string& label : labels) {
    const std::string value = setting_value(pairs, label);
    if (value.empty()) continue;
    if (!line.empty()) line += " · ";
    line += value;
  }
  return line;
}

}  // namespace tonarix
