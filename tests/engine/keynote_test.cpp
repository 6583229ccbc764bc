#include "engine/keynote.h"

#include <gtest/gtest.h>

#include "support/scripted_chance.h"

namespace tonarix {
namespace {

struct KeynoteTest : testing::Test {
  void use(std::int16_t tongeschl, int qz_transpos) {
    settings.tongeschl = tongeschl;
    build_scale(key, tongeschl, Naming::from_keynote);
    move_to_key(key, static_cast<std::int16_t>(qz_transpos));
  }
  KeynoteChord chord(Tone answered = {}) {
    return keynote_chord(settings, key, answered, terz_typ, chance);
  }
  int third(Tone answered) {
    const KeynoteChord notes = chord(answered);
    return notes[2].note - notes[1].note;
  }

  Settings settings;
  Key key;
  ScriptedChance chance{};
  std::int16_t terz_typ = 0;
};

TEST_F(KeynoteTest, DurAndMollHaveTheirOneThird) {
  for (const std::int16_t tongeschl : {0, 1}) {
    use(tongeschl, tongeschl + 1);
    const KeynoteChord notes = chord();
    const int keynote = notes[1].note;
    EXPECT_EQ(notes[0].note - keynote, 12);
    EXPECT_EQ(notes[2].note - keynote, tongeschl == 0 ? 4 : 3);
    EXPECT_EQ(notes[3].note - keynote, 7);
  }
}

TEST_F(KeynoteTest, DurMollTakesTheThirdOfTheRowAndChanceAnOpenOne) {
  use(2, -3);
  const Tone minor_third = key.skala[3];
  const Tone major_third = key.skala[4];
  const Tone fifth = key.skala[6];
  chance.add_draw(0, 2);
  chance.add_draw(1, 2);
  struct Row {
    std::int16_t typ;
    Tone answered;
    int third;
    std::int16_t typ_afterwards;
  };
  for (const Row& row : {Row{1, fifth, 3, 1}, Row{2, minor_third, 4, 2}, Row{3, minor_third, 3, 1},
                         Row{3, major_third, 4, 2}, Row{0, fifth, 3, 0}, Row{3, fifth, 4, 3}}) {
    terz_typ = row.typ;
    EXPECT_EQ(third(row.answered), row.third) << row.typ;
    EXPECT_EQ(terz_typ, row.typ_afterwards);
  }
}

TEST_F(KeynoteTest, LiesInTheOctaveOfTheRange) {
  use(0, 1);  // G: seven semitones up, five down from C
  settings.tonraum_min = 60;
  EXPECT_EQ(chord()[1].note, 12 + 7 + 48);
  settings.tonraum_min = 48;  // 48 - 5 is not above 47
  EXPECT_EQ(chord()[1].note, 12 + 7 + 24);
  settings.tonraum_min = 36;
  EXPECT_EQ(grdton_lage(settings), 12);
}

}  // namespace
}  // namespace tonarix
