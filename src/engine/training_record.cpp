#include "engine/training_record.h"

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr double kPatience = 10'000;  // ms
constexpr double kPause = 50;         // ms between two tries
constexpr std::string_view kDropTag = "intervall_antw.";
const std::vector<std::string> kUsedUp{"False"};

}  // namespace

Sequence TrainingRecord::patiently(std::function<void()> call, std::string_view tag) {
  const Scheduler::Time end = scheduler_.now() + milliseconds(kPatience);
  for (bool first = true;; first = false) {
    try {
      call();
      co_return;
    } catch (const HostBusy&) {
      if (scheduler_.now() >= end) throw;
      if (first) errors_.log(tag, std::current_exception());
    }
    co_await waits_.FullDelay(kPause);
  }
}

Sequence TrainingRecord::keep(SavedTraining training, bool& kept, std::function<bool()> still) {
  kept = false;
  try {
    settings_.AntwSicherung = to_record(training, settings_);
    const std::vector<Server::Record> records{
        {settings_key(), Variant::strings(settings_.EinstSicherung)},
        {state_key(), Variant::strings(settings_.AntwSicherung)}};
    // Read once: after a first try that was left half way the host holds its traces.
    std::optional<Former> former;
    std::function<void()> store_both = [this, &records, &former, &still] {
      if (!former && still && !still()) {
        throw RuntimeError(RuntimeError::kHostFailure, "The store is not as it was found",
                           "TrainingRecord");
      }
      if (server_.ServerStoreTogether(records)) return;
      if (!former) former = read_former();
      keep_one_by_one(*former);
    };
    co_await patiently(std::move(store_both), keep_tag_);
    current_ = std::move(training);
    kept = true;
  } catch (const std::exception&) {
    errors_.log(keep_tag_, std::current_exception());
  }
}

TrainingRecord::Former TrainingRecord::read_former() {
  Former former{};
  former.settings_read = server_.read_record(settings_key(), former.settings);
  former.state_read = server_.read_record(state_key(), former.state);
  if (former.settings_read == RecordRead::failed || former.state_read == RecordRead::failed) {
    throw RuntimeError(RuntimeError::kHostFailure, "The former training cannot be read",
                       "TrainingRecord");
  }
  return former;
}

void TrainingRecord::keep_one_by_one(const Former& former) {
  try {
    store(state_key(), kUsedUp);
    store(settings_key(), settings_.EinstSicherung);
    store(state_key(), settings_.AntwSicherung);
  } catch (const std::exception&) {
    const std::exception_ptr error = std::current_exception();
    put_back(former);
    std::rethrow_exception(error);
  }
}

// The former state may become valid again only beside the former settings.
void TrainingRecord::put_back(const Former& former) {
  if (former.state_read != RecordRead::found) return;
  try {
    Strings now;
    const RecordRead read = server_.read_record(settings_key(), now);
    const bool untouched = read == former.settings_read && now == former.settings;
    if (!untouched && former.settings_read != RecordRead::found) return;
    if (!untouched) {
      store(state_key(), kUsedUp);  // the new one may have been stored and refused all the same
      store(settings_key(), former.settings);
    }
    store(state_key(), former.state);
  } catch (const std::exception&) {
    errors_.log(keep_tag_, std::current_exception());
  }
}

const SavedTraining& TrainingRecord::resumed() const {
  if (!current_) {
    throw RuntimeError(RuntimeError::kOther, "No saved training was read", "AntwSicherung");
  }
  return *current_;
}

Sequence TrainingRecord::drop(bool& dropped) {
  dropped = false;
  try {
    std::function<void()> mark = [this] { store(state_key(), kUsedUp); };
    co_await patiently(std::move(mark), kDropTag);
    dropped = true;
  } catch (const std::exception&) {
    errors_.log(kDropTag, std::current_exception());
  }
}

RecordRead TrainingRecord::stored() const {
  Strings record;
  Strings state;
  const RecordRead read = server_.read_both(settings_key(), record, state_key(), state);
  return is_used_up(state) ? RecordRead::none : read;
}

}  // namespace tonarix
