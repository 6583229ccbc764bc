#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tonarix {

/// An open file of the system, closed at the end of its life.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor();

  explicit operator bool() const { return number_ >= 0; }
  int number() const { return number_; }

 private:
  int number_ = -1;
};

/// A file that nobody meets before it is whole: it is written under a name of its own, for its
/// owner alone, and gets its real name last. As long as it is open it is locked, so that other
/// programs can tell it from what a killed one left behind. What fails leaves its reason in
/// `errno`; a file that gets no name is taken away again.
class FileInMaking {
 public:
  /// False in `open` where the folder takes no file.
  explicit FileInMaking(const std::filesystem::path& folder);
  ~FileInMaking();
  FileInMaking(const FileInMaking&) = delete;
  FileInMaking& operator=(const FileInMaking&) = delete;

  bool open() const { return static_cast<bool>(file_); }
  bool write(std::string_view content);
  /// What is written outlives the machine's failure.
  bool sync();
  /// The same as `move_beside` for this file.
  std::optional<std::filesystem::path> place_beside(const std::filesystem::path& path);
  /// Takes the place of an own older file.
  bool replace(const std::filesystem::path& path);
  /// Hands over the open, locked file.
  Descriptor release() { return std::move(file_); }

 private:
  Descriptor file_;
  std::filesystem::path name_;  ///< the own name, empty once it has the real one
};

/// Gives a file the name, or the next free one ("a.xml", "a-2.xml", "a-3.xml"), and never replaces
/// one, however many programs want the name at once. The path that it got, which outlives the
/// machine's failure.
std::optional<std::filesystem::path> move_beside(const std::filesystem::path& file,
                                                 std::filesystem::path path);
/// The file, locked for this process; nothing when there is none, or another program holds it, or
/// it can't be opened, as `errno` tells.
std::optional<Descriptor> lock_file(const std::filesystem::path& path);
/// All that is in the file; nothing when it can't be read.
std::optional<std::string> content_of(const Descriptor& file);
/// The same of a plain file that nobody writes any more; nothing for whatever else bears the name.
std::optional<std::string> content_of(const std::filesystem::path& path);
/// Takes away what killed programs left half written in the folder.
void clear_leftovers(const std::filesystem::path& folder);

}  // namespace tonarix
