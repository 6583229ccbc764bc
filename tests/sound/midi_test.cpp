#include "sound/midi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/recording_midi.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Volumes = std::pair<std::int32_t, std::int32_t>;
constexpr Volumes kSilent(0, 0);
constexpr Volumes kFull(65535, 65535);

struct MidiTest : testing::Test {
  MidiTest() {
    midi.MidiAnschluss(control);
    devices.volumes.clear();
  }
  void start_queue() { control.action(MIDIOutput::Action::start_queue); }
  std::vector<Volumes> volumes_of(Sequence sequence) {
    devices.volumes.clear();
    sequence.start();
    scheduler.settle();
    EXPECT_TRUE(sequence.done());
    return devices.volumes;
  }

  VirtualScheduler scheduler;
  RecordingDevices devices{scheduler};
  MIDIOutput control{devices};
  Midi midi;
  Waits waits{scheduler};
};

TEST_F(MidiTest, TheDeviceListBeginsWithTheDefaultMapperAndAttachingStartsAfresh) {
  devices.devices = {{7, "Keyboard"}, {9, "Synthesiser"}};
  const auto list = midi.MidiGeraeteListe(control, -9);
  ASSERT_EQ(list.size(), 3u);
  EXPECT_EQ(list[0].name, "Synthesiser");
  EXPECT_EQ(list[1].id, 7);
  midi.midi_lautstaerke = 40;
  midi.midi_vol_links = midi.midi_vol_rechts = 12;
  midi.MidiAnschluss(control);
  EXPECT_EQ(devices.opened, 1);
  EXPECT_EQ(midi.midi_lautstaerke, 100);
  EXPECT_EQ(Volumes(midi.midi_vol_links, midi.midi_vol_rechts), kFull);
  devices.devices.clear();
  EXPECT_EQ(midi.MidiGeraeteListe(control, -9).size(), 1u);
  midi.MidiAnschluss(control);
  EXPECT_EQ(devices.opened, -1);
}

TEST_F(MidiTest, ANoteIsQueuedAsOnAndOffUntilAReset) {
  midi.MidiNote(60, 1250, 1125, 2, 5);
  midi.MidiNote(36, 0.5, 2.0, 1, 6, 50);
  start_queue();
  EXPECT_THAT(
      devices.queue,
      ElementsAre(MidiMessage{0x92, 60, 100, 1250, 5}, MidiMessage{0x82, 60, 100, 2375, 1'000'005},
                  MidiMessage{0x91, 36, 50, 0, 6}, MidiMessage{0x81, 36, 50, 2, 1'000'006}));
  midi.MidiNote(60, 0, 100, 0, 1);
  midi.MidiReset();
  start_queue();
  EXPECT_THAT(devices.queue, IsEmpty());
}

TEST_F(MidiTest, MessagesSentAtOnceCarryNoTime) {
  midi.MidiNote(60, 700, 900, 0, 1);
  midi.MidiNoteOn(61, 3);
  midi.MidiNoteOff(61, 3);
  midi.MidiBend(66, 2);
  midi.MidiProgramm(73, 1);
  std::vector<std::array<int, 4>> sent;
  for (const MidiMessage& message : devices.messages()) {
    sent.push_back({message.status, message.data1, message.data2, message.time});
  }
  EXPECT_THAT(sent, ElementsAre(std::array{0x93, 61, 100, 0}, std::array{0x83, 61, 0, 0},
                                std::array{0xE2, 0, 66, 0}, std::array{0xC1, 73, 0, 0}));
}

TEST_F(MidiTest, WhatMidiCannotCarryIsAnOverflow) {
  EXPECT_THROW(midi.MidiNoteOn(128, 0), RuntimeError);
  EXPECT_THROW(midi.MidiNote(-1, 0, 1, 0, 0), RuntimeError);
  EXPECT_THROW(midi.MidiNote(60, 0, 1, 0, 0, 200), RuntimeError);
  EXPECT_THROW(midi.MidiNote(60, -1, 5, 0, 0), RuntimeError);
  EXPECT_THROW(midi.MidiProgramm(0, 16), RuntimeError);
  EXPECT_THAT(devices.messages(), IsEmpty());
}

TEST_F(MidiTest, AFadeOutSavesTheVolumesAndAFadeInComesBackToThem) {
  control.set_volume(60'000, 1200);
  auto fade = volumes_of(midi.MidiLeiser(waits));
  EXPECT_EQ(fade.size(), 122u) << "steps of 500, and the end";
  EXPECT_EQ(fade[1], Volumes(59'500, 59'500));
  EXPECT_EQ(fade.back(), kSilent);
  EXPECT_THAT(volumes_of(midi.MidiLeiser(waits)), IsEmpty());
  EXPECT_EQ(midi.midi_vol_links, 60'000) << "an output that is silent already is not saved";

  fade = volumes_of(midi.MidiStart(waits));
  EXPECT_EQ(fade[1], Volumes(500, 500));
  EXPECT_EQ(fade.back(), Volumes(60'000, 1200));

  midi.midi_vol_links = 0;
  EXPECT_THAT(volumes_of(midi.MidiStart(waits)), IsEmpty());
}

TEST_F(MidiTest, AFadeCutByClosingOrByItsEndStandsAtItsGoal) {
  midi.MidiLeiser(waits).start();
  EXPECT_THAT(devices.volumes, ElementsAre(kFull, kSilent));
  midi.MidiStart(waits).start();
  EXPECT_EQ(devices.volumes.back(), kFull);

  Waits closing(scheduler);
  Sequence fade = midi.MidiLeiser(closing);
  fade.start();
  closing.close();
  scheduler.settle();
  EXPECT_TRUE(fade.done());
  EXPECT_EQ(devices.volumes.back(), kSilent);
  midi.MidiNoteOn(60, 0);
  EXPECT_EQ(devices.volumes.back(), kFull);
}

TEST_F(MidiTest, AFadeLeavesAnOutputAloneThatIsNoLongerTheCurrentOne) {
  MIDIOutput other(devices);
  Sequence fade = midi.MidiLeiser(waits);
  fade.start();
  midi.MidiAnschluss(other);
  devices.volumes.clear();
  scheduler.settle();
  EXPECT_TRUE(fade.done());
  EXPECT_THAT(devices.volumes, IsEmpty());
  midi.detach(control);
  EXPECT_EQ(midi.MidiOut, &other);
}

TEST_F(MidiTest, ALateNoteOffComesTheSoonerTheLongerItsNoteWas) {
  for (const auto& [ms, wait] : {std::pair(50, 150), std::pair(200, 0), std::pair(900, 0)}) {
    const std::size_t before = devices.log.size();
    const double start = devices.now_ms();
    Sequence off = midi.MidiNoteOffSpaeter(64, ms, 4, waits);
    off.start();
    scheduler.advance_ms(1000);
    ASSERT_EQ(devices.log.size(), before + 1);
    EXPECT_EQ(devices.log.back().at_ms - start, wait);
    EXPECT_EQ(devices.log.back().message, (MidiMessage{0x84, 64, 0, 0, 0}));
  }
}

}  // namespace
}  // namespace tonarix
