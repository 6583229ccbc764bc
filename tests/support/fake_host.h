#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
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

  Server::HostFactory factory() {
    return [this] {
      if (!can_create) throw RuntimeError(429, "The host cannot be reached", "FakeHost");
      return std::make_unique<Object>(*this);
    };
  }

  /// The calls with this key, oldest first.
  std::vector<Call> calls_of(const std::string& key) const {
    std::vector<Call> found = calls;
    std::erase_if(found, [&](const Call& call) { return call.key != key; });
    return found;
  }
  /// The keys of all calls in their order, "STATUS MIDI ".
  std::string keys() const {
    std::string all;
    for (const Call& call : calls) all += call.key + " ";
    return all;
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
  bool together = false;                   ///< takes several records at once
  bool lasting = true;                     ///< else what is stored ends with the program
  int busy = 0;                            ///< so many stores are refused as HostBusy
  std::string fates;  ///< of the next stores: r refused, s stored and refused, b busy
  std::map<std::string, Variant> records;  ///< the store: "vemo06/E1"
  std::vector<Call> calls;
  int created = 0;
  int living = 0;

 private:
  struct Object final : Host {
    explicit Object(FakeHost& host) : owner(host), instance(++host.created) { ++host.living; }
    ~Object() override { --owner.living; }
    bool Request(std::string& key, Variant& input, Variant& output) override {
      owner.calls.push_back({instance, key, input, output});
      return owner.answer(key, input, output);
    }
    bool StoreTogether(const Variant::Array& inputs) override {
      if (!owner.together) return false;
      owner.be_busy();
      const auto former = owner.records;
      try {
        for (Variant input : inputs) {
          Variant output;
          std::string key = "STORE";
          Request(key, input, output);
        }
      } catch (...) {
        owner.records = former;
        throw;
      }
      return true;
    }
    bool lasting() const override { return owner.lasting; }
    FakeHost& owner;
    int instance;
  };

  void be_busy() {
    if (busy > 0 && busy--) throw HostBusy("Somebody else stores", "FakeHost");
  }
  bool answer(const std::string& key, const Variant& input, Variant& output) {
    const bool stores = key == "STORE", reads = key == "READ";
    const std::string record =
        stores || reads ? input.at(0).text() + "/" + input.at(1).text() : std::string();
    const char fate = stores && !fates.empty() ? fates.front() : ' ';
    if (stores && !fates.empty()) fates.erase(0, 1);
    if (fate == 's') records[record] = input.at(2);
    const bool fails = fate == 'r' || fate == 's' || failing.contains(key) ||
                       (stores && failing_records.contains(record));
    if (fails) throw RuntimeError(RuntimeError::kHostFailure, "No answer", "FakeHost");
    if (fate == 'b') throw HostBusy("Somebody else stores", "FakeHost");
    if (stores) be_busy();
    if (key == "STATUS") output = Variant::Array{0, 2};
    if (stores) records[record] = input.at(2);
    if (reads) output = records.contains(record) ? records[record] : Variant(Variant::Array{"NIL"});
    if (answers.contains(key)) output = answers[key];
    return key != "MIDI" || answers.contains(key);
  }
};

}  // namespace tonarix
