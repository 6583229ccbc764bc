#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/local/local_host.h"
#include "support/standing_clock.h"
#include "support/temporary_folder.h"

namespace tonarix {

using Strings = std::vector<std::string>;

/// One session of the module on its local host.
struct Session {
  explicit Session(const TemporaryFolder& folder,
                   std::optional<std::string> user = "Öl; Anna ;4711")
      : home({folder.path / "data", std::move(user), 4, "English", 3, 0}, clock) {}
  void store(const Strings& texts) { server.ServerStore("A1", Variant::strings(texts)); }
  /// The record; "none" without one.
  Strings read() {
    Strings target{"none"};
    server.ServerRead("A1", target);
    return target;
  }
  TextKey problem() const { return home.problems().empty() ? TextKey{} : home.problems()[0].text; }

  StandingClock clock;
  LocalHostHome home;
  Server server{home.factory(), {"vemo06", "Intervalle", 1, 0, 0}};
  const int status = server.ServerInit("vemo06").number;
};

struct LocalHostTest : testing::Test {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.path / "data/host.sqlite";
};

}  // namespace tonarix
