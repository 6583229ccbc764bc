#include "protocol/kept_files.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>

namespace tonarix {

namespace {

constexpr const char* kNames = "kept-";

std::string content_of(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

bool KeptFiles::keep(const KeptExercise& exercise, const std::string& name) {
  FileInMaking file(folder_);
  const KeptText text = kept_text(exercise);
  if (!file.open() || !file.write(text.head) || !file.write(text.body) || !file.write(text.tail)) {
    return false;
  }
  const bool first = name.empty() && own_.empty();
  if (first) {
    const auto place = file.place_beside(folder_ / (kNames + std::to_string(::getpid()) + ".xml"));
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
  ::unlink((folder_ / used).c_str());
  held_.erase(used);
}

void KeptFiles::leave_behind() {
  held_.erase(std::exchange(own_, {}));
}

std::vector<KeptExercises::Left> KeptFiles::left_behind() {
  std::vector<std::pair<std::filesystem::file_time_type, Left>> found;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder_, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename();
    if (!name.starts_with(kNames) || held_.contains(name)) continue;
    std::optional<Descriptor> file = lock_file(entry->path());
    if (!file) continue;
    std::optional<KeptExercise> exercise = read_kept(content_of(entry->path()));
    if (!exercise) continue;
    std::error_code no_time;
    const auto time = std::filesystem::last_write_time(entry->path(), no_time);
    held_[name] = std::move(*file);
    found.emplace_back(time, Left{name, std::move(*exercise)});
  }
  std::ranges::stable_sort(found, std::greater(), [](const auto& each) { return each.first; });
  std::vector<Left> left;
  for (auto& [time, each] : found) left.push_back(std::move(each));
  return left;
}

}  // namespace tonarix
