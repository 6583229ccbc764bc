#include "base/windows/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace tonarix {

namespace {

volatile std::sig_atomic_t write_end = -1;  // all that a signal's handler may know

// In a handler hardly any call is allowed; the byte wakes the event loop, which may do all.
void wake_loop(int) {
  const int before = errno;
  const char byte = 0;
  [[maybe_unused]] const ssize_t count = ::write(write_end, &byte, 1);
  errno = before;
}

}  // namespace

EndSignals::EndSignals(std::function<void()> asked_to_end) {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  write_end = pipe_[1];
  notifier_.emplace(pipe_[0], QSocketNotifier::Read);
  QObject::connect(&*notifier_, &QSocketNotifier::activated,
                   [this, asked_to_end = std::move(asked_to_end)] {
                     char byte = 0;
                     if (::read(pipe_[0], &byte, 1) == 1) asked_to_end();
                   });
  struct sigaction action {};
  action.sa_handler = wake_loop;
  action.sa_flags = SA_RESTART | SA_RESETHAND;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    ::sigaction(kSignals[i], nullptr, &former_[i]);
    if (former_[i].sa_handler != SIG_IGN) ::sigaction(kSignals[i], &action, nullptr);
  }
}

EndSignals::~EndSignals() {
  if (!notifier_) return;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    ::sigaction(kSignals[i], &former_[i], nullptr);
  }
  notifier_.reset();
  for (const int end : pipe_) ::close(end);
}

}  // namespace tonarix
