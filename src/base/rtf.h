#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "base/rich_text.h"

namespace tonarix {

/// The longest Rich Text Format source that is read, in bytes.
inline constexpr std::size_t kLongestRtf = std::size_t{1} << 20;

/// Reads a page in Rich Text Format: paragraphs, bold, italic, bulleted and numbered lists (both as
/// list items), characters in code page 1252, whatever the file names, or by Unicode number. A
/// paragraph of 14 points and more is a heading. What it doesn't know it passes over, as the format
/// asks; blank paragraphs are left out. Nothing when the source is no such page: too long, not
/// begun, cut off, followed by something, nested deeper than 100 groups, with control characters,
/// or without a word.
std::optional<RichText> read_rtf(std::string_view source);

}  // namespace tonarix
