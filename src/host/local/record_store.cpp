#include "host/local/record_store.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>

#include "base/private_file.h"
#include "base/system_failure.h"

namespace tonarix {

namespace {

// The full synchronisation makes a record outlive the machine's failure, not only the program's.
constexpr const char* kSchema =
    "PRAGMA synchronous = EXTRA;"
    "CREATE TABLE IF NOT EXISTS records ("
    "  user TEXT NOT NULL, module TEXT NOT NULL, key TEXT NOT NULL, data TEXT NOT NULL,"
    "  PRIMARY KEY (user, module, key)) WITHOUT ROWID;";

bool is_damage(int code) {
  return (code & 0xFF) == SQLITE_NOTADB || (code & 0xFF) == SQLITE_CORRUPT;
}

bool is_in_use(int code) {
  return (code & 0xFF) == SQLITE_BUSY || (code & 0xFF) == SQLITE_LOCKED;
}

std::string column_text(sqlite3_stmt* statement, int column) {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
  const int size = sqlite3_column_bytes(statement, column);
  return bytes ? std::string(bytes, static_cast<std::size_t>(size)) : std::string();
}

int bind(sqlite3_stmt* statement, int number, const std::string& text) {
  return sqlite3_bind_text(statement, number, text.data(), static_cast<int>(text.size()),
                           SQLITE_TRANSIENT);
}

}  // namespace

void RecordStore::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

void RecordStore::Close::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

RecordStore::RecordStore(const std::filesystem::path& file, const std::string& file_stamp,
                         int patience_ms)
    : patience_ms_(patience_ms) {
  int code = open(file);
  if (is_damage(code)) {
    database_.reset();
    if (rename_damaged(file, file_stamp)) {
      place_ = Place::file_renewed;
      code = open(file);
    }
  }
  if (code == SQLITE_OK) return;
  place_ = is_in_use(code) ? Place::memory_in_use : Place::memory_unwritable;
  live_in_memory();
}

int RecordStore::open(const std::filesystem::path& file) {
  // Files beside it, such as the journal, take their rights from the database.
  make_private_file(file);
  sqlite3* opened = nullptr;
  int code =
      sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  database_.reset(opened);
  if (code == SQLITE_OK) {
    sqlite3_busy_timeout(opened, patience_ms_);
    code = check_damage();
  }
  if (code == SQLITE_OK) code = run(kSchema);
  if (code != SQLITE_OK) {
    const int full = (code & 0xFF) == SQLITE_FULL ? ENOSPC : 0;
    errno = full != 0 ? full : sqlite3_system_errno(opened);
    error_ = last_system_error();
  }
  // Beside the file a write needs room for its journal.
  const bool closed =
      ::faccessat(AT_FDCWD, file.parent_path().c_str(), W_OK | X_OK, AT_EACCESS) != 0;
  if (code == SQLITE_OK && (closed || sqlite3_db_readonly(opened, "main") == 1)) {
    reason_ = sqlite3_errstr(SQLITE_READONLY);
    error_ = {closed ? errno : EACCES, std::generic_category()};
    return SQLITE_READONLY;
  }
  if (code != SQLITE_OK) reason_ = sqlite3_errmsg(opened);
  return code;
}

int RecordStore::check_damage() {
  sqlite3_stmt* prepared = nullptr;
  const int code =
      sqlite3_prepare_v2(database_.get(), "PRAGMA quick_check(1)", -1, &prepared, nullptr);
  const Statement check(prepared);
  if (code != SQLITE_OK) return code;
  const int row = sqlite3_step(check.get());
  if (row != SQLITE_ROW) return row;
  return column_text(check.get(), 0) == "ok" ? SQLITE_OK : SQLITE_CORRUPT;
}

bool RecordStore::rename_damaged(const std::filesystem::path& file, const std::string& stamp) {
  const std::string damaged = file.string() + ".damaged-" + stamp;
  put_aside_ = damaged;
  for (int copy = 2; std::filesystem::exists(put_aside_); ++copy) {
    put_aside_ = damaged + "-" + std::to_string(copy);
  }
  std::error_code error;
  std::filesystem::rename(file, put_aside_, error);
  if (error) {
    put_aside_.clear();
    return false;
  }
  // The journal belongs to the old file; beside a new one it would be taken for the new one's.
  for (const char* end : {"-journal", "-wal"}) {
    std::filesystem::rename(file.string() + end, put_aside_.string() + end, error);
  }
  return true;
}

void RecordStore::live_in_memory() {
  const Database unwritable = std::move(database_);
  sqlite3* opened = nullptr;
  sqlite3_open(":memory:", &opened);
  database_.reset(opened);
  if (unwritable && place_ == Place::memory_unwritable) {
    // What can still be read serves for this run.
    sqlite3_backup* copy = sqlite3_backup_init(opened, "main", unwritable.get(), "main");
    if (copy) {
      sqlite3_backup_step(copy, -1);
      sqlite3_backup_finish(copy);
    }
  }
  run(kSchema);
}

int RecordStore::run(const char* sql) {
  return sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr);
}

RecordStore::Statement RecordStore::prepare(const char* sql, const std::string& user,
                                            const std::string& module, const std::string& key) {
  sqlite3_stmt* prepared = nullptr;
  int code = sqlite3_prepare_v2(database_.get(), sql, -1, &prepared, nullptr);
  Statement statement(prepared);
  if (code == SQLITE_OK) code = bind(prepared, 1, user);
  if (code == SQLITE_OK) code = bind(prepared, 2, module);
  if (code == SQLITE_OK) code = bind(prepared, 3, key);
  if (code != SQLITE_OK) throw failure();
  return statement;
}

void RecordStore::write(const std::string& user, const std::string& module, const std::string& key,
                        const std::string& data) {
  const Statement statement =
      prepare("INSERT OR REPLACE INTO records VALUES (?1, ?2, ?3, ?4)", user, module, key);
  if (bind(statement.get(), 4, data) != SQLITE_OK) throw failure();
  if (sqlite3_step(statement.get()) != SQLITE_DONE) throw failure();
}

std::optional<std::string> RecordStore::read(const std::string& user, const std::string& module,
                                             const std::string& key) {
  const Statement statement = prepare(
      "SELECT data FROM records WHERE user = ?1 AND module = ?2 AND key = ?3", user, module, key);
  const int code = sqlite3_step(statement.get());
  if (code == SQLITE_DONE) return {};
  if (code != SQLITE_ROW) throw failure();
  return column_text(statement.get(), 0);
}

RuntimeError RecordStore::failure() const {
  return {RuntimeError::kHostFailure, sqlite3_errmsg(database_.get()), "RecordStore"};
}

}  // namespace tonarix
