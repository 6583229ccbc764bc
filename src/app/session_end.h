#pragma once

#include <QGuiApplication>

#include "app/program.h"
#include "base/windows/end_signals.h"

namespace tonarix {

/// Ends the program in order whatever ends it: a signal, the end of the user's session, a display
/// that is lost. One for the process, while the event loop runs.
class SessionEnd {
 public:
  SessionEnd(QGuiApplication& application, Program& program);
  ~SessionEnd();
  SessionEnd(const SessionEnd&) = delete;
  SessionEnd& operator=(const SessionEnd&) = delete;

 private:
  void end();

  Program& program_;
  EndSignals signals_;
};

}  // namespace tonarix
