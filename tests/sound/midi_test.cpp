#include "sound/midi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/recording_midi.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using Action = MIDIOutput::Action;
using Kind = RecordingDevices::Kind;

struct MidiTest : testing::Test {
  MidiTest() {
    midi.MidiAnschluss(control);
    devices.log.clear();
  }

  std::vector<Kind> kinds() const {
    std::vector<Kind> found;
    for (const auto& entry : devices.log) found.push_back(entry.kind);
    return found;
  }
  std::vector<std::pair<int, int>> volumes() const {
    std::vector<std::pair<int, int>> found;
    for (const auto& entry : devices.log) {
      if (entry.kind == Kind::volume_set) found.emplace_back(entry.left, entry.right);
    }
    return found;
  }
  void finish(Sequence sequence) {
    sequence.start();
    scheduler.advance_ms(1000);
    ASSERT_TRUE(sequence.done());
    ASSERT_EQ(sequence.error(), nullptr);
  }

  VirtualScheduler scheduler;
  RecordingDevices devices{scheduler};
  MIDIOutput control{devices};
  Midi midi;
  Waits waits{scheduler};
};

TEST_F(MidiTest, TheDeviceListBeginsWithTheDefaultMapper) {
  devices.devices = {{7, "Keyboard"}, {9, "Synthesiser"}};
  const auto list = midi.MidiGeraeteListe(control, -9);
  ASSERT_EQ(list.size(), 3u);
  EXPECT_EQ(list[0].number, -1);
  EXPECT_EQ(list[0].name, "Synthesiser");
  EXPECT_EQ(list[1].id, 7);
  EXPECT_EQ(midi.midi_geraet, 1);
  midi.MidiGeraeteListe(control, 0);
  EXPECT_EQ(midi.midi_geraet, 0);
}

TEST_F(MidiTest, WithoutAnyDeviceTheDefaultMapperIsOpened) {
  devices.devices.clear();
  const auto list = midi.MidiGeraeteListe(control, -9);
  ASSERT_EQ(list.size(), 1u);
  midi.MidiAnschluss(control);
  EXPECT_EQ(devices.log.end()[-2].number, -1);
}

TEST_F(MidiTest, AttachingForgetsTheVelocityAndVolumesOfBefore) {
  midi.midi_lautstaerke = 40;
  midi.midi_vol_links = midi.midi_vol_rechts = 12;
  midi.MidiAnschluss(control);
  EXPECT_EQ(midi.midi_lautstaerke, 100);
  EXPECT_EQ(midi.midi_vol_links, 65535);
  EXPECT_EQ(midi.midi_vol_rechts, 65535);
  EXPECT_THAT(kinds(), ElementsAre(Kind::closed, Kind::opened, Kind::volume_set));
}

TEST_F(MidiTest, ADeviceThatIsGoneIsAnErrorUntilItIsBack) {
  devices.refuses = true;
  EXPECT_THROW(midi.MidiReset(), RuntimeError);
  EXPECT_EQ(control.state(), 0);
  EXPECT_THROW(midi.MidiNoteOn(60, 0), RuntimeError);
  EXPECT_THROW(control.action(Action::start_queue), RuntimeError);
  EXPECT_NO_THROW(control.action(Action::stop_queue));
  devices.refuses = false;
  midi.MidiReset();
  EXPECT_NO_THROW(midi.MidiNoteOn(60, 0));
}

TEST_F(MidiTest, ResetStopsClosesAndOpensAndForgetsWhatWasQueued) {
  midi.MidiNote(60, 0, 100, 0, 1);
  midi.MidiReset();
  EXPECT_THAT(kinds(),
              ElementsAre(Kind::queue_stopped, Kind::closed, Kind::opened, Kind::volume_set));
  control.action(Action::start_queue);
  EXPECT_THAT(devices.queue, IsEmpty());
}

TEST_F(MidiTest, ANoteIsQueuedAsOnAndOff) {
  midi.MidiNote(60, 1250, 1125, 2, 5);
  midi.MidiNote(36, 0.5, 2.0, 1, 6, 50);
  control.action(Action::start_queue);
  EXPECT_THAT(
      devices.queue,
      ElementsAre(MidiMessage{0x92, 60, 100, 1250, 5}, MidiMessage{0x82, 60, 100, 2375, 1'000'005},
                  MidiMessage{0x91, 36, 50, 0, 6}, MidiMessage{0x81, 36, 50, 2, 1'000'006}));
}

TEST_F(MidiTest, TheQueuePlaysByItselfAndTellsItsEndOnce) {
  int ended = 0;
  control.on_queue_empty = [&] { ++ended; };
  midi.MidiNote(60, 0, 900, 0, 1);
  midi.MidiNote(62, 1000, 900, 0, 2);
  control.action(Action::start_queue);
  scheduler.advance_ms(1899);
  EXPECT_EQ(ended, 0);
  scheduler.advance_ms(60'000);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(devices.messages().size(), 4u);
  EXPECT_EQ(devices.notes()[1].at_ms, devices.notes()[0].at_ms + 1000);

  midi.MidiNote(60, 0, 900, 0, 1);
  control.action(Action::start_queue);
  midi.MidiReset();
  scheduler.advance_ms(60'000);
  EXPECT_EQ(ended, 1);
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
  EXPECT_THROW(midi.MidiBend(128, 0), RuntimeError);
  EXPECT_THROW(midi.MidiProgramm(0, 16), RuntimeError);
  EXPECT_THAT(devices.log, Each(Field(&RecordingDevices::Entry::kind, Kind::volume_set)));
}

TEST_F(MidiTest, AFadeOutSavesTheVolumesAndAFadeInComesBackToThem) {
  control.set_volume(60'000, 1200);
  devices.log.clear();
  finish(midi.MidiLeiser(waits));
  auto fade = volumes();
  EXPECT_EQ(fade.front(), std::pair(60'000, 60'000));
  EXPECT_EQ(fade[1], std::pair(59'500, 59'500));
  EXPECT_EQ(fade.back(), std::pair(0, 0));

  finish(midi.MidiLeiser(waits));
  EXPECT_EQ(midi.midi_vol_links, 60'000) << "an output that is silent already is not saved";

  devices.log.clear();
  finish(midi.MidiStart(waits));
  fade = volumes();
  EXPECT_EQ(devices.log.front().kind, Kind::queue_started);
  EXPECT_EQ(fade[1], std::pair(500, 500));
  EXPECT_EQ(fade.back(), std::pair(60'000, 1200));
}

TEST_F(MidiTest, EachStepOfAFadeLetsOtherWorkRun) {
  int turns = 0;
  Sequence fade = midi.MidiLeiser(waits);
  fade.start();
  const std::function<void()> other_work = [&] {
    ++turns;
    if (!fade.done()) scheduler.post(other_work);
  };
  scheduler.post(other_work);
  scheduler.settle();
  EXPECT_EQ(turns, 132) << "from 65535 down in steps of 500";
}

TEST_F(MidiTest, WithoutASavedVolumeTheQueueStartsWithoutAFade) {
  midi.midi_vol_links = 0;
  finish(midi.MidiStart(waits));
  EXPECT_THAT(kinds(), ElementsAre(Kind::queue_started));
}

TEST_F(MidiTest, AFadeCutByClosingOrByItsEndStandsAtItsGoal) {
  const std::pair silent(0, 0);
  const std::pair full(65535, 65535);
  {
    Sequence fade = midi.MidiLeiser(waits);
    fade.start();
  }
  EXPECT_THAT(volumes(), ElementsAre(full, silent));
  {
    Sequence fade = midi.MidiStart(waits);
    fade.start();
  }
  EXPECT_EQ(volumes().back(), full);

  Waits closing(scheduler);
  Sequence fade = midi.MidiLeiser(closing);
  fade.start();
  closing.close();
  scheduler.settle();
  EXPECT_TRUE(fade.done());
  EXPECT_EQ(volumes().back(), silent);
  finish(midi.MidiLeiser(waits));
  EXPECT_EQ(midi.midi_vol_links, 65535);
  midi.MidiNoteOn(60, 0);
  EXPECT_EQ(volumes().back(), full);
}

TEST_F(MidiTest, AFadeLeavesAnOutputAloneThatIsNoLongerTheCurrentOne) {
  MIDIOutput other(devices);
  Sequence fade = midi.MidiLeiser(waits);
  fade.start();
  midi.MidiAnschluss(other);
  const auto before = volumes().size();
  scheduler.advance_ms(100);
  EXPECT_TRUE(fade.done());
  EXPECT_EQ(volumes().size(), before);
  midi.detach(control);
  EXPECT_EQ(midi.MidiOut, &other);
}

TEST_F(MidiTest, ALateNoteOffComesTheSoonerTheLongerItsNoteWas) {
  for (const auto& [ms, wait] :
       {std::pair(50.0, 150.0), std::pair(200.0, 0.0), std::pair(900.0, 0.0)}) {
    devices.log.clear();
    const double start = devices.now_ms();
    finish(midi.MidiNoteOffSpaeter(64, ms, 4, waits));
    ASSERT_EQ(devices.log.size(), 1u);
    EXPECT_EQ(devices.log[0].at_ms - start, wait);
    EXPECT_EQ(devices.log[0].message, (MidiMessage{0x84, 64, 0, 0, 0}));
  }
}

}  // namespace
}  // namespace tonarix
