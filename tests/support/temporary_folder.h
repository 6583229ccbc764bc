#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tonarix {

/// A folder of its own for one test, gone with all its files at the end.
class TemporaryFolder {
  QTemporaryDir folder_;

 public:
  void write(const std::string& file, const std::string& content) const {
    std::filesystem::create_directories((path / file).parent_path());
    std::ofstream(path / file, std::ios::binary) << content;
  }
  /// The whole file, here or by its full path; empty when there is none.
  std::string content(const std::filesystem::path& file) const {
    std::ifstream stream(path / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  const std::filesystem::path path = folder_.path().toStdString();
};

}  // namespace tonarix
