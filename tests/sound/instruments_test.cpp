#include "sound/instruments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "sound/sound_check.h"
#include "support/recording_midi.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

struct InstrumentsTest : testing::Test {
  InstrumentsTest() { midi.MidiAnschluss(control); }
  VirtualScheduler scheduler;
  RecordingDevices devices{scheduler};
  MIDIOutput control{devices};
  Midi midi;
};

TEST_F(InstrumentsTest, TheInstrumentOfTheTonesReachesAllTheirChannelsButNotTheKeynote) {
  std::array<std::int16_t, 8> patches = kPatchesForRows;
  choose_patch(midi, patches, 0, 40);
  EXPECT_EQ(devices.program(1), -1);
  choose_patch(midi, patches, 1, 19);
  EXPECT_THAT(patches, ElementsAre(40, 19, 40, 40, 40, 40, 40, 40));
  for (const int channel : {0, 1, 2, 3, 4, 5, 6, 7}) {
    EXPECT_EQ(devices.program(channel), channel == 1 ? 19 : 40);
  }
  EXPECT_THROW(choose_patch(midi, patches, 8, 1), RuntimeError);
}

TEST_F(InstrumentsTest, TheSoundCheckClimbsTheRangeInEqualSteps) {
  for (std::int16_t invzahl = 1; invzahl <= 4; ++invzahl) {
    for (std::int16_t top = 48; top <= 108; ++top) {
      const auto notes = test_notes({48, top, invzahl, 0, 1, 0});
      EXPECT_EQ(notes.size(), static_cast<std::size_t>(invzahl + 2));
      EXPECT_LE(notes.back(), top);
      EXPECT_GT(notes.back(), top - invzahl - 1);
    }
  }
  queue_sound_check(midi, {60, 84, 1, 2, 0, 500});
  control.action(MIDIOutput::Action::start_queue);
  scheduler.advance_ms(1500);
  using Note = RecordingDevices::Note;
  EXPECT_THAT(devices.notes(), ElementsAre(Note{0, 2, 60, 100}, Note{0, 1, 48, 50},
                                           Note{500, 2, 72, 100}, Note{1000, 2, 84, 100}));
  EXPECT_EQ(devices.messages().back(), (MidiMessage{0x81, 48, 50, 1450, 1'000'003}));
  EXPECT_EQ(lowered_velocity(60, 50), 30) << "softer, but never too soft";
}

}  // namespace
}  // namespace tonarix
