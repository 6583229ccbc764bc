#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "base/window.h"
#include "host/host.h"

namespace tonarix {

/// What asking for a record came to: read; the host says that there is none; what it holds is no
/// record of texts; the host failed or did not answer.
enum class RecordRead : std::uint8_t { found, none, damaged, failed };

/// The link to the host application: everything the module asks of it. One instance for the
/// process.
class Server {
 public:
  using HostFactory = std::function<std::unique_ptr<Host>()>;

  struct Application {
    std::string executable;  ///< name without extension, first half of each record's key
    std::string title;
    int major = 1;
    int minor = 0;
    int revision = 0;
    /// major "." minor "." revision as four digits: "1.0.0000"
    std::string version() const;
  };

  /// What the start of the link came to.
  struct Status {
    bool running = false;
    int number = 0;  ///< the user's role, or 7 when the link failed
  };

  static constexpr std::int16_t kNoMidiDevice = -9;

  Server(HostFactory create, Application application)
      : create_(std::move(create)), application_(std::move(application)) {}

  /// Connects: role, MIDI device, start line in the log. `module` takes the place of the
  /// executable's name in the records and the log. Not running: a role other than 2 and 4, or a
  /// failure (7).
  Status ServerInit(const std::string& module = {});
  std::int16_t ServerMidi() const { return midi_host_nr_; }
  bool supervisor() const { return supervisor_; }
  /// The user's data; "Unbekannt" alone when the call fails, "unbekannt" when nobody is logged on.
  /// Never empty.
  std::vector<std::string> ServerLogin();
  /// The same without a word to user_known; nothing when the call fails.
  std::optional<std::vector<std::string>> logged_on();
  /// True when the first element of the last ServerLogin differs from "unbekannt".
  bool user_known() const { return user_known_; }
  /// The language that the host names now; the last one known when it names none.
  std::string ServerLang();
  void ServerStore(const std::string& short_key, const Variant& data);
  /// Stores all records or none. False, with nothing stored, for a host that takes only one at a
  /// time.
  struct Record {
    std::string short_key;
    Variant data;
  };
  bool ServerStoreTogether(const std::vector<Record>& records);
  /// False while the host keeps in memory alone what is stored; as its last call found it.
  bool lasting() { return ServerObject().lasting(); }
  /// Reads a record of texts; false, with the target untouched, when there is none or it can't be
  /// read.
  bool ServerRead(const std::string& short_key, std::vector<std::string>& target) {
    return read_record(short_key, target) == RecordRead::found;
  }
  /// The same, for whoever must not take a failing host for an empty store. The target is untouched
  /// unless the record was found.
  RecordRead read_record(const std::string& short_key, std::vector<std::string>& target);
  /// Reads two records that belong together: `none` as soon as one is surely missing, `found` with
  /// both.
  RecordRead read_both(const std::string& first_key, std::vector<std::string>& first,
                       const std::string& second_key, std::vector<std::string>& second);
  void ServerLogMess(const std::string& text);
  /// Logs a failure at `place`. A host that fails here too is passed over: there is nobody left to
  /// tell.
  void ServerLogErr(const std::string& place, const RuntimeError& error);
  /// Unloads all windows but the first, newest first, gives control back to the host and lets it
  /// go.
  void ServerMenue(WindowList& windows);

  const Application& application() const { return application_; }
  /// The host itself, for the one place that passes it on; RuntimeError 91 while there is none.
  Host& ServerObject();

 private:
  /// A call without a handler of its own: `HostLang` goes out as the third argument, and what comes
  /// back is taken when it is a text.
  void call(std::string key, Variant& input);

  HostFactory create_;
  Application application_;
  std::unique_ptr<Host> host_;
  Variant HostLang_ = "Deutsch";
  Variant stored_;
  std::int16_t midi_host_nr_ = kNoMidiDevice;
  bool supervisor_ = false;
  bool user_known_ = false;
};

}  // namespace tonarix
