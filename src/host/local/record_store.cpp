#include "host/local/record_store.h"

#include <utility>

#include "base/private_file.h"
#include "host/host.h"

namespace tonarix {

RecordStore::RecordStore(std::filesystem::path file, const std::string& file_stamp, int patience_ms)
    : path_(std::move(file)), patience_ms_(patience_ms) {
  open();
  reason_ = file_->reason();
  error_ = file_->error();
  if (file_->state() == State::damaged) {
    file_.reset();
    const bool renewed = rename_damaged(file_stamp);
    if (renewed) place_ = Place::file_renewed;
    open();
  }
  if (file_->state() == State::writable) return;
  place_ = file_->state() == State::in_use ? Place::waiting : Place::memory;
  reason_ = file_->reason();
  error_ = file_->error();
}

RecordStore::~RecordStore() {
  if (!memory_.empty()) open_again();
}

void RecordStore::open() {
  make_private_folder(path_.parent_path());
  file_.emplace(path_, patience_ms_);
}

void RecordStore::open_again() {
  if (file_->state() != State::writable || file_->moved()) {
    file_.reset();
    open();
  }
  if (memory_.empty() || file_->state() != State::writable) return;
  try {
    file_->write(memory_);
    memory_.clear();
  } catch (const RuntimeError&) {
    return;  // it stays in memory until the next need
  }
}

bool RecordStore::rename_damaged(const std::string& stamp) {
  const std::string damaged = path_.string() + ".damaged-" + stamp;
  put_aside_ = damaged;
  for (int copy = 2; std::filesystem::exists(put_aside_); ++copy) {
    put_aside_ = damaged + "-" + std::to_string(copy);
  }
  std::error_code error;
  std::filesystem::rename(path_, put_aside_, error);
  if (error) {
    put_aside_.clear();
    return false;
  }
  // The journal belongs to the old file; beside a new one it would be taken for the new one's.
  for (const char* end : {"-journal", "-wal", "-shm"}) {
    std::filesystem::rename(path_.string() + end, put_aside_.string() + end, error);
  }
  return true;
}

void RecordStore::write(const RecordTexts& records) {
  open_again();
  RecordTexts held = records;
  held.insert(memory_.begin(), memory_.end());
  if (file_->state() == State::writable) {
    file_->write(held);
    memory_.clear();
    return;
  }
  if (place_ != Place::memory || file_->state() == State::in_use) refuse();
  memory_ = std::move(held);
}

std::optional<std::string> RecordStore::read(const RecordName& name) {
  open_again();
  const auto held = memory_.find(name);
  if (held != memory_.end()) return held->second;
  const bool readable = file_->state() == State::writable || file_->state() == State::readable;
  if (readable) return file_->read(name);
  if (place_ != Place::memory || file_->state() == State::in_use) refuse();
  return {};
}

void RecordStore::refuse() const {
  if (file_->state() == State::in_use) throw HostBusy(file_->reason(), "RecordStore");
  throw RuntimeError(RuntimeError::kHostFailure, file_->reason(), "RecordStore");
}

}  // namespace tonarix
