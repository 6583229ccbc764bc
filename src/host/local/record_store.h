#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "base/runtime_error.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tonarix {

/// Texts by user, module and key in an SQLite file. Each write is one transaction that is on the
/// disk when the call returns. Where the file can't serve, the store lives in memory.
class RecordStore {
 public:
  enum class Place {
    file,
    file_renewed,       ///< the file was damaged; it stands aside under another name
    memory_unwritable,  ///< the file or its folder can't be written
    memory_in_use,      ///< another program holds the file
  };

  /// `file_stamp` goes into the name of a damaged file that is put aside; `patience_ms` is how long
  /// a call waits for another program that writes.
  RecordStore(const std::filesystem::path& file, const std::string& file_stamp, int patience_ms);

  Place place() const { return place_; }
  /// The damaged file's new name, where there is one.
  const std::filesystem::path& put_aside() const { return put_aside_; }
  /// Why the file can't serve, in the words of the library.
  const std::string& reason() const { return reason_; }
  /// The same as an error of the system.
  std::error_code error() const { return error_; }

  /// Replaces the record. RuntimeError 440 when it can't be kept; then the old one stands.
  void write(const std::string& user, const std::string& module, const std::string& key,
             const std::string& data);
  /// The record, or nothing when there is none. RuntimeError 440 when it can't be read.
  std::optional<std::string> read(const std::string& user, const std::string& module,
                                  const std::string& key);

 private:
  struct Close {
    void operator()(sqlite3* database) const;
    void operator()(sqlite3_stmt* statement) const;
  };
  using Database = std::unique_ptr<sqlite3, Close>;
  using Statement = std::unique_ptr<sqlite3_stmt, Close>;

  /// An SQLite result code; 0 is well.
  int open(const std::filesystem::path& file);
  int check_damage();
  bool rename_damaged(const std::filesystem::path& file, const std::string& stamp);
  void live_in_memory();
  int run(const char* sql);
  Statement prepare(const char* sql, const std::string& user, const std::string& module,
                    const std::string& key);
  RuntimeError failure() const;

  int patience_ms_;
  Database database_;
  Place place_ = Place::file;
  std::filesystem::path put_aside_;
  std::string reason_;
  std::error_code error_;
};

}  // namespace tonarix
