#include "protocol/kept_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>

namespace tonarix {

namespace {

constexpr std::string_view kNames = "kept-";
constexpr std::string_view kSetAside = "damaged-";
/// What a file begins with that is needed no longer and could not be removed.
constexpr std::string_view kUsedUp = "<used/>\n";

/// When it was written last, in nanoseconds.
std::int64_t written_at(const Descriptor& file) {
  struct stat facts {};
  ::fstat(file.number(), &facts);
  return std::int64_t{facts.st_mtim.tv_sec} * 1'000'000'000 + facts.st_mtim.tv_nsec;
}

/// True where opening fails for what the file is, and not because something is short at the moment.
bool never_opens(int error) {
  return error == EACCES || error == EPERM || error == ELOOP || error == EISDIR || error == ENXIO;
}

/// Removes a file; where the folder lets none go, a mark in it does, so that it does not come up
/// again.
void clear(const std::filesystem::path& path, const Descriptor& file) {
  if (::unlink(path.c_str()) == 0 || errno == ENOENT) return;
  [[maybe_unused]] const ssize_t marked =
      ::pwrite(file.number(), kUsedUp.data(), kUsedUp.size(), 0);
}

}  // namespace

bool KeptFiles::keep(const KeptExercise& exercise, const std::string& name) {
  FileInMaking file(folder_);
  const KeptText text = kept_text(exercise);
  if (!file.open() || !file.write(text.head) || !file.write(text.body) || !file.write(text.tail) ||
      !file.sync()) {
    return false;
  }
  const bool first = name.empty() && own_.empty();
  if (first) {
    const auto place =
        file.place_beside(folder_ / (std::string(kNames) + std::to_string(::getpid()) + ".xml"));
    if (!place) return false;
    own_ = place->filename();
  } else if (!file.replace(folder_ / (name.empty() ? own_ : name))) {
    return false;
  }
  held_[name.empty() ? own_ : name] = file.release();
  return true;
}

void KeptFiles::use_up(const std::string& name) {
  const std::string used = name.empty() ? std::exchange(own_, {}) : name;
  if (used.empty()) return;
  clear(folder_ / used, held_[used]);
  held_.erase(used);
}

void KeptFiles::leave_behind() {
  held_.erase(std::exchange(own_, {}));
}

std::optional<KeptExercise> KeptFiles::read(const std::filesystem::path& path,
                                            const Descriptor& file) {
  const auto content = content_of(file);
  if (content && (content->empty() || content->starts_with(kUsedUp))) {
    if (content->empty()) damaged_.emplace_back();
    clear(path, file);
    return {};
  }
  std::optional<KeptExercise> exercise = read_kept(content.value_or(""));
  if (!exercise) set_aside(path);
  return exercise;
}

void KeptFiles::set_aside(const std::filesystem::path& path) {
  const std::string name = std::string(kSetAside) + path.filename().string();
  damaged_.push_back(move_beside(path, folder_ / name).value_or(path));
}

std::vector<KeptExercises::Left> KeptFiles::left_behind() {
  // First all names: what is set aside must not change the folder that is being read.
  std::vector<std::filesystem::path> paths;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder_, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename();
    if (name.starts_with(kNames) && !held_.contains(name)) paths.push_back(entry->path());
  }
  std::vector<std::pair<std::int64_t, Left>> found;
  for (const std::filesystem::path& path : paths) {
    std::optional<Descriptor> file = lock_file(path);
    if (!file && never_opens(errno)) set_aside(path);
    if (!file) continue;
    std::optional<KeptExercise> exercise = read(path, *file);
    if (!exercise) continue;
    const std::string name = path.filename();
    found.emplace_back(written_at(*file), Left{name, std::move(*exercise)});
    held_[name] = std::move(*file);
  }
  std::ranges::stable_sort(found, std::greater(), [](const auto& each) { return each.first; });
  std::vector<Left> left;
  for (auto& [time, each] : found) left.push_back(std::move(each));
  return left;
}

}  // namespace tonarix
