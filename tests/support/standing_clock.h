#pragma once

#include "base/wall_clock.h"

namespace tonarix {

/// A calendar that stands still at 21 November 2026, 09:05:32.
struct StandingClock final : WallClock {
  CivilTime now() const override { return {2026, 11, 21, 9, 5, 32}; }
};

}  // namespace tonarix
