#include "engine/training_record.h"

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr double kPatience = 10'000;  // ms
constexpr double kPause = 50;         // ms between two tries
constexpr std::string_view kKeepTag = "zurueck_click.";
constexpr std::string_view kDropTag = "intervall_antw.";
const std::vector<std::string> kUsedUp{"False"};

}  // namespace

Sequence TrainingRecord::patiently(std::function<void()> call) {
  const Scheduler::Time end = scheduler_.now() + milliseconds(kPatience);
  while (true) {
    try {
      call();
      co_return;
    } catch (const HostBusy&) {
      if (scheduler_.now() >= end) throw;
    }
    co_await waits_.FullDelay(kPause);
  }
}

Sequence TrainingRecord::keep(SavedTraining training, bool& kept) {
  kept = false;
  try {
    settings_.AntwSicherung = to_record(training, settings_);
    const std::vector<Server::Record> records{
        {settings_key(), Variant::strings(settings_.EinstSicherung)},
        {state_key(), Variant::strings(settings_.AntwSicherung)}};
    std::function<void()> store_both = [this, &records] {
      if (!server_.ServerStoreTogether(records)) keep_one_by_one();
    };
    co_await patiently(std::move(store_both));
    current_ = std::move(training);
    kept = true;
  } catch (const std::exception&) {
    errors_.log(kKeepTag, std::current_exception());
  }
}

void TrainingRecord::keep_one_by_one() {
  Strings former_settings;
  Strings former_state;
  const RecordRead settings_read = server_.read_record(settings_key(), former_settings);
  const RecordRead state_read = server_.read_record(state_key(), former_state);
  if (settings_read == RecordRead::failed || state_read == RecordRead::failed) {
    throw RuntimeError(RuntimeError::kHostFailure, "The former training cannot be read",
                       "TrainingRecord");
  }
  try {
    store(state_key(), kUsedUp);
    store(settings_key(), settings_.EinstSicherung);
    store(state_key(), settings_.AntwSicherung);
  } catch (const std::exception&) {
    const std::exception_ptr error = std::current_exception();
    put_back(settings_read, former_settings, state_read, former_state);
    std::rethrow_exception(error);
  }
}

// The former state may become valid again only beside the former settings.
void TrainingRecord::put_back(RecordRead settings_read, const Strings& settings,
                              RecordRead state_read, const Strings& state) {
  if (state_read != RecordRead::found) return;
  try {
    Strings now;
    const RecordRead read = server_.read_record(settings_key(), now);
    const bool untouched = read == settings_read && now == settings;
    if (!untouched && settings_read != RecordRead::found) return;
    if (!untouched) {
      store(state_key(), kUsedUp);  // the new one may have been stored and refused all the same
      store(settings_key(), settings);
    }
    store(state_key(), state);
  } catch (const std::exception&) {
    errors_.log(kKeepTag, std::current_exception());
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
    co_await patiently(std::move(mark));
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
