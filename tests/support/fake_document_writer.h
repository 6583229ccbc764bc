#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "protocol/document_writer.h"

namespace tonarix {

/// Keeps what is written; refuses every file in the folders named as broken.
struct FakeDocumentWriter final : DocumentWriter {
  struct Written {
    std::filesystem::path path;
    std::string content;
  };

  WriteResult write(const std::filesystem::path& path, std::string_view content) override {
    if (broken_folders.contains(path.parent_path())) {
      return {false, std::make_error_code(std::errc::no_space_on_device),
              "No space left on device"};
    }
    written.push_back({path, std::string(content)});
    return {true, {}, ""};
  }

  std::set<std::filesystem::path> broken_folders;
  std::vector<Written> written;
};

}  // namespace tonarix
