#pragma once

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "protocol/document_writer.h"

namespace tonarix {

/// Keeps what is written, a name that is taken with a number behind it; refuses every file in the
/// folders named as broken.
struct FakeDocumentWriter final : DocumentWriter {
  struct Written {
    std::filesystem::path path;
    std::string content;
  };

  WriteResult write(const std::filesystem::path& path, std::string_view content) override {
    if (broken_folders.contains(path.parent_path())) {
      return {false,
              std::make_error_code(std::errc::no_space_on_device),
              "No space left on device",
              {}};
    }
    std::filesystem::path free = path;
    for (int copy = 2; taken(free); ++copy) {
      free.replace_filename(path.stem().string() + "-" + std::to_string(copy) + ".xml");
    }
    written.push_back({free, std::string(content)});
    return {true, {}, "", free};
  }
  bool taken(const std::filesystem::path& path) const {
    return std::ranges::find(written, path, &Written::path) != written.end();
  }

  std::set<std::filesystem::path> broken_folders;
  std::vector<Written> written;
};

}  // namespace tonarix
