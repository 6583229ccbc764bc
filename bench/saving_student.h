#pragma once

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "engine/training_record.h"
#include "host/local/local_host.h"
#include "settings/offered_intervals.h"
#include "support/fake_dialogs.h"
#include "support/key_texts.h"
#include "support/standing_clock.h"

namespace tonarix {

/// Real time: sleeps until the next task is due.
class SleepingScheduler final : public Scheduler {
 public:
  using Scheduler::post;
  Time now() const override {
    return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
  }
  TaskId post(Time delay, Task task) override { return queue_.add(now() + delay, std::move(task)); }
  void cancel(TaskId id) override { queue_.remove(id); }
  void run_next() {
    std::this_thread::sleep_for(queue_.next_due() - now());
    run(queue_.take());
  }
  /// Runs what an event would run.
  void run(const Task& work) { longest_ = std::max(longest_, timed(work)); }
  /// How long the work took.
  Time timed(const Task& work) const {
    const Time start = now();
    work();
    return now() - start;
  }
  /// The longest that a window would have stood still.
  Time longest_standstill() const { return longest_; }

 private:
  TaskQueue queue_;
  Time longest_{0};
};

/// The embedded host as one that takes one record at a time.
class OneByOneHost final : public Host {
 public:
  explicit OneByOneHost(std::unique_ptr<Host> host) : host_(std::move(host)) {}
  bool Request(std::string& key, Variant& input, Variant& output) override {
    return host_->Request(key, input, output);
  }

 private:
  std::unique_ptr<Host> host_;
};

/// One running program that saves trainings. Settings and state of the training with a number
/// belong together by that number.
class SavingStudent {
 public:
  SavingStudent(const std::filesystem::path& folder, int student, bool together)
      : home_({folder, "Student;" + std::to_string(student), 2, "Deutsch", {}, 20}, clock_),
        server_(
            [this, together]() -> std::unique_ptr<Host> {
              std::unique_ptr<Host> host = home_.factory()();
              if (together) return host;
              return std::make_unique<OneByOneHost>(std::move(host));
            },
            {"vemo06", "Tonarix 2000"}) {
    server_.ServerInit();
  }

  /// Saves as the exercise window does; false when the student would have been told.
  bool save(int number) {
    settings_.EinstSicherung.assign(15, std::to_string(number));
    bool kept = false;
    Sequence keeping = record_.keep(training(number), kept);
    scheduler_.run([&] { keeping.start(); });
    while (!keeping.done()) scheduler_.run_next();
    return kept;
  }

  enum class Found { nothing, whole, mixed, torn };
  /// What the store holds; `number` is the training's, where it is whole.
  Found look(int& number) {
    std::vector<std::string> settings;
    std::vector<std::string> state;
    const RecordRead read = server_.read_both("E1", settings, "A1", state);
    if (read == RecordRead::none || is_used_up(state)) return Found::nothing;
    if (read != RecordRead::found || settings.size() != 15 || state.size() < 2) return Found::torn;
    if (std::count(settings.begin(), settings.end(), settings[0]) != 15) return Found::torn;
    const int of_state = std::stoi(state.back());
    if (state != to_record(training(of_state), settings_)) return Found::torn;
    number = of_state;
    return settings[0] == std::to_string(of_state) ? Found::whole : Found::mixed;
  }

  bool all_is_well() const { return home_.problems().empty(); }
  SleepingScheduler& scheduler() { return scheduler_; }

 private:
  SavedTraining training(int number) const {
    SavedTraining training;
    Key key;
    build_scale(key, settings_.tongeschl, settings_.abfr_iv);
    for (const std::int16_t value : offered_intervals(settings_, key)) {
      training.rows.push_back({{value, static_cast<std::int16_t>(number % 1000)}, {}});
    }
    training.zaehler = training.whlgzaehler = static_cast<std::int16_t>(number);
    return training;
  }

  StandingClock clock_;
  LocalHostHome home_;
  Server server_;
  SleepingScheduler scheduler_;
  KeyTexts texts_;
  RecordingDialogs dialogs_{scheduler_};
  ErrorReport errors_{server_, texts_, dialogs_};
  Settings settings_;
  std::optional<SavedTraining> current_;
  Waits waits_{scheduler_};
  TrainingRecord record_{server_, errors_, settings_, current_, scheduler_, waits_};
};

}  // namespace tonarix
