#include "sound/devices/library_messages.h"

#include <alsa/asoundlib.h>
#include <fluidsynth.h>
#include <jack/jack.h>

#include <iostream>

namespace tonarix {

namespace {

constexpr int kLevels[] = {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG};

void drop_alsa(const char*, int, const char*, int, const char*, ...) {}
void drop_jack(const char*) {}

}  // namespace

LibraryMessages::LibraryMessages() : console_(std::cerr.rdbuf(nullptr)) {
  for (const int level : kLevels) {
    fluid_set_log_function(level, level <= FLUID_ERR ? take : nullptr, this);
  }
  snd_lib_error_set_handler(drop_alsa);
  jack_set_error_function(drop_jack);
  jack_set_info_function(drop_jack);
}

LibraryMessages::~LibraryMessages() {
  // The libraries stay silent: later complaints reach the user as the failure of a call.
  for (const int level : kLevels) fluid_set_log_function(level, nullptr, nullptr);
  std::cerr.rdbuf(console_);
}

std::string LibraryMessages::joined() const {
  std::string all;
  for (const std::string& complaint : complaints_) all += (all.empty() ? "" : "; ") + complaint;
  return all;
}

void LibraryMessages::take(int, const char* text, void* self) {
  static_cast<LibraryMessages*>(self)->complaints_.emplace_back(text);
}

}  // namespace tonarix
