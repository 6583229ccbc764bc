#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace tonarix {

/// The file of the folder that is this protocol already, or the same one further on: under its name
/// or with a number behind it, well-formed, of the same exercise, and with the same lessons first.
/// So a program that died between writing a protocol and noting that leaves no second one.
std::optional<std::filesystem::path> written_in(const std::filesystem::path& folder,
                                                const std::filesystem::path& file,
                                                std::string_view document);

}  // namespace tonarix
