#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tonarix {

/// Value behind a label of the chosen settings (`EinstDatSave`); empty when the settings window did
/// not list it.
std::string setting_value(const std::vector<std::string>& pairs, std::string_view label);

/// The values behind these labels in one line, without the empty ones: "Dur · temperiert".
std::string joined_values(const std::vector<std::string>& pairs,
                          const std::vector<std::string>& labels);

}  // namespace tonarix
