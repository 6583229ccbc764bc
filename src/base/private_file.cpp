#include "base/private_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/system_failure.h"

namespace tonarix {

namespace {

constexpr mode_t kOwnFolder = 0700;
constexpr mode_t kOwnFile = 0600;

}  // namespace

std::error_code make_private_folder(const std::filesystem::path& folder) {
  std::error_code error;
  // Without a stroke at its end, so that its own name is the last part.
  const std::filesystem::path own = folder.has_filename() ? folder : folder.parent_path();
  if (std::filesystem::is_directory(own, error)) return {};
  if (own.has_parent_path()) std::filesystem::create_directories(own.parent_path(), error);
  if (error) return error;
  if (::mkdir(own.c_str(), kOwnFolder) != 0) {
    const std::error_code refused = last_system_error();
    if (std::filesystem::is_directory(own, error)) return {};  // somebody else was quicker
    const bool taken = refused == std::errc::file_exists;
    return taken ? std::make_error_code(std::errc::not_a_directory) : refused;
  }
  return ::chmod(own.c_str(), kOwnFolder) == 0 ? std::error_code() : last_system_error();
}

// An existing file is never opened here: closing it would let go of the locks that this process may
// hold on it.
void make_private_file(const std::filesystem::path& file) {
  const int made = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kOwnFile);
  if (made >= 0) {
    ::fchmod(made, kOwnFile);
    ::close(made);
    return;
  }
  struct stat facts {};
  if (::stat(file.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) return;
  if ((facts.st_mode & ~kOwnFile & 07777) != 0) ::chmod(file.c_str(), facts.st_mode & kOwnFile);
}

}  // namespace tonarix
