#pragma once

#include "host/error_report.h"
#include "support/fake_host.h"
#include "support/standing_clock.h"
#include "support/window_bed.h"

namespace tonarix {

/// What a window of the module works with beside all that every window needs: a host link that is
/// not started, an error report, a calendar.
struct HostBed : WindowBed {
  FakeHost host;
  Server server{host.factory(), {"vemo06", "Intervalle", 1, 2, 34}};
  ErrorReport errors{server, texts, dialogs};
  StandingClock clock;
};

}  // namespace tonarix
