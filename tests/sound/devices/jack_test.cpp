#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <RtMidi.h>

#include <filesystem>

#include "base/runtime_error.h"
#include "sound/devices/library_messages.h"
#include "sound/devices/system_devices.h"
#include "sound/midi.h"
#include "support/main_thread.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using Bytes = std::vector<int>;

constexpr const char* kJackd = "/usr/bin/jackd";

/// A JACK server of the test's own, with no hardware.
class JackServer {
 public:
  JackServer() {
    setenv("JACK_DEFAULT_SERVER", name_.c_str(), 1);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, 1, "/dev/null", 1, 0);
    posix_spawn_file_actions_addopen(&quiet, 2, "/dev/null", 1, 0);
    std::string arguments[] = {"jackd", "-n", name_,   "-r", "-d",
                               "dummy", "-r", "48000", "-p", "256"};
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    if (posix_spawn(&pid_, kJackd, &quiet, nullptr, argv.data(), environ) != 0) pid_ = -1;
    posix_spawn_file_actions_destroy(&quiet);
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
    if (pid_ <= 0) return;
    ::kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
    pid_ = -1;
  }

 private:
  std::string name_ = "tonarix-test-" + std::to_string(getpid());
  pid_t pid_ = -1;
};

/// A MIDI input that other programs see; it hands what it receives to the main thread.
class Receiver {
 public:
  explicit Receiver(MainThread& main) : post_(main.poster()) {
    const LibraryMessages quiet;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    // The server takes a moment to answer; each attempt waits for it by itself.
    while (external_api() != RtMidi::UNIX_JACK) {
      if (std::chrono::steady_clock::now() > deadline) return;
    }
    input_ = std::make_unique<RtMidiIn>(RtMidi::UNIX_JACK, "receiver");
    input_->setCallback(take, this);
    input_->openVirtualPort("keys");
  }
  bool ready() const { return input_ != nullptr; }
  void close() { input_.reset(); }
  std::vector<Bytes> received;

 private:
  static void take(double, std::vector<unsigned char>* message, void* self) {
    auto* receiver = static_cast<Receiver*>(self);
    Bytes bytes(message->begin(), message->end());
    receiver->post_([receiver, bytes] { receiver->received.push_back(bytes); });
  }
  PostToMain post_;
  std::unique_ptr<RtMidiIn> input_;
};

TEST(ExternalDevice, ARowReachesTheMidiPortAndADeadServerIsAnErrorOnly) {
  if (access(kJackd, X_OK) != 0) GTEST_SKIP() << "jackd is not installed";
  if (external_api() == RtMidi::LINUX_ALSA) GTEST_SKIP() << "this machine has ALSA ports";
  JackServer server;
  MainThread main;
  Receiver receiver(main);
  if (!receiver.ready()) GTEST_SKIP() << "jackd does not start on this machine";
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
  midi.MidiProgramm(73, 2);
  midi.MidiBend(70, 2);
  midi.MidiNote(60, 0, 50, 2, 0);
  control.action(MIDIOutput::Action::start_queue);
  const auto got = [&](const Bytes& bytes) {
    return std::count(receiver.received.begin(), receiver.received.end(), bytes) > 0;
  };
  ASSERT_TRUE(main.run_until([&] { return ended == 1 && got({0x82, 60, 100}); }));
  EXPECT_TRUE(got({0xC2, 73}));
  EXPECT_TRUE(got({0xE2, 0, 70}));
  EXPECT_TRUE(got({0x92, 60, 100}));

  midi.MidiNote(62, 0, 50, 2, 0);
  midi.MidiNote(62, 300, 50, 2, 0);
  control.action(MIDIOutput::Action::start_queue);
  server.end();
  ASSERT_TRUE(main.run_until([&] { return ended == 2; }));
  receiver.close();
  EXPECT_THROW(midi.MidiReset(), RuntimeError);
  EXPECT_EQ(devices.list().size(), 2u) << "the numbers keep their meaning";
  midi.midi_geraet = 1;
  midi.MidiAnschluss(control);
  EXPECT_EQ(control.state(), 1);
}

}  // namespace
}  // namespace tonarix
