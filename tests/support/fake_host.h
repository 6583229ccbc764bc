#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/runtime_error.h"
#include "host/server.h"

namespace tonarix {

/// A host that records every call and answers as the test says: an ordinary user with the role 2,
/// nobody logged on, German, no MIDI device, an empty store, until told otherwise. It outlives the
/// host objects that its factory makes.
class FakeHost {
 public:
  struct Call {
    int instance = 0;  ///< which host object was asked, from 1
    std::string key;
    Variant input;
    Variant preset;  ///< the output as the module set it
  };

  FakeHost() = default;
  FakeHost(const FakeHost&) = delete;
  FakeHost& operator=(const FakeHost&) = delete;

  Server::HostFactory factory() {
    return [this]() -> std::unique_ptr<Host> {
      if (!can_create) throw RuntimeError(429, "The host cannot be reached", "FakeHost");
      ++created;
      ++living;
      return std::make_unique<Object>(*this, created);
    };
  }

  /// The calls with this key, oldest first.
  std::vector<Call> calls_of(const std::string& key) const {
    std::vector<Call> found;
    for (const Call& call : calls) {
      if (call.key == key) found.push_back(call);
    }
    return found;
  }
  /// The keys of all calls in their order, "STATUS MIDI ".
  std::string keys() const {
    std::string all;
    for (const Call& call : calls) all += call.key + " ";
    return all;
  }
  /// The lines given to the host's log.
  std::vector<std::string> log_lines() const {
    std::vector<std::string> lines;
    for (const Call& call : calls_of("LOGMESS")) lines.push_back(call.input.text());
    return lines;
  }
  /// The places of the failures given to the host's log, with the module's name before them.
  std::vector<std::string> error_places() const {
    std::vector<std::string> places;
    for (const Call& call : calls_of("LOGERR")) places.push_back(call.input.at(0).text());
    return places;
  }

  bool can_create = true;
  std::map<std::string, Variant> answers;  ///< the output by key, before all else
  std::set<std::string> failing;           ///< keys whose call raises
  std::set<std::string> failing_records;   ///< records that can't be stored: "vemo06/E1"
  std::map<std::string, Variant> records;  ///< the store: "vemo06/E1"
  std::vector<Call> calls;
  int created = 0;
  int living = 0;

 private:
  class Object final : public Host {
   public:
    Object(FakeHost& owner, int instance) : owner_(owner), instance_(instance) {}
    ~Object() override { --owner_.living; }
    bool Request(std::string& key, Variant& input, Variant& output) override {
      owner_.calls.push_back({instance_, key, input, output});
      if (owner_.failing.count(key) ||
          (key == "STORE" && owner_.failing_records.count(record(input)))) {
        throw RuntimeError(RuntimeError::kHostFailure, "The host does not answer", "FakeHost");
      }
      return owner_.answer(key, input, output);
    }

   private:
    FakeHost& owner_;
    int instance_;
  };

  bool answer(const std::string& key, const Variant& input, Variant& output) {
    const auto own = answers.find(key);
    if (own != answers.end()) {
      output = own->second;
      return true;
    }
    if (key == "MIDI") return false;
    if (key == "STATUS") output = Variant::Array{0, 2};
    if (key == "STORE") records[record(input)] = input.at(2);
    if (key == "READ") {
      const auto found = records.find(record(input));
      output = found == records.end() ? Variant(Variant::Array{"NIL"}) : found->second;
    }
    return true;
  }
  static std::string record(const Variant& input) {
    return input.at(0).text() + "/" + input.at(1).text();
  }
};

}  // namespace tonarix
