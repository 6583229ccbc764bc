#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

namespace tonarix {

/// Tells one file from another that has taken its name.
struct FileIdentity {
  dev_t device = 0;
  ino_t number = 0;
  friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// The file that the name leads to; all 0 where it leads to none.
FileIdentity identity_of(const std::filesystem::path& file);

/// Whoever has a database open, or opens it, shares the lock of its name, "host.sqlite-lock"; who
/// moves it has the lock alone. Else a program that has just opened the old file would take the
/// journal of a new one for its own. Never waits.
class NameLock {
 public:
  enum class Kind : std::uint8_t { shared, alone };

  NameLock() = default;
  NameLock(const std::filesystem::path& database, Kind kind);
  NameLock(NameLock&& other) noexcept
      : number_(std::exchange(other.number_, -1)), error_(other.error_) {}
  NameLock& operator=(NameLock&& other) noexcept {
    std::swap(number_, other.number_);
    error_ = other.error_;
    return *this;
  }
  ~NameLock();

  /// Why it is not held: "try again" while others hold it, else what the file system says, where
  /// it knows no locks or lets no file be made.
  std::error_code error() const { return error_; }
  bool others_hold_it() const { return error_ == std::errc::resource_unavailable_try_again; }

 private:
  int number_ = -1;  ///< of the open file
  std::error_code error_;
};

struct SetAside {
  std::filesystem::path place;  ///< where the file lies now; empty where it was not moved
  std::error_code error;        ///< why it could not be
};

/// Moves a damaged SQLite database, and first its journal or log, into a new folder beside it:
/// "host.sqlite.damaged-260101120000", with a number behind it where that stands already. Of
/// several programs one moves it; for who comes later the file is not `found` any more but a new
/// one, and stays, which is no error.
SetAside set_aside(const std::filesystem::path& file, const FileIdentity& found,
                   const std::string& stamp);

}  // namespace tonarix
