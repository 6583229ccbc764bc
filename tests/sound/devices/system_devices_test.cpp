#include "sound/devices/system_devices.h"

#include <RtMidi.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <set>

#include "base/runtime_error.h"
#include "sound/devices/external_port.h"
#include "sound/midi.h"
#include "support/main_thread.h"
#include "support/temporary_folder.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

struct SystemDevicesTest : testing::Test {
  bool ends(int times) {
    return main.run_until([&] { return ended == times; });
  }
  VirtualScheduler scheduler;
  MainThread main;
  int ended = 0;
  const std::function<void()> at_end = [this] { ++ended; };
};

TEST_F(SystemDevicesTest, TheSynthesiserIsTheLastDeviceAndTheDefault) {
  SystemDevices devices(scheduler, main.poster());
  const auto list = devices.list();
  const int last = static_cast<int>(list.size()) - 1;
  EXPECT_EQ(list.back().name, "FluidSynth");
  EXPECT_EQ(devices.problem(), Synthesizer::Problem::none) << "not opened yet";
  for (const int number : {-1, last}) EXPECT_NE(devices.open(number), nullptr);
  for (const int number : {-2, last + 1}) EXPECT_THROW(devices.open(number), RuntimeError);
}

TEST_F(SystemDevicesTest, WithoutASoundFontTheQueuesStillRunOut) {
  SystemDevices devices(scheduler, main.poster(), {"/nonexistent/font.sf2"});
  const auto port = devices.open(-1);
  EXPECT_EQ(devices.problem(), Synthesizer::Problem::no_sound_font);
  EXPECT_NE(devices.reason(), "");
  EXPECT_TRUE(devices.sound_hardware());
  port->start_queue({{0x80, 60, 0, 1900}, {0x90, 60, 100}}, at_end);
  scheduler.advance_ms(1899);
  EXPECT_EQ(ended, 0);
  scheduler.advance_ms(5000);
  port->start_queue({}, at_end);
  port->stop_queue();
  scheduler.advance_ms(5000);
  EXPECT_EQ(ended, 1);
}

using Bytes = std::vector<unsigned char>;

/// A JACK server of the test's own, with no hardware.
class JackServer {
 public:
  JackServer() {
    setenv("JACK_DEFAULT_SERVER", name_.c_str(), 1);
    const std::string jackd = "jackd -n " + name_ + " -r -d dummy -r 48000 -p 256 >/dev/null 2>&1";
    shell_ = popen((jackd + " & echo $!; wait").c_str(), "r");
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
  explicit Receiver(MainThread& main) : post_to_main(main.poster()) {
    const auto take = [](double, Bytes* message, void* self) {
      auto* receiver = static_cast<Receiver*>(self);
      receiver->post_to_main([receiver, bytes = *message] { receiver->received.insert(bytes); });
    };
    input.setCallback(take, this);
    input.openVirtualPort("keys");
  }
  PostToMain post_to_main;
  std::set<Bytes> received;
  RtMidiIn input{RtMidi::UNIX_JACK, "receiver"};
};

TEST_F(SystemDevicesTest, AFontThatIsThereButNotWholeIsCalledDamaged) {
  const TemporaryFolder folder;
  const auto places = sound_font_places();
  const auto font = std::ranges::find_if(
      places, [](const std::string& place) { return std::filesystem::exists(place); });
  ASSERT_NE(font, places.end());
  folder.write("cut.sf2", folder.content(*font));
  for (const int quarters : {3, 1, 0}) {
    const auto path = folder.path / "cut.sf2";
    std::filesystem::resize_file(path, std::filesystem::file_size(*font) * quarters / 4);
    SystemDevices devices(scheduler, main.poster(), {"/nonexistent/font.sf2", path});
    devices.open(-1);
    EXPECT_EQ(devices.problem(), Synthesizer::Problem::damaged_sound_font) << quarters;
  }
}

TEST_F(SystemDevicesTest, ARowReachesTheMidiPortAndADeadServerIsAnErrorOnly) {
  if (access("/usr/bin/jackd", X_OK) != 0) GTEST_SKIP() << "jackd is not installed";
  if (external_api() == RtMidi::LINUX_ALSA) GTEST_SKIP() << "this machine has ALSA ports";
  JackServer server;
  // Each attempt waits by itself for the server to answer.
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (external_api() != RtMidi::UNIX_JACK) {
    if (std::chrono::steady_clock::now() > deadline) GTEST_SKIP() << "jackd does not start here";
  }
  std::optional<Receiver> receiver(std::in_place, main);
  SystemDevices devices(scheduler, main.poster());
  ASSERT_EQ(devices.list().size(), 2u);
  EXPECT_EQ(devices.list()[0].name, "receiver:keys");

  MIDIOutput control(devices);
  control.on_queue_empty = at_end;
  Midi midi;
  midi.midi_geraet = 0;
  midi.MidiAnschluss(control);
  midi.MidiReset();
  int rows = 0;
  const auto play = [&](std::int16_t note) {
    midi.MidiNote(note, 0, 50, 2, 0);
    control.action(MIDIOutput::Action::start_queue);
    ++rows;
    ASSERT_TRUE(ends(rows));
  };
  // The server lets a new connection through only after a moment.
  while (receiver->received.empty() && rows < 40) play(48);
  midi.MidiProgramm(73, 2);
  play(60);
  ASSERT_TRUE(main.run_until([&] { return receiver->received.contains({0x82, 60, 100}); }));
  EXPECT_TRUE(receiver->received.contains({0xC2, 73}));
  EXPECT_TRUE(receiver->received.contains({0x92, 60, 100}));

  midi.MidiNote(62, 0, 300, 2, 0);
  control.action(MIDIOutput::Action::start_queue);
  server.end();
  ASSERT_TRUE(ends(rows + 1));
  receiver.reset();
  EXPECT_THROW(midi.MidiReset(), RuntimeError);
  EXPECT_EQ(devices.list().size(), 2u) << "the numbers keep their meaning";
  midi.midi_geraet = 1;
  midi.MidiAnschluss(control);
  EXPECT_EQ(control.state(), 1);
}

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

struct FakeSink final : MidiSink {
  bool send(const unsigned char* bytes, std::size_t count) override {
    const std::lock_guard lock(mutex);
    if (!gone) sent.emplace_back(bytes, bytes + count);
    return !gone;
  }
  std::vector<Bytes> take() {
    const std::lock_guard lock(mutex);
    return std::exchange(sent, {});
  }
  std::mutex mutex;
  std::vector<Bytes> sent;
  std::atomic<bool> gone = false;
};

struct ExternalPortTest : SystemDevicesTest {
  std::shared_ptr<FakeSink> sink = std::make_shared<FakeSink>();
  std::optional<ExternalPort> port{std::in_place, sink, main.poster()};
  std::vector<Bytes> opening = sink->take();
};

TEST_F(ExternalPortTest, ItBeginsWithCentredBendsAndEndsInSilence) {
  EXPECT_EQ(opening.size(), 8u);
  EXPECT_THAT(opening, Contains(Bytes{0xE7, 0, 64}));
  port->send({0x95, 60, 100, 0, 0});
  port.reset();
  EXPECT_THAT(sink->take(), Contains(Bytes{0x85, 60, 0}));
}

TEST_F(ExternalPortTest, AQueuePlaysByTimesInTheOrderGivenAndTellsItsEndOnce) {
  port->start_queue(
      {{0x90, 60, 100, 0, 1}, {0x80, 60, 100, 30, 1}, {0x91, 40, 90, 0, 2}, {0xC0, 5, 0, 30, 3}},
      at_end);
  ASSERT_TRUE(ends(1));
  EXPECT_THAT(sink->take(), ElementsAre(Bytes{0x90, 60, 100}, Bytes{0x91, 40, 90},
                                        Bytes{0x80, 60, 100}, Bytes{0xC0, 5}));
  port->start_queue({}, at_end);
  ASSERT_TRUE(ends(2));
}

TEST_F(ExternalPortTest, StoppingSilencesWhatSoundsAndForgetsTheRest) {
  port->start_queue({{0x92, 60, 100, 0, 0}}, at_end);
  ASSERT_TRUE(ends(1));
  port->start_queue({{0x83, 61, 0, 0, 0}, {0x90, 62, 100, 3'600'000, 0}}, at_end);
  sink->take();
  port->stop_queue();
  const auto silenced = sink->take();
  EXPECT_THAT(silenced, Contains(Bytes{0x82, 60, 0}));
  EXPECT_THAT(silenced, Contains(Bytes{0xB2, 123, 0}));
  port->stop_queue();
  EXPECT_THAT(sink->take(), IsEmpty());

  port->start_queue({}, at_end);
  ASSERT_TRUE(main.wait_for_post());
  port->stop_queue();
  main.run_posted();
  EXPECT_EQ(ended, 1) << "an end that was on its way is forgotten";
}

TEST_F(ExternalPortTest, TheVolumeGoesAheadOfTheNextNoteAndNotWithEveryStepOfAFade) {
  for (std::int32_t level = 65535; level >= 0; level -= 500) port->set_volume(level, level);
  port->set_volume(0, 0);
  port->send({0x90, 60, 100});
  const auto sent = sink->take();
  EXPECT_EQ(sent.back(), (Bytes{0x90, 60, 100}));
  EXPECT_EQ(sent.end()[-2], (Bytes{0xB7, 7, 0}));
  EXPECT_LE(sent.size(), 8u * 6 + 1);
}

TEST_F(ExternalPortTest, ADeviceThatVanishesIsAnErrorButTheQueueRunsOut) {
  port->start_queue({{0x90, 60, 100}, {0x80, 60, 100, 20}}, at_end);
  sink->gone = true;
  ASSERT_TRUE(ends(1));
  EXPECT_THROW(port->send({0x90, 60, 100}), RuntimeError);
  EXPECT_NO_THROW(port->set_volume(5, 5));
  EXPECT_NO_THROW(port->stop_queue());
}

}  // namespace
}  // namespace tonarix
