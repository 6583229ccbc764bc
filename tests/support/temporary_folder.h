#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tonarix {

/// A folder of its own for one test, gone with all its files at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vemo06_test.XXXXXX").string();
    path = mkdtemp(name.data());
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  void write(const std::string& file, const std::string& content) const {
    std::filesystem::create_directories((path / file).parent_path());
    std::ofstream(path / file, std::ios::binary) << content;
  }
  /// The whole file; empty when there is none.
  std::string content(const std::string& file) const {
    std::ifstream stream(path / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::filesystem::path path;
};

}  // namespace tonarix
