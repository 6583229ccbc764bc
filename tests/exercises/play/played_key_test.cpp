#include "exercises/play/played_key.h"

#include <gtest/gtest.h>

#include "base/arithmetic.h"
#include "exercises/play/key_range.h"
#include "music/interval.h"
#include "sound/tuning.h"

namespace tonarix {
namespace {

constexpr std::int16_t kBasis = 48;

KeyVerdict expected(const Tone& asked, const Tone& before, const Tone& played) {
  if (played == asked) return KeyVerdict::right;
  if (played.chr == asked.chr) return KeyVerdict::octave_right;
  const bool same_way = (played.chr - before.chr) * (asked.chr - before.chr) > 0;
  return played.qz == asked.qz && same_way ? KeyVerdict::tone_right : KeyVerdict::wrong;
}

// Key and band together are a tone with its name: so verdicts are laws of tones.
TEST(PlayedKey, IsJudgedByPitchNameAndDirection) {
  std::array<int, 4> counts{};
  for (int note = 43; note <= 78; ++note) {
    for (int qz = 0; qz < kNamedTones; ++qz) {
      if (pitch_class(qz) != note % 12) continue;
      const Tone asked{to_int16(note), to_int16(qz)};
      for (const int step : {-25, -12, -5, 3, 12, 24}) {
        const Tone before{to_int16(note - step), 15};
        for (int field = 0; field <= 3 * 60; ++field) {
          const Field at{field / 3, field % 3 + 1};
          const auto name = spelling(at);
          if (!name) continue;
          const Tone played{to_int16(note_of(at.key, kBasis)), to_int16(*name)};
          const KeyVerdict verdict = judge_key(at, asked, before, kBasis);
          ASSERT_EQ(verdict, expected(asked, before, played)) << note << " " << qz << " " << field;
          ++counts.at(static_cast<std::size_t>(verdict));
        }
      }
    }
  }
  for (const int count : counts) EXPECT_GT(count, 100);
}

TEST(PlayedKey, TheIntervalPlayedLeadsToItsToneOrIsNone) {
  constexpr int kFrom = 57;
  for (int number = 0; number < 6; ++number) {
    Settings settings;
    settings.tongeschl = to_int16(number / 2);
    settings.abfr_iv = static_cast<Naming>(number % 2);
    const bool by_degree = settings.abfr_iv == Naming::from_keynote;
    Key key;
    build_scale(key, settings.tongeschl, settings.abfr_iv);
    move_to_key(key, 3);
    const Tone before{kFrom, key.skala[4].qz};
    int named = 0;
    for (int note = 40; note < 80; ++note) {
      for (int qz = 0; qz < kNamedTones; ++qz) {
        const int value = played_interval({to_int16(note), to_int16(qz)}, before, settings, key);
        const bool asked = by_degree ? skala_row(key, qz).has_value() : qz - before.qz != 7;
        EXPECT_TRUE(value == 0 || (note != kFrom && asked));
        if (value == 0) continue;
        ++named;
        EXPECT_EQ(value > 0, note > kFrom);
        const int reached = by_degree ? key.skala[static_cast<std::size_t>(std::abs(value) - 1)].qz
                                      : next_qz(before.qz, value);
        EXPECT_EQ(reached, qz);
      }
    }
    EXPECT_GE(named, 39 * 7);
  }
}

// The keys reach over the chosen range, where it lies in the key of the task or in any key.
TEST(KeyRange, ReachesOverTheRangeAndEndsOnWhiteKeys) {
  Settings settings;
  settings.invzahl = 1;
  settings.tonraum_min = 36;
  Key key;
  TaskRow row;
  row.inv_ton.fill({48, 15});
  for (int number = 0; number < 4 * 12 * 2; ++number) {
    const int octaves = number % 4 + 2;
    const int offset = number / 4 % 12 - 5;
    settings.tonraum_max = to_int16(36 + 12 * octaves);
    settings.Tonart = to_int16(number / 48);
    key.tonart_offset = to_int16(offset);
    const int lowest = 12 + (settings.Tonart ? -5 : offset);
    const int highest = 12 + 12 * octaves + (settings.Tonart ? 6 : offset);
    const KeyRange keys = key_range(settings, key, row);
    EXPECT_EQ(keys.lowest, is_black(lowest) ? lowest - 1 : lowest);
    EXPECT_EQ(keys.highest, is_black(highest) ? highest + 1 : highest);
    EXPECT_FALSE(is_black(keys.lowest) || is_black(keys.highest));
  }
  settings.tonraum_max = 60;
  settings.Tonart = key.tonart_offset = 0;
  for (const int note : {61, 80, 103, 110}) {
    row.inv_ton[2].chr = to_int16(note);
    const int highest = std::min(note - 36 + 12, 79);
    EXPECT_EQ(key_range(settings, key, row).highest, highest + (is_black(highest) ? 1 : 0))
        << "no right answer is out of reach";
  }
}

// The tones of a key have their own table; beyond it pure fifths go on at either end.
TEST(PlayedDeviation, GoesOnByPureFifthsBeyondTheKey) {
  for (int transpos = -6; transpos <= 9; ++transpos) {
    for (int qz = 0; qz < kNamedTones; ++qz) {
      const Tone tone{60, to_int16(qz)};
      const int place = qz - transpos;
      const int deviation = played_deviation(tone, 1, to_int16(transpos));
      EXPECT_EQ(played_deviation(tone, 0, to_int16(transpos)), 0);
      EXPECT_EQ(played_deviation(tone, 2, to_int16(transpos)), 5);
      if (place >= 10 && place <= 20) {
        EXPECT_EQ(deviation, tuning_deviation(tone, 1, to_int16(transpos)));
      } else {
        EXPECT_NEAR(deviation * 3.125, (place - 18) * 1.955, 1.6) << place;
      }
    }
  }
}

}  // namespace
}  // namespace tonarix
