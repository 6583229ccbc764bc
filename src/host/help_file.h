#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/rich_text.h"
#include "base/texts.h"

namespace tonarix {

/// Reads the help text of an exercise in the language in force: with the stem "tb06_bildenIv_" and
/// the language's suffix "deutsch", text 705, the file
/// "vemo06/txt_deutsch/tb06_bildenIv_deutsch.rtf" below the program's data folder. Nothing when
/// there is no language, or no such file that can be read and is Rich Text Format; `reason` then
/// says for the log which and why.
std::optional<RichText> read_help(const std::filesystem::path& data_folder, const Texts& texts,
                                  std::string_view stem, std::string* reason = nullptr);

}  // namespace tonarix
