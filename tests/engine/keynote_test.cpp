#include "engine/keynote.h"

#include <gtest/gtest.h>

#include "support/scripted_chance.h"

namespace tonarix {
namespace {

struct KeynoteTest : testing::Test {
  KeynoteChord chord(Tone answered = {}) {
    build_scale(key, settings.tongeschl, Naming::from_keynote);
    move_to_key(key, 1);  // G: seven semitones up, five down from C
    return keynote_chord(settings, key, answered, terz_typ, chance);
  }
  Settings settings;
  Key key;
  ScriptedChance chance{};
  std::int16_t terz_typ = 1;
};

TEST_F(KeynoteTest, DurMollTakesTheThirdOfTheRowAndChanceAnOpenOne) {
  settings.tongeschl = 2;
  chord();
  const Tone minor_third = key.skala[3], major_third = key.skala[4], fifth = key.skala[6];
  chance.add_draw(1, 2);
  chance.add_draw(0, 2);
  // terz_typ, just answered, third, terz_typ afterwards
  const std::tuple<std::int16_t, Tone, int, int> rows[] = {
      {1, fifth, 3, 1},       {2, minor_third, 4, 2}, {3, minor_third, 3, 1},
      {3, major_third, 4, 2}, {0, fifth, 4, 2},       {3, fifth, 3, 1}};
  for (const auto& [typ, answered, third, typ_afterwards] : rows) {
    terz_typ = typ;
    const KeynoteChord notes = chord(answered);
    EXPECT_EQ(notes[2].note - notes[1].note, third) << typ;
    EXPECT_EQ(terz_typ, typ_afterwards);
    for (const Tone& later : {minor_third, major_third, fifth}) {
      EXPECT_EQ(chord(later), notes) << "the mode of a task stays, without another draw";
    }
  }
}

TEST_F(KeynoteTest, LiesInTheOctaveOfTheRange) {
  settings.tonraum_min = 60;
  EXPECT_EQ(chord()[1].note, 12 + 7 + 48);
  settings.tonraum_min = 48;  // 48 - 5 is not above 47
  EXPECT_EQ(chord()[1].note, 12 + 7 + 24);
  settings.tonraum_min = 36;
  EXPECT_EQ(grdton_lage(settings), 12);
}

}  // namespace
}  // namespace tonarix
