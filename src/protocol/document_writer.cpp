#include "protocol/document_writer.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace tonarix {

namespace {

std::string reason_of(int error) {
  return std::generic_category().message(error);
}

/// A new file beside the target that vanishes again unless it is renamed.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& target)
      : name_(target.string() + ".XXXXXX"), file_(mkstemp(name_.data())) {
    if (file_ < 0) fail();
  }
  ~TemporaryFile() {
    if (file_ >= 0) ::close(file_);
    if (exists_) ::unlink(name_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  void write(std::string_view content) {
    exists_ = true;
    while (!content.empty()) {
      const ssize_t count = ::write(file_, content.data(), content.size());
      if (count > 0) {
        content.remove_prefix(static_cast<std::size_t>(count));
      } else if (count == 0 || errno != EINTR) {
        fail();
      }
    }
    if (::fsync(file_) != 0) fail();
    const int closing = ::close(file_);
    file_ = -1;
    if (closing != 0) fail();
  }

  void rename_to(const std::filesystem::path& target) {
    if (std::rename(name_.c_str(), target.c_str()) != 0) fail();
    exists_ = false;
  }

 private:
  [[noreturn]] static void fail() { throw std::system_error(errno, std::generic_category()); }

  std::string name_;
  int file_;
  bool exists_ = false;
};

}  // namespace

WriteResult FileDocumentWriter::write(const std::filesystem::path& path, std::string_view content) {
  try {
    std::filesystem::create_directories(path.parent_path());
    TemporaryFile file(path);
    file.write(content);
    file.rename_to(path);
    return {true, ""};
  } catch (const std::system_error& error) {
    return {false, reason_of(error.code().value())};
  }
}

}  // namespace tonarix
