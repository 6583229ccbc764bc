#include "protocol/file_in_making.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

namespace tonarix {

namespace {

constexpr const char* kOwnNames = ".tonarix-";

bool has_name(const Descriptor& file) {
  struct stat facts {};
  return ::fstat(file.number(), &facts) == 0 && facts.st_nlink > 0;
}

/// Moves a file unless the name is taken (EEXIST).
bool move_to_free_name(const char* from, const char* to) {
  if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  // A network file system may know no such move, but it knows second names.
  if (::link(from, to) != 0) return false;
  ::unlink(from);
  return true;
}

void sync_folder(const std::filesystem::path& folder) {
  const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) ::fsync(opened.number());
}

}  // namespace

Descriptor::~Descriptor() {
  if (number_ >= 0) ::close(number_);
}

FileInMaking::FileInMaking(const std::filesystem::path& folder) {
  do {
    std::string name = folder / (std::string(kOwnNames) + "XXXXXX");
    file_ = Descriptor(::mkostemp(name.data(), O_CLOEXEC));
    if (!file_) return;
    name_ = name;
    // Before the lock another program may have taken it for a leftover. Where the file system
    // knows no locks, nobody clears either.
    while (::flock(file_.number(), LOCK_EX) != 0 && errno == EINTR) {
    }
  } while (!has_name(file_));
}

FileInMaking::~FileInMaking() {
  if (!name_.empty()) ::unlink(name_.c_str());
}

// A full disk takes part of a text without a word and refuses the rest. Each piece goes to the disk
// by itself, so that both are seen.
bool FileInMaking::write(std::string_view content) {
  while (!content.empty()) {
    const ssize_t count = ::write(file_.number(), content.data(), content.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool FileInMaking::sync() {
  return ::fsync(file_.number()) == 0;
}

std::optional<std::filesystem::path> FileInMaking::place_beside(const std::filesystem::path& path) {
  std::filesystem::path place = path;
  for (int copy = 2; !move_to_free_name(name_.c_str(), place.c_str()); ++copy) {
    if (errno != EEXIST) return {};
    place.replace_filename(path.stem().string() + "-" + std::to_string(copy) +
                           path.extension().string());
  }
  name_.clear();
  sync_folder(path.parent_path());
  return place;
}

bool FileInMaking::replace(const std::filesystem::path& path) {
  if (::rename(name_.c_str(), path.c_str()) != 0) return false;
  name_.clear();
  return true;
}

std::optional<Descriptor> lock_file(const std::filesystem::path& path) {
  // No link is followed and no pipe waited for: in a shared folder anyone may have put one there.
  Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!file || ::flock(file.number(), LOCK_EX | LOCK_NB) != 0) return {};
  if (!has_name(file)) return {};
  return file;
}

void clear_leftovers(const std::filesystem::path& folder) {
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (!entry->path().filename().string().starts_with(kOwnNames)) continue;
    if (const auto held = lock_file(entry->path())) ::unlink(entry->path().c_str());
  }
}

}  // namespace tonarix
