#pragma once

#include <filesystem>
#include <string_view>

namespace tonarix {

/// True when the folder holds this protocol already, or the same one further on: under its name or
/// with a number behind it, well-formed, of the same exercise, and with the same lessons first. So
/// a program that died between writing a protocol and noting that leaves no second one.
bool lies_in(const std::filesystem::path& folder, const std::filesystem::path& file,
             std::string_view document);

}  // namespace tonarix
