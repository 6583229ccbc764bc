#include "engine/keynote.h"

#include <gtest/gtest.h>

#include "support/scripted_chance.h"

namespace tonarix {
namespace {

struct KeynoteTest : testing::Test {
  void use(std::int16_t tongeschl, int qz_transpos) {
    settings.tongeschl = tongeschl;
    build_scale(key, tongeschl, 0);
    move_to_key(key, static_cast<std::int16_t>(qz_transpos));
  }
  std::vector<int> steps_over_keynote(const KeynoteChord& chord) const {
    std::vector<int> steps;
    for (const ChordNote& note : chord) steps.push_back(note.note - chord[1].note);
    return steps;
  }

  Settings settings;
  Key key;
  ScriptedChance chance{};
  std::int16_t terz_typ = 0;
};

TEST_F(KeynoteTest, DurAndMollHaveTheirOneThird) {
  use(0, 1);
  EXPECT_EQ(steps_over_keynote(keynote_chord(settings, key, {}, terz_typ, chance)),
            (std::vector<int>{12, 0, 4, 7}));
  use(1, 2);
  EXPECT_EQ(steps_over_keynote(keynote_chord(settings, key, {}, terz_typ, chance)),
            (std::vector<int>{12, 0, 3, 7}));
}

TEST_F(KeynoteTest, DurMollTakesTheThirdOfTheRow) {
  use(2, -3);
  const Tone minor_third = key.skala[3];
  const Tone major_third = key.skala[4];
  const Tone fifth = key.skala[6];
  struct Row {
    std::int16_t typ;
    Tone answered;
    int third;
    std::int16_t typ_afterwards;
  };
  for (const Row& row : {Row{1, fifth, 3, 1}, Row{2, minor_third, 4, 2}, Row{3, minor_third, 3, 1},
                         Row{3, major_third, 4, 2}}) {
    terz_typ = row.typ;
    const KeynoteChord chord = keynote_chord(settings, key, row.answered, terz_typ, chance);
    EXPECT_EQ(chord[2].note - chord[1].note, row.third) << row.typ;
    EXPECT_EQ(terz_typ, row.typ_afterwards);
  }
}

TEST_F(KeynoteTest, ChanceDecidesAnOpenThird) {
  use(2, 1);
  chance.add_draw(0, 2);
  chance.add_draw(1, 2);
  for (const std::int16_t open : {0, 3}) {
    terz_typ = open;
    const KeynoteChord chord = keynote_chord(settings, key, key.skala[6], terz_typ, chance);
    EXPECT_EQ(chord[2].note - chord[1].note, open == 0 ? 3 : 4);
    EXPECT_EQ(terz_typ, open);
  }
}

TEST_F(KeynoteTest, LiesInTheOctaveOfTheRange) {
  use(0, 1);  // G: seven semitones up, five down from C
  settings.tonraum_min = 60;
  EXPECT_EQ(keynote_chord(settings, key, {}, terz_typ, chance)[1].note, 12 + 7 + 48);
  settings.tonraum_min = 48;  // 48 - 5 is not above 47
  EXPECT_EQ(keynote_chord(settings, key, {}, terz_typ, chance)[1].note, 12 + 7 + 24);
  EXPECT_EQ(grdton_lage(settings), 24);
  settings.tonraum_min = 36;
  EXPECT_EQ(grdton_lage(settings), 12);
}

}  // namespace
}  // namespace tonarix
