#include "host/server.h"

#include <charconv>
#include <cstdio>
#include <optional>

#include "base/arithmetic.h"

namespace tonarix {

namespace {

constexpr int kOrdinaryUser = 2;
constexpr int kSupervisor = 4;
constexpr int kLinkFailed = 7;
constexpr int kNoObject = 91;
constexpr const char* kNobody = "unbekannt";
constexpr const char* kNobodyAfterFailure = "Unbekannt";

/// The whole number at the head of a text, as a device number; nothing when there is none in 16
/// bits.
std::optional<std::int16_t> leading_number(const Variant& output) {
  if (!output.is_text() && !output.is_number()) return {};
  const std::string text = output.text();
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string::npos) return {};
  std::int16_t number = 0;
  const auto result = std::from_chars(text.data() + start, text.data() + text.size(), number);
  if (result.ec != std::errc{}) return {};
  return number;
}

std::vector<std::string> texts_of(const Variant& output) {
  std::vector<std::string> texts;
  for (const Variant& element : output.array()) texts.push_back(element.text());
  return texts;
}

/// A user's data: fields that are no text are empty, data that name nobody are nobody's.
std::vector<std::string> user_data(const Variant& output) {
  if (!output.is_array() || output.array().empty()) return {kNobody};
  std::vector<std::string> fields;
  for (const Variant& element : output.array()) {
    const bool readable = element.is_text() || element.is_number();
    fields.push_back(readable ? element.text() : "");
  }
  return output.at(0).is_text() || output.at(0).is_number() ? fields
                                                            : std::vector<std::string>{kNobody};
}

}  // namespace

std::string Server::Application::version() const {
  char text[48];
  std::snprintf(text, sizeof text, "%d.%d.%04d", major, minor, revision);
  return text;
}

Host& Server::ServerObject() {
  if (!host_) throw RuntimeError(kNoObject, "There is no host", "modServer");
  return *host_;
}

void Server::call(std::string key, Variant& input) {
  Host& host = ServerObject();
  Variant language = HostLang_;
  host.Request(key, input, language);
  if (language.is_text() && !language.text().empty()) HostLang_ = language;
}

Server::Status Server::ServerInit(const std::string& module) {
  if (!module.empty()) application_.executable = module;
  midi_host_nr_ = kNoMidiDevice;
  supervisor_ = false;
  try {
    host_ = create_();
    std::string key = "STATUS";
    Variant input;
    Variant output;
    ServerObject().Request(key, input, output);
    const int role = round_to_int16(output.at(1).number());

    key = "MIDI";
    input = Variant();
    output = "";
    if (host_->Request(key, input, output)) {
      midi_host_nr_ = leading_number(output).value_or(kNoMidiDevice);
    }
    ServerLogMess(application_.version() + " " + application_.title +
                  " status: " + std::to_string(role));
    supervisor_ = role == kSupervisor;
    return {role == kSupervisor || role == kOrdinaryUser, role};
  } catch (const std::exception&) {
    return {false, kLinkFailed};
  }
}

std::optional<std::vector<std::string>> Server::logged_on() {
  try {
    std::string key = "LOGIN";
    Variant input = "";
    Variant output = Variant::Array{kNobody};
    if (!ServerObject().Request(key, input, output)) return std::vector<std::string>{kNobody};
    return user_data(output);
  } catch (const std::exception&) {
    return {};
  }
}

std::vector<std::string> Server::ServerLogin() {
  std::vector<std::string> user =
      logged_on().value_or(std::vector<std::string>{kNobodyAfterFailure});
  user_known_ = user.front() != kNobody;
  return user;
}

std::string Server::ServerLang() {
  Variant input = "";
  call("LANG", input);
  return HostLang_.text();
}

void Server::ServerStore(const std::string& short_key, const Variant& data) {
  // The host may go on using the array after the call.
  stored_ = Variant::Array{application_.executable, short_key, data};
  call("STORE", stored_);
}

bool Server::ServerStoreTogether(const std::vector<Record>& records) {
  Variant::Array inputs;
  for (const auto& [short_key, data] : records) {
    inputs.push_back(Variant::Array{application_.executable, short_key, data});
  }
  return ServerObject().StoreTogether(inputs);
}

RecordRead Server::read_record(const std::string& short_key, std::vector<std::string>& target) {
  Variant output;
  try {
    const std::unique_ptr<Host> host = create_();
    std::string key = "READ";
    Variant input = Variant::Array{application_.executable, short_key};
    if (!host || !host->Request(key, input, output)) return RecordRead::failed;
  } catch (const DamagedRecord&) {
    return RecordRead::damaged;
  } catch (const std::exception&) {
    return RecordRead::failed;
  }
  try {
    if (output.at(0).text() == "NIL") return RecordRead::none;
    target = texts_of(output);
    return RecordRead::found;
  } catch (const RuntimeError&) {
    return RecordRead::damaged;
  }
}

RecordRead Server::read_both(const std::string& first_key, std::vector<std::string>& first,
                             const std::string& second_key, std::vector<std::string>& second) {
  const RecordRead one = read_record(first_key, first);
  const RecordRead other = read_record(second_key, second);
  for (const RecordRead read : {RecordRead::none, RecordRead::failed, RecordRead::damaged}) {
    if (one == read || other == read) return read;
  }
  return RecordRead::found;
}

void Server::ServerLogMess(const std::string& text) {
  Variant input = text;
  call("LOGMESS", input);
}

void Server::ServerLogErr(const std::string& place, const RuntimeError& error) {
  Variant input = Variant::Array{application_.executable + "." + place, error.number(),
                                 error.description(), error.source()};
  try {
    call("LOGERR", input);
  } catch (const std::exception&) {
    return;
  }
}

void Server::ServerMenue(WindowList& windows) {
  while (windows.count() > 1) windows.unload(*windows.newest());
  Variant input = "";
  call("MENUE", input);
  host_.reset();
}

}  // namespace tonarix
