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

/// Takes the name with an empty file of its own and puts the whole one over that. A kill in between
/// leaves the empty file: it stands in nobody's way, since what it was to hold is still kept and
/// goes to the next free name, and an empty kept file is cleared by the next start.
bool move_over_reservation(const char* from, const char* to) {
  const Descriptor reserved(::open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!reserved) return false;
  // Held, as an empty file that nobody holds may be cleared.
  ::flock(reserved.number(), LOCK_EX | LOCK_NB);
  if (::rename(from, to) == 0) return true;
  const int why = errno;
  ::unlink(to);
  errno = why;
  return false;
}

/// Moves a file unless the name is taken (EEXIST).
bool move_to_free_name(const char* from, const char* to) {
  if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  // A network file system may know no such move, but it knows second names; others know neither.
  if (::link(from, to) != 0) return errno != EEXIST && move_over_reservation(from, to);
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
  auto place = move_beside(name_, path);
  if (place) name_.clear();
  return place;
}

bool FileInMaking::replace(const std::filesystem::path& path) {
  if (::rename(name_.c_str(), path.c_str()) != 0) return false;
  name_.clear();
  return true;
}

std::optional<std::filesystem::path> move_beside(const std::filesystem::path& file,
                                                 std::filesystem::path path) {
  const std::string stem = path.stem();
  for (int copy = 2; !move_to_free_name(file.c_str(), path.c_str()); ++copy) {
    if (errno != EEXIST) return {};
    path.replace_filename(stem + "-" + std::to_string(copy) + path.extension().string());
  }
  sync_folder(path.parent_path());
  return path;
}

// No link is followed and no pipe waited for: in a shared folder anyone may have put one there.
std::optional<Descriptor> lock_file(const std::filesystem::path& path) {
  Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!file || ::flock(file.number(), LOCK_EX | LOCK_NB) != 0) return {};
  if (has_name(file)) return file;
  errno = ENOENT;
  return {};
}

std::optional<std::string> content_of(const Descriptor& file) {
  struct stat facts {};
  if (::fstat(file.number(), &facts) != 0 || !S_ISREG(facts.st_mode)) return {};
  std::string content(static_cast<std::size_t>(facts.st_size), '\0');
  for (std::size_t done = 0; done < content.size();) {
    const ssize_t count = ::pread(file.number(), content.data() + done, content.size() - done,
                                  static_cast<off_t>(done));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return {};
    done += static_cast<std::size_t>(count);
  }
  return content;
}

std::optional<std::string> content_of(const std::filesystem::path& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  return file ? content_of(file) : std::nullopt;
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
