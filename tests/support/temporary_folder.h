#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tonarix {

/// A folder of its own for one test, gone with all its files at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() = default;
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
  /// The whole file, here or by its full path; empty when there is none.
  std::string content(const std::filesystem::path& file) const {
    std::ifstream stream(path / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  const std::filesystem::path path = [] {
    std::string name = std::filesystem::temp_directory_path() / "tonarix-test-XXXXXX";
    return std::filesystem::path(mkdtemp(name.data()));
  }();
};

}  // namespace tonarix
