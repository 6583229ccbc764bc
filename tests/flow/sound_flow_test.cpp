#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "flow/flow_bed.h"

namespace tonarix {
namespace {

constexpr int kKeynoteChannel = 1;
/// Bend steps by fifths from the keynote, -5 to 5; the last one is a given oddity of this tuning.
constexpr int kPure[] = {-5, -4, -4, -3, -2, -2, -1, -1, 0, 1, -5};
/// Bend steps by pitch class from C.
constexpr int kKirnberger[] = {5, 2, 6, 3, 1, 4, 2, 6, 3, 0, 4, 1};

int deviation(int stimm_g, int note, int fifths) {
  return stimm_g == 1 ? kPure[fifths + 5] : stimm_g == 2 ? kKirnberger[note % 12] : 0;
}

/// A note as it went over the wire, with the bend its channel had when it began.
struct Sounded {
  double at_ms = 0, length_ms = 0;
  int channel = 0, note = 0, velocity = 0;
  int bend = -1;  ///< -1 when the channel was never bent
};

void expect_sounded(const Sounded& note, const Sounded& expected) {
  EXPECT_NEAR(note.at_ms, expected.at_ms, 0.5);
  EXPECT_NEAR(note.length_ms, expected.length_ms, 1);
  EXPECT_EQ((std::array{note.channel, note.note, note.velocity, note.bend}),
            (std::array{expected.channel, expected.note, expected.velocity, expected.bend}));
}

/// What sounded since the entry `from` of the wire, after the programs of eight channels.
std::vector<Sounded> sounded(const FlowBed& bed, std::size_t from) {
  std::vector<Sounded> notes;
  std::map<int, int> bends;
  std::array<std::int16_t, 8> programs{};
  for (; from < bed.devices.log.size(); ++from) {
    const auto& [at_ms, message] = bed.devices.log[from];
    const int channel = message.status & 0x0F, kind = message.status & 0xF0, data1 = message.data1;
    if (kind == 0xC0) {
      EXPECT_TRUE(notes.empty() && bends.empty());
      programs.at(static_cast<std::size_t>(channel)) = message.data1;
    } else if (kind == 0xE0) {
      EXPECT_TRUE(notes.empty() && bends.count(channel) == 0 && data1 == 0);
      bends[channel] = message.data2;
    } else if (kind == 0x90) {
      const int bend = bends.count(channel) == 0 ? -1 : bends[channel];
      notes.push_back({at_ms, 0, channel, data1, message.data2, bend});
    } else {
      for (Sounded& on : notes) {
        const bool ends = on.channel == channel && on.note == data1 && on.length_ms == 0;
        if (ends) on.length_ms = at_ms - on.at_ms;
      }
    }
  }
  EXPECT_EQ(programs, bed.module.settings().patch_ar);
  return notes;
}

// By tuning, detuning, the keynote along, volume and key kept or changed.
TEST(SoundFlow, RowsAndChordsGoOverTheWireAsTuned) {
  std::map<int, int> detunings;
  for (int number = 0; number < 3 * 2 * 2 * 3 * 3; ++number) {
    SCOPED_TRACE(number);
    const int stimm_g = number % 3, frequenz = number / 3 % 2, grd_ton = number / 6 % 2;
    const int volume = std::array{100, 60, 90}[number / 12 % 3], tongeschl = number / 36;
    const bool bent = stimm_g != 0 || frequenz != 0;
    FakeHost host;
    FlowBed bed(host, static_cast<std::uint64_t>(number));
    Einstellung1& settings = bed.open_settings();
    settings.click(settings.stimm_g[stimm_g]);
    settings.click(settings.frequenz[frequenz]);
    settings.click(settings.grd_ton[grd_ton]);
    settings.click(settings.tongeschl[tongeschl]);
    settings.click(settings.invzahl[4]);
    settings.choose(settings.temp_Combo, number % 10);
    settings.slide(settings.HSliderVolume, volume);
    Arbeitsblatt1& window = bed.open_exercise();
    for (int task = 0; task < 3; ++task) {
      std::size_t from = task == 0 ? 0 : bed.devices.log.size();
      if (task > 0) window.CmdNextAufg_click();
      bed.hear_row();
      const auto& tones = bed.module.row().inv_ton;
      std::vector<Sounded> row = sounded(bed, from);
      const auto along = std::ranges::find(row, kKeynoteChannel, &Sounded::channel);
      ASSERT_EQ(row.size(), grd_ton == 0 ? 7U : 6U);
      ASSERT_EQ(along != row.end(), grd_ton == 0);
      const int offset = 64 + deviation(stimm_g, tones[0].chr, 0);
      const int detuning = bent ? row[grd_ton == 0 && along == row.begin()].bend - offset : 0;
      EXPECT_LE(std::abs(detuning), frequenz == 1 ? 16 : 0);
      detunings[detuning] += frequenz;
      if (grd_ton == 0) {
        expect_sounded(*along,
                       {row[0].at_ms, 5.9 * bed.beat(), kKeynoteChannel, 36 + tones[0].chr % 12,
                        std::max(volume - 50, 30), bent ? detuning + offset : -1});
        row.erase(along);
      }
      for (int i = 0; i < 6; ++i) {
        const auto& tone = tones[static_cast<std::size_t>(i)];
        const int own = deviation(stimm_g, tone.chr, tone.qz - tones[0].qz);
        expect_sounded(row[static_cast<std::size_t>(i)],
                       {row[0].at_ms + i * bed.beat(), 0.9 * bed.beat(), bent ? i + 2 : 0, tone.chr,
                        volume, bent ? 64 + detuning + own : -1});
      }

      bed.answer_row(window);
      from = bed.devices.log.size();
      window.grundton_click();
      bed.scheduler.advance_ms(bed.beat() + 500);
      const std::vector<Sounded> chord = sounded(bed, from);
      ASSERT_EQ(chord.size(), 4U);
      const int root = chord[1].note;
      const bool minor = chord[2].note - root == 3;
      EXPECT_TRUE(tongeschl == 2 || minor == (tongeschl == 1));
      const int semitones[] = {12, 0, minor ? 3 : 4, 7};
      const int fifths[] = {0, 0, minor ? -3 : 4, 1};
      EXPECT_EQ(root % 12, tones[0].chr % 12);
      EXPECT_NEAR(root, 48.5, 5.5) << "the lowest keynote of the range";
      for (int i = 0; i < 4; ++i) {
        const int note = root + semitones[i];
        const int own = deviation(stimm_g, note, fifths[i]);
        expect_sounded(chord[static_cast<std::size_t>(i)],
                       {chord[0].at_ms, 0.9 * bed.beat(), bent ? i + 2 : 0, note, volume,
                        bent ? 64 + detuning + own : -1});
      }
    }
  }
  EXPECT_LT(detunings.begin()->first, -10);
  EXPECT_GT(detunings.rbegin()->first, 10);
}

}  // namespace
}  // namespace tonarix
