#pragma once

#include <compare>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "base/runtime_error.h"
#include "host/local/damaged_file.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tonarix {

/// What a record is found by.
struct RecordName {
  std::string user, module, key;
  friend auto operator<=>(const RecordName&, const RecordName&) = default;
};
using RecordTexts = std::map<RecordName, std::string>;
/// What is known of records; nothing where there was none.
using KnownTexts = std::map<RecordName, std::optional<std::string>>;

/// One connection to the SQLite file of the records, its owner's alone. It keeps a write-ahead log:
/// a store is one synchronisation, and readers never wait for writers. On a network file system,
/// where that log is not safe, and where the log can't be had, it keeps the plain journal.
class RecordFile {
 public:
  enum class State : std::uint8_t {
    writable,
    readable,  ///< the file or its folder is closed to writing, but what it holds can be read
    in_use,    ///< another program holds it just now
    damaged,
    shut,  ///< it can't be opened
  };

  /// Opens the file, or makes it. No call waits longer than `patience_ms` for another program.
  RecordFile(std::filesystem::path file, int patience_ms);

  State state() const { return state_; }
  /// Why it is not writable, in the words of the library and as an error of the system.
  const std::string& reason() const { return reason_; }
  std::error_code error() const { return error_; }
  /// The file that was opened.
  const FileIdentity& identity() const { return identity_; }
  /// True when its name leads to another file now, or to none.
  bool moved() const { return identity_of(file_) != identity_; }

  /// Replaces all these records in one transaction that is on the disk when the call returns.
  /// RuntimeError 440 when they can't be kept, HostBusy while another program writes; then the old
  /// ones stand, all of them.
  void write(const RecordTexts& records) { write(records, {}); }
  /// The same where the file still holds what is `known` of records, or what they shall be. False,
  /// with nothing written, where another program has changed one.
  bool write(const RecordTexts& records, const KnownTexts& known);
  bool holds(const KnownTexts& known, const RecordTexts& records) const;
  /// The record, or nothing when there is none. RuntimeError 440 or HostBusy when it can't be read.
  std::optional<std::string> read(const RecordName& name) const;

 private:
  struct Close {
    void operator()(sqlite3* database) const;
    void operator()(sqlite3_stmt* statement) const;
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Close>;

  // SQLite result codes; 0 is well.
  int connect(const std::string& name, int flags);
  void open();
  int prepare_file();
  int open_for_reading();
  int check_damage();
  int use_write_ahead_log();
  int use_plain_journal();
  int run(const char* sql) const;
  std::string answer(const char* sql, int& code) const;
  Statement prepare(const char* sql, const RecordName& name) const;
  void take_reason(int code);
  /// Throws unless the code is the wanted one.
  void expect(int code, int wanted) const;

  std::filesystem::path file_;
  int patience_ms_;
  NameLock lock_;  ///< as long as the database is open
  std::unique_ptr<sqlite3, Close> database_;
  State state_ = State::shut;
  std::string reason_;
  std::error_code error_;
  FileIdentity identity_;
};

}  // namespace tonarix
