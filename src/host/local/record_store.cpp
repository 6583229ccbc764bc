#include "host/local/record_store.h"

#include <algorithm>
#include <utility>

#include "base/private_file.h"
#include "host/host.h"

namespace tonarix {

namespace {

/// The file is not what it was: told once, and the next call finds it as it is now.
class Overtaken final : public RuntimeError {
 public:
  explicit Overtaken(const std::string& description)
      : RuntimeError(kHostFailure, description, "RecordStore") {}
};

}  // namespace

RecordStore::RecordStore(std::filesystem::path file, std::string file_stamp, int patience_ms,
                         Log log)
    : path_(std::move(file)),
      stamp_(std::move(file_stamp)),
      patience_ms_(patience_ms),
      log_(std::move(log)) {
  open();
  if (state_ == State::writable) {
    if (!put_aside_.empty()) place_ = Place::file_renewed;
  } else if (state_ == State::in_use) {
    place_ = Place::waiting;
  } else {
    place_ = Place::memory;
    if (state_ != State::readable && !without_file()) place_ = Place::closed;
  }
}

RecordStore::~RecordStore() {
  for (bool again = !memory_.empty(); again;) {
    again = false;
    try {
      look_again();
      flush();
    } catch (const Overtaken&) {
      again = true;  // told; the rest may go its way
    } catch (const std::exception& error) {
      reason_ = error.what();
    }
  }
  for (const Batch& lost : memory_) {
    for (const auto& [name, text] : lost.texts) {
      if (log_) log_("Lost with memory: " + name.key + " of " + name.module + ": " + reason_);
    }
  }
}

void RecordStore::open() {
  make_private_folder(path_.parent_path());
  file_.emplace(path_, patience_ms_);
  state_ = file_->state();
  reason_ = file_->reason();
  error_ = file_->error();
  if (state_ != State::damaged) return;
  const SetAside aside = set_aside(path_, file_->identity(), stamp_);
  if (aside.error) {
    error_ = aside.error;
    if (error_ == std::errc::resource_unavailable_try_again) state_ = State::in_use;
    return;
  }
  if (!aside.place.empty()) put_aside_ = aside.place;
  file_.emplace(path_, patience_ms_);
  state_ = file_->state();
  if (state_ == State::writable) return;  // why it was renewed stays to be told
  reason_ = file_->reason();
  error_ = file_->error();
}

void RecordStore::look_again() {
  if (state_ == State::writable && !file_->moved()) return;
  const std::filesystem::path before = put_aside_;
  file_.reset();
  open();
  if (put_aside_ != before) {
    tell("host.sqlite: " + reason_ + "; it stands aside: " + put_aside_.string());
  }
}

void RecordStore::flush() {
  if (state_ != State::writable && state_ != State::readable) return;
  for (auto batch = memory_.begin(); batch != memory_.end();) {
    bool own = file_->holds(batch->before, batch->texts);
    if (own && state_ == State::readable) {
      ++batch;
      continue;
    }
    own = own && file_->write(batch->texts, batch->before);
    const std::string key = batch->texts.begin()->first.key;
    batch = memory_.erase(batch);
    if (!own) tell("Another program has stored " + key + "; what memory held of it is given up");
  }
}

void RecordStore::hold(const RecordTexts& records) {
  Batch batch{records, {}};
  for (const auto& [name, text] : records) {
    if (held(name)) continue;
    batch.before[name] = state_ == State::readable ? file_->read(name) : std::nullopt;
  }
  std::erase_if(memory_, [&](const Batch& earlier) {
    const bool shared = std::ranges::any_of(
        records, [&](const auto& each) { return earlier.texts.contains(each.first); });
    if (!shared) return false;
    batch.texts.insert(earlier.texts.begin(), earlier.texts.end());
    batch.before.insert(earlier.before.begin(), earlier.before.end());
    return true;
  });
  memory_.push_back(std::move(batch));
}

const std::string* RecordStore::held(const RecordName& name) const {
  for (const Batch& batch : memory_) {
    const auto found = batch.texts.find(name);
    if (found != batch.texts.end()) return &found->second;
  }
  return nullptr;
}

bool RecordStore::without_file() const {
  std::error_code error;
  const auto found = std::filesystem::symlink_status(path_, error).type();
  return place_ == Place::memory && found == std::filesystem::file_type::not_found;
}

void RecordStore::write(const RecordTexts& records) {
  look_again();
  flush();
  if (state_ == State::writable) return file_->write(records);
  in_memory() ? hold(records) : refuse();
}

bool RecordStore::in_memory() const {
  return (place_ == Place::memory && state_ == State::readable) || without_file();
}

std::optional<std::string> RecordStore::read(const RecordName& name) {
  look_again();
  try {
    flush();
  } catch (const Overtaken&) {
    throw;
  } catch (const RuntimeError&) {
    // It stays in memory until the next need.
  }
  const bool readable = state_ == State::writable || state_ == State::readable;
  if (!readable && !without_file()) refuse();
  if (const std::string* text = held(name)) return *text;
  return readable ? file_->read(name) : std::nullopt;
}

void RecordStore::tell(const std::string& line) const {
  if (log_) log_(line);
  throw Overtaken(line);
}

void RecordStore::refuse() const {
  if (state_ == State::in_use) throw HostBusy(reason_, "RecordStore");
  throw RuntimeError(RuntimeError::kHostFailure, reason_, "RecordStore");
}

}  // namespace tonarix
