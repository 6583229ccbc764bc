#include "sound/midi.h"

#include <gmock/gmock.h>

#include <cmath>

#include "sound/instruments.h"
#include "sound/sound_check.h"
#include "sound/tuning.h"
#include "support/recording_midi.h"
#include "support/scripted_chance.h"
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
  for (const auto& [at_ms, message] : devices.log) {
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
  EXPECT_TRUE(devices.log.empty());
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
  for (const auto& [ms, wait] : {std::pair(900, 0), {200, 0}, {50, 150}}) {
    devices.log.clear();
    Sequence off = midi.MidiNoteOffSpaeter(64, ms, 4, waits);
    off.start();
    scheduler.advance_ms(wait);
    ASSERT_EQ(devices.log.size(), 1U);
    EXPECT_EQ(devices.log[0].at_ms, wait);
    EXPECT_EQ(devices.log[0].message, (MidiMessage{0x84, 64, 0}));
  }
}

TEST_F(MidiTest, TheInstrumentOfTheTonesReachesAllTheirChannelsButNotTheKeynote) {
  std::array<std::int16_t, 8> patches = kPatchesForRows;
  choose_patch(midi, patches, 0, 40, kFollowsForRows);
  EXPECT_EQ(devices.program(1), -1);
  choose_patch(midi, patches, 1, 19, kFollowsForRows);
  EXPECT_THAT(patches, ElementsAre(40, 19, 40, 40, 40, 40, 40, 40));
  for (int channel = 0; channel < 8; ++channel) {
    EXPECT_EQ(devices.program(channel), patches.at(channel));
  }
  EXPECT_THROW(choose_patch(midi, patches, 8, 1, kFollowsForRows), RuntimeError);

  control.action(MIDIOutput::Action::close_device);
  EXPECT_THROW(choose_patch(midi, patches, 0, 73, kFollowsForRows), RuntimeError);
  EXPECT_THAT(patches, ElementsAre(73, 19, 73, 73, 73, 73, 73, 73)) << "though the device is gone";
}

TEST_F(MidiTest, TheSoundCheckClimbsTheRangeInEqualSteps) {
  for (std::int16_t invzahl = 1; invzahl <= 4; ++invzahl) {
    for (std::int16_t top = 48; top <= 108; ++top) {
      const auto notes = test_notes({48, top, invzahl, 0, 1, 0});
      EXPECT_EQ(notes.size(), static_cast<std::size_t>(invzahl + 2));
      EXPECT_LE(notes.back(), top);
      EXPECT_GT(notes.back(), top - invzahl - 1);
    }
  }
  queue_sound_check(midi, {60, 84, 1, 2, 0, 500});
  start_queue();
  scheduler.advance_ms(1500);
  using Note = RecordingDevices::Note;
  EXPECT_THAT(devices.notes(), ElementsAre(Note{0, 2, 60, 100}, Note{0, 1, 48, 50},
                                           Note{500, 2, 72, 100}, Note{1000, 2, 84, 100}));
  EXPECT_EQ(devices.log.back().message, (MidiMessage{0x81, 48, 50, 1450, 1'000'003}));
  EXPECT_EQ(lowered_velocity(60, 50), 30) << "softer, but never too soft";
}

constexpr double kCents = 3.125;  // of a bend step
constexpr std::int16_t kPure = 1;
constexpr std::int16_t kKirnberger = 2;

TEST(Tuning, PureFifthsGoFromTheAOfTheTableOnCInEveryKey) {
  // Each fifth is 1.95 cents wider than the equal one.
  const auto pure = [](int place) { return std::lround((place - 18) * 1.95 / kCents); };
  for (int place = 10; place <= 20; ++place) {
    EXPECT_EQ(rein_abw.at(static_cast<std::size_t>(place - 10)), pure(place));
    for (std::int16_t transpos = -10; transpos <= 14; ++transpos) {
      const Tone tone{60, static_cast<std::int16_t>(place + transpos)};
      // The last row is never reached: B (20) sounds by that of D flat (10).
      EXPECT_EQ(tuning_deviation(tone, kPure, transpos), pure(place == 20 ? 10 : place)) << place;
    }
  }
  EXPECT_THROW(tuning_deviation({60, 3}, kPure, 5), RuntimeError) << "below the table";
  EXPECT_EQ(tuning_deviation({60, 3}, 0, 5), 0) << "equal tuning asks for no place";
}

TEST(Tuning, KirnbergerGoesByPitchClassWhateverTheNameAndKey) {
  // His first tuning, from C: fifths and thirds are pure but for the fifth from D to A.
  const double ratios[] = {1.0,       256.0 / 243, 9.0 / 8,    32.0 / 27, 5.0 / 4,  4.0 / 3,
                           45.0 / 32, 3.0 / 2,     128.0 / 81, 5.0 / 3,   16.0 / 9, 15.0 / 8};
  for (std::int16_t note = 0; note < 128; ++note) {
    const int tone = note % 12;
    const double above_a = 1200 * std::log2(ratios[tone] / ratios[9]) - 100 * (tone - 9);
    EXPECT_EQ(tuning_deviation({note, 15}, kKirnberger, 3), std::lround(above_a / kCents)) << tone;
  }
}

TEST(Tuning, DetuningReachesSixteenStepsBothWaysAndOnlyWhenItVaries) {
  ScriptedChance chance;
  EXPECT_EQ(draw_freq_abw(0, chance), 0);
  for (const int sign : {-1, 1}) {
    for (const int steps : {0, 7, 16}) {
      chance.add_sign(sign);
      chance.add_draw(steps, 17);
      EXPECT_EQ(draw_freq_abw(1, chance), sign * steps);
    }
  }
}

}  // namespace
}  // namespace tonarix
