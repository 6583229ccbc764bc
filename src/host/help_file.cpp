#include "host/help_file.h"

#include <algorithm>
#include <fstream>

#include "base/rtf.h"
#include "base/system_failure.h"

namespace tonarix {

namespace {

/// A suffix becomes part of a path, so it is held to a plain word.
bool is_plain_word(const std::string& suffix) {
  return !suffix.empty() && suffix.size() <= 32 &&
         std::all_of(suffix.begin(), suffix.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

/// The file's content, at most a little more than is read of any; or why there is none.
std::optional<std::string> content_of(const std::filesystem::path& file, std::string& why) {
  std::error_code error;
  const bool regular = std::filesystem::is_regular_file(file, error);
  if (!regular) {
    why = error ? error.message() : "not a file";
    return {};
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  std::string content(kLongestRtf + 1, '\0');
  stream.read(content.data(), static_cast<std::streamsize>(content.size()));
  if (!stream.is_open() || stream.bad()) {
    why = last_system_error().message();
    return {};
  }
  content.resize(static_cast<std::size_t>(stream.gcount()));
  return content;
}

}  // namespace

std::optional<RichText> read_help(const std::filesystem::path& data_folder, const Texts& texts,
                                  std::string_view stem, std::string* reason) {
  const std::string suffix = texts.Wort(705_text);
  const auto file =
      data_folder / "vemo06" / ("txt_" + suffix) / (std::string(stem) + suffix + ".rtf");
  std::string why = "the language's suffix is no plain word";
  std::optional<RichText> text;
  if (is_plain_word(suffix)) {
    if (const auto content = content_of(file, why)) {
      text = read_rtf(*content);
      why = "no Rich Text Format";
    }
  }
  if (!text && reason != nullptr) *reason = "No help text, " + file.string() + ": " + why;
  return text;
}

}  // namespace tonarix
