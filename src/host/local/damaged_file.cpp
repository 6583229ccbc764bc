#include "host/local/damaged_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

#include "base/private_file.h"
#include "base/system_failure.h"

namespace tonarix {

namespace {

/// The database goes last: as long as it stands no other can be made under its name.
constexpr std::array<const char*, 4> kParts{"-journal", "-wal", "-shm", ""};

/// A folder that nobody has made before; empty, with the reason in `errno`, where there can be
/// none.
std::filesystem::path new_folder(const std::string& name) {
  std::string folder = name;
  for (int copy = 2; ::mkdir(folder.c_str(), S_IRWXU) != 0; ++copy) {
    if (errno != EEXIST) return {};
    folder = name + "-" + std::to_string(copy);
  }
  return folder;
}

/// All parts or none.
std::error_code move_parts(const std::string& from, const std::string& to) {
  for (std::size_t part = 0; part < kParts.size(); ++part) {
    if (std::rename((from + kParts[part]).c_str(), (to + kParts[part]).c_str()) == 0) continue;
    if (errno == ENOENT) continue;
    const std::error_code error = last_system_error();
    while (part-- > 0) std::rename((to + kParts[part]).c_str(), (from + kParts[part]).c_str());
    return error;
  }
  return {};
}

}  // namespace

FileIdentity identity_of(const std::filesystem::path& file) {
  struct stat facts {};
  if (::stat(file.c_str(), &facts) != 0) return {};
  return {facts.st_dev, facts.st_ino};
}

NameLock::NameLock(const std::filesystem::path& database, Kind kind) {
  const std::filesystem::path file = database.string() + "-lock";
  make_private_file(file);
  errno = 0;
  // Made, if it must be, so that the error of a closed folder is its own.
  number_ = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
  const int wanted = kind == Kind::shared ? LOCK_SH : LOCK_EX;
  if (number_ < 0 || ::flock(number_, wanted | LOCK_NB) != 0) error_ = last_system_error();
}

NameLock::~NameLock() {
  if (number_ >= 0) ::close(number_);
}

SetAside set_aside(const std::filesystem::path& file, const FileIdentity& found,
                   const std::string& stamp) {
  const NameLock lock(file, NameLock::Kind::alone);
  if (lock.error()) return {{}, lock.error()};
  if (identity_of(file) != found) return {};
  errno = 0;
  const std::filesystem::path folder = new_folder(file.string() + ".damaged-" + stamp);
  if (folder.empty()) return {{}, last_system_error()};
  const std::filesystem::path place = folder / file.filename();
  const std::error_code error = move_parts(file, place);
  if (!error) return {place, {}};
  ::rmdir(folder.c_str());
  return {{}, error};
}

}  // namespace tonarix
