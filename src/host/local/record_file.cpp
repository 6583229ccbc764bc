#include "host/local/record_file.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "base/private_file.h"
#include "base/system_failure.h"
#include "host/host.h"

namespace tonarix {

namespace {

// The extra synchronisation lets a record outlive the machine's failure under either journal.
constexpr const char* kSchema =
    "PRAGMA synchronous = EXTRA;"
    "CREATE TABLE IF NOT EXISTS records ("
    "  user TEXT NOT NULL, module TEXT NOT NULL, key TEXT NOT NULL, data TEXT NOT NULL,"
    "  PRIMARY KEY (user, module, key)) WITHOUT ROWID;";

/// File systems whose files other machines may hold too, by the number that the kernel gives them.
constexpr std::uint32_t kNetworkFileSystems[] = {
    0x6969,      // NFS
    0x517B,      // SMB
    0xFF534D42,  // CIFS
    0xFE534D42,  // SMB2
    0x65735546,  // FUSE, such as sshfs
    0x5346414F,  // AFS
    0x6B414653,  // AFS of the kernel
    0x01021997,  // 9P
    0x00C36400,  // Ceph
    0x73757245,  // Coda
    0x564C,      // NCP
    0x0BD00BD0,  // Lustre
    0x47504653,  // GPFS
    0x7461636F,  // OCFS2
    0x01161970,  // GFS2
    0x19830326,  // BeeGFS
    0x786F4256,  // shared folder of a virtual machine
};

/// An unknown file system counts as one: the plain journal is safe everywhere.
bool on_network(const std::filesystem::path& file) {
  struct statfs facts {};
  if (::statfs(file.c_str(), &facts) != 0) return true;
  return std::ranges::find(kNetworkFileSystems, static_cast<std::uint32_t>(facts.f_type)) !=
         std::end(kNetworkFileSystems);
}

bool is_damage(int code) {
  return (code & 0xFF) == SQLITE_NOTADB || (code & 0xFF) == SQLITE_CORRUPT;
}

bool is_in_use(int code) {
  const int kind = code & 0xFF;
  return kind == SQLITE_BUSY || kind == SQLITE_LOCKED || kind == SQLITE_PROTOCOL;
}

RecordFile::State state_after(int failure) {
  using enum RecordFile::State;
  return is_damage(failure) ? damaged : is_in_use(failure) ? in_use : shut;
}

/// The file's name for a connection that makes no file of its own beside it.
std::string untouched_name(const std::filesystem::path& file) {
  std::string name = "file:";
  for (const char letter : std::filesystem::absolute(file).string()) {
    if (letter == '%') {
      name += "%25";
    } else if (letter == '?') {
      name += "%3f";
    } else if (letter == '#') {
      name += "%23";
    } else {
      name += letter;
    }
  }
  return name + "?immutable=1";
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

void RecordFile::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

void RecordFile::Close::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

RecordFile::RecordFile(std::filesystem::path file, int patience_ms)
    : file_(std::move(file)), patience_ms_(patience_ms), lock_(file_, NameLock::Kind::shared) {
  if (lock_.others_hold_it()) {
    state_ = State::in_use;
    reason_ = sqlite3_errstr(SQLITE_BUSY);
    error_ = lock_.error();
    return;
  }
  open();
  if (state_ == State::writable || state_ == State::readable) return;
  if (database_) {
    // Closing leaves everything as it was found, the log too.
    sqlite3_db_config(database_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  }
  database_.reset();
  lock_ = {};
}

void RecordFile::open() {
  // Files beside it, such as the log, take their rights from the database.
  make_private_file(file_);
  int code = connect(file_.string(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  identity_ = identity_of(file_);
  // Beside the file a write needs room for its journal.
  const bool closed =
      ::faccessat(AT_FDCWD, file_.parent_path().c_str(), W_OK | X_OK, AT_EACCESS) != 0;
  const int folder_error = errno;
  if (code == SQLITE_OK && (closed || sqlite3_db_readonly(database_.get(), "main") == 1)) {
    reason_ = sqlite3_errstr(SQLITE_READONLY);
    error_ = {closed ? folder_error : EACCES, std::generic_category()};
    code = open_for_reading();
    state_ = code == SQLITE_OK ? State::readable : state_after(code);
    return;
  }
  if (code == SQLITE_OK) code = prepare_file();
  state_ = code == SQLITE_OK ? State::writable : state_after(code);
  if (code == SQLITE_OK) return;
  take_reason(code);
  // A file that can't be made in a closed folder is at last missed; that is not why.
  if (closed && error_ == std::errc::no_such_file_or_directory) {
    error_ = {folder_error, std::generic_category()};
  }
}

int RecordFile::connect(const std::string& name, int flags) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(name.c_str(), &opened, flags, nullptr);
  database_.reset(opened);
  if (code == SQLITE_OK) sqlite3_busy_timeout(opened, patience_ms_);
  return code;
}

int RecordFile::prepare_file() {
  const bool network = on_network(file_);
  int code = network ? use_plain_journal() : SQLITE_OK;
  // Before anything is changed: a damaged file is put aside as it was found.
  if (code == SQLITE_OK) code = check_damage();
  if (code == SQLITE_OK && !network) code = use_write_ahead_log();
  if (code != SQLITE_OK && !network && !is_damage(code) && !is_in_use(code)) {
    code = use_plain_journal();
    if (code == SQLITE_OK) code = check_damage();
  }
  return code == SQLITE_OK ? run(kSchema) : code;
}

int RecordFile::open_for_reading() {
  int code = check_damage();
  // With a log of its own the file asks for a place to write even when it is only read.
  const std::string log = file_.string() + "-wal";
  const bool refused = code != SQLITE_OK && !is_damage(code) && !is_in_use(code);
  if (refused && ::access(log.c_str(), F_OK) != 0) {
    code = connect(untouched_name(file_), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    if (code == SQLITE_OK) code = check_damage();
  }
  return code == SQLITE_OK ? run("SELECT 1 FROM records LIMIT 1") : code;
}

int RecordFile::check_damage() {
  int code = SQLITE_OK;
  const std::string found = answer("PRAGMA quick_check(1)", code);
  return code == SQLITE_OK && found != "ok" ? SQLITE_CORRUPT : code;
}

int RecordFile::use_write_ahead_log() {
  int code = SQLITE_OK;
  const std::string mode = answer("PRAGMA journal_mode = WAL", code);
  return code == SQLITE_OK && mode != "wal" ? SQLITE_CANTOPEN : code;
}

// The exclusive mode opens a file that has a write-ahead log without the memory that its users
// share, which is what may be missing.
int RecordFile::use_plain_journal() {
  int code = run("PRAGMA locking_mode = EXCLUSIVE");
  if (code == SQLITE_OK) answer("PRAGMA journal_mode = DELETE", code);
  const int released = run("PRAGMA locking_mode = NORMAL");
  return code == SQLITE_OK ? released : code;
}

int RecordFile::run(const char* sql) const {
  return sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr);
}

std::string RecordFile::answer(const char* sql, int& code) const {
  sqlite3_stmt* prepared = nullptr;
  code = sqlite3_prepare_v2(database_.get(), sql, -1, &prepared, nullptr);
  const Statement statement(prepared);
  if (code != SQLITE_OK) return {};
  code = sqlite3_step(statement.get());
  if (code != SQLITE_ROW) return {};
  code = SQLITE_OK;
  return column_text(statement.get(), 0);
}

RecordFile::Statement RecordFile::prepare(const char* sql, const RecordName& name) const {
  sqlite3_stmt* prepared = nullptr;
  expect(sqlite3_prepare_v2(database_.get(), sql, -1, &prepared, nullptr), SQLITE_OK);
  Statement statement(prepared);
  expect(bind(prepared, 1, name.user), SQLITE_OK);
  expect(bind(prepared, 2, name.module), SQLITE_OK);
  expect(bind(prepared, 3, name.key), SQLITE_OK);
  return statement;
}

bool RecordFile::holds(const KnownTexts& known, const RecordTexts& records) const {
  return std::ranges::all_of(known, [&](const auto& each) {
    const std::optional<std::string> now = read(each.first);
    return now == each.second ||
           (now && records.contains(each.first) && now == records.at(each.first));
  });
}

bool RecordFile::write(const RecordTexts& records, const KnownTexts& known) {
  expect(run("BEGIN IMMEDIATE"), SQLITE_OK);
  try {
    if (!holds(known, records)) {
      run("ROLLBACK");
      return false;
    }
    for (const auto& [name, data] : records) {
      const Statement statement =
          prepare("INSERT OR REPLACE INTO records VALUES (?1, ?2, ?3, ?4)", name);
      expect(bind(statement.get(), 4, data), SQLITE_OK);
      expect(sqlite3_step(statement.get()), SQLITE_DONE);
    }
    expect(run("COMMIT"), SQLITE_OK);
    return true;
  } catch (...) {
    run("ROLLBACK");  // a failure that has rolled back already makes this one an error of no weight
    throw;
  }
}

std::optional<std::string> RecordFile::read(const RecordName& name) const {
  const Statement statement =
      prepare("SELECT data FROM records WHERE user = ?1 AND module = ?2 AND key = ?3", name);
  const int code = sqlite3_step(statement.get());
  if (code == SQLITE_DONE) return {};
  expect(code, SQLITE_ROW);
  return column_text(statement.get(), 0);
}

void RecordFile::take_reason(int code) {
  const bool full = (code & 0xFF) == SQLITE_FULL;
  errno = full ? ENOSPC : sqlite3_system_errno(database_.get());
  error_ = last_system_error();
  const bool own = (sqlite3_errcode(database_.get()) & 0xFF) == (code & 0xFF);
  reason_ = own ? sqlite3_errmsg(database_.get()) : sqlite3_errstr(code);
}

void RecordFile::expect(int code, int wanted) const {
  if (code == wanted) return;
  const char* reason = sqlite3_errmsg(database_.get());
  if (is_in_use(code)) throw HostBusy(reason, "RecordFile");
  throw RuntimeError(RuntimeError::kHostFailure, reason, "RecordFile");
}

}  // namespace tonarix
