#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>

#include "base/dialogs.h"
#include "base/texts.h"
#include "host/server.h"

namespace tonarix {

/// The one road of a failure: into the host's log under the handler's tag, then to the user, then
/// `done`.
class ErrorReport {
 public:
  ErrorReport(Server& server, const Texts& texts, Dialogs& dialogs)
      : server_(server), texts_(texts), dialogs_(dialogs) {}

  /// Logs and shows the four lines 720 to 723 under "Tonarix 2000"; `done` runs once the user has
  /// closed the box.
  void report(std::string_view tag, std::exception_ptr error, std::function<void()> done = {});

  /// Logs and shows the window's name, the tag, the error's own text and the four lines in one box.
  void report_exercise(const std::string& window, std::string_view tag, std::exception_ptr error,
                       std::function<void()> done = {});

  /// Logs, and with `show` says in two lines that the log knows more.
  void log(std::string_view tag, std::exception_ptr error, bool show = false);

  /// The box of the four lines, for a handler that waits until the user has closed it.
  Message message() const;

 private:
  Server& server_;
  const Texts& texts_;
  Dialogs& dialogs_;
};

}  // namespace tonarix
