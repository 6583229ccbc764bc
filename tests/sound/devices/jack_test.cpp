#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <RtMidi.h>

#include <cstdio>
#include <filesystem>

#include "base/runtime_error.h"
#include "sound/devices/system_devices.h"
#include "sound/midi.h"
#include "support/main_thread.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using Bytes = std::vector<int>;

/// A JACK server of the test's own, with no hardware.
class JackServer {
 public:
  JackServer() {
    setenv("JACK_DEFAULT_SERVER", name_.c_str(), 1);
    const std::string command = "jackd -n " + name_ +
                                " -r -d dummy -r 48000 -p 256 >/dev/null 2>&1 & "
                                "echo $!; wait";
    shell_ = popen(command.c_str(), "r");
    EXPECT_EQ(std::fscanf(shell_, "%d", &pid_), 1);
  }
  ~JackServer() {
    end();
    // What clients leave behind that lost their server.
    for (const auto& entry : std::filesystem::directory_iterator("/dev/shm")) {
      if (entry.path().string().find(name_) != std::string::npos) remove(entry.path().c_str());
    }
  }
  /// Asked to end, it gives its place among the servers free; its clients lose it all the same.
  void end() {
    if (!shell_) return;
    ::kill(pid_, SIGTERM);
    pclose(std::exchange(shell_, nullptr));
  }

 private:
  std::string name_ = "tonarix-test-" + std::to_string(getpid());
  FILE* shell_ = nullptr;
  pid_t pid_ = -1;
};

/// A MIDI input that other programs see; it hands what it receives to the main thread.
struct Receiver {
  explicit Receiver(PostToMain post) : post_to_main(std::move(post)) {
    input.setCallback(take, this);
    input.openVirtualPort("keys");
  }
  static void take(double, std::vector<unsigned char>* message, void* self) {
    auto* receiver = static_cast<Receiver*>(self);
    Bytes bytes(message->begin(), message->end());
    receiver->post_to_main([receiver, bytes] { receiver->received.push_back(bytes); });
  }
  bool got(const Bytes& bytes) const {
    return std::count(received.begin(), received.end(), bytes) > 0;
  }
  PostToMain post_to_main;
  std::vector<Bytes> received;
  RtMidiIn input{RtMidi::UNIX_JACK, "receiver"};
};

/// Each attempt waits by itself for the server to answer.
bool server_answers() {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (std::chrono::steady_clock::now() < deadline) {
    if (external_api() == RtMidi::UNIX_JACK) return true;
  }
  return false;
}

TEST(ExternalDevice, ARowReachesTheMidiPortAndADeadServerIsAnErrorOnly) {
  if (access("/usr/bin/jackd", X_OK) != 0) GTEST_SKIP() << "jackd is not installed";
  if (external_api() == RtMidi::LINUX_ALSA) GTEST_SKIP() << "this machine has ALSA ports";
  JackServer server;
  if (!server_answers()) GTEST_SKIP() << "jackd does not start on this machine";
  MainThread main;
  std::optional<Receiver> receiver(std::in_place, main.poster());
  VirtualScheduler scheduler;
  SystemDevices devices(scheduler, main.poster());
  ASSERT_EQ(devices.list().size(), 2u);
  EXPECT_EQ(devices.list()[0].name, "receiver:keys");

  MIDIOutput control(devices);
  int ended = 0;
  control.on_queue_empty = [&] { ++ended; };
  Midi midi;
  midi.midi_geraet = 0;
  midi.MidiAnschluss(control);
  midi.MidiReset();
  int rows = 0;
  const auto play = [&](std::int16_t note) {
    midi.MidiNote(note, 0, 50, 2, 0);
    control.action(MIDIOutput::Action::start_queue);
    ++rows;
    ASSERT_TRUE(main.run_until([&] { return ended == rows; }));
  };
  // The server lets a new connection through only after a moment.
  while (receiver->received.empty() && rows < 40) play(48);
  midi.MidiProgramm(73, 2);
  play(60);
  ASSERT_TRUE(main.run_until([&] { return receiver->got({0x82, 60, 100}); }));
  EXPECT_TRUE(receiver->got({0xC2, 73}));
  EXPECT_TRUE(receiver->got({0x92, 60, 100}));

  midi.MidiNote(62, 0, 300, 2, 0);
  control.action(MIDIOutput::Action::start_queue);
  server.end();
  ASSERT_TRUE(main.run_until([&] { return ended == rows + 1; }));
  receiver.reset();
  EXPECT_THROW(midi.MidiReset(), RuntimeError);
  EXPECT_EQ(devices.list().size(), 2u) << "the numbers keep their meaning";
  midi.midi_geraet = 1;
  midi.MidiAnschluss(control);
  EXPECT_EQ(control.state(), 1);
}

}  // namespace
}  // namespace tonarix
