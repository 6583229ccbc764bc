#include "app/session_end.h"

#include <cstdlib>

namespace tonarix {

namespace {

Program* running = nullptr;  // for the one hook that can't be given anything

// The toolkit leaves by std::exit in the middle of its work when the display is lost. No window can
// be touched any more, and with sound still running the objects of the process can't go either.
void leave_without_display() {
  if (running == nullptr) return;
  std::exchange(running, nullptr)->module().end_session();
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

SessionEnd::SessionEnd(QGuiApplication& application, Program& program)
    : program_(program), signals_([this] { end(); }) {
  running = &program;
  std::atexit(leave_without_display);
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &application,
                   [this] { end(); });
}

SessionEnd::~SessionEnd() {
  running = nullptr;
}

void SessionEnd::end() {
  program_.module().end_session();
  QCoreApplication::exit(0);
}

}  // namespace tonarix
