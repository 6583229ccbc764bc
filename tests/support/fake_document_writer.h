#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "protocol/document_writer.h"

namespace tonarix {

/// Keeps what is written; refuses every file in the folders named as broken.
class FakeDocumentWriter final : public DocumentWriter {
 public:
  struct Written {
    std::filesystem::path path;
    std::string content;
  };

  WriteResult write(const std::filesystem::path& path, std::string_view content) override {
    const auto broken = std::find(broken_folders.begin(), broken_folders.end(), path.parent_path());
    if (broken != broken_folders.end()) return {false, "No space left on device"};
    written.push_back({path, std::string(content)});
    return {true, ""};
  }

  std::vector<std::filesystem::path> broken_folders;
  std::vector<Written> written;
};

}  // namespace tonarix
