#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/text_key.h"
#include "base/wall_clock.h"
#include "host/local/host_log.h"
#include "host/local/record_store.h"
#include "host/server.h"

namespace tonarix {

struct LocalHostOptions {
  std::filesystem::path folder;     ///< holds host.sqlite and host.log; made when it is missing
  std::optional<std::string> user;  ///< "Name;Vorname;Matrikel-Nr."; none: nobody is logged on
  int role = 2;                     ///< 2 ordinary user, 4 supervisor
  std::string language = "Deutsch";
  std::optional<int> midi;  ///< device number
  int patience_ms = 20;     ///< how long a call stands still for another program that writes
};

/// Something that the user should know: a text and what it speaks of, such as a path.
struct Problem {
  TextKey text;
  std::string detail;
  std::error_code error;  ///< why, where the text does not say it
  std::string reason;     ///< why in the system's words, for the terminal
};

/// What the embedded host owns for the run of the program: who is logged on, the store, the log.
class LocalHostHome {
 public:
  LocalHostHome(LocalHostOptions options, const WallClock& clock);

  /// Makes a host object; the home outlives it.
  Server::HostFactory factory();
  /// What is amiss since the start; empty when all is well.
  const std::vector<Problem>& problems() const { return problems_; }

  /// The module has given control back.
  std::function<void()> on_menue;

 private:
  friend class LocalHost;
  void find_problems();

  LocalHostOptions options_;
  std::error_code folder_error_;
  HostLog log_;
  RecordStore store_;
  std::vector<Problem> problems_;
};

/// The host inside the program, for a module that runs without its suite.
class LocalHost final : public Host {
 public:
  explicit LocalHost(LocalHostHome& home) : home_(home) {}
  bool Request(std::string& key, Variant& input, Variant& output) override;
  bool StoreTogether(const Variant::Array& inputs) override;
  bool lasting() const override { return !home_.store_.in_memory(); }

 private:
  void login(Variant& output) const;
  void read(const Variant& input, Variant& output);
  void log_error(const Variant& input);
  /// Half of each record's key: the same however the fields were spaced; empty for nobody.
  std::string user() const;

  LocalHostHome& home_;
};

}  // namespace tonarix
