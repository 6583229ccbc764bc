#include "settings/settings_tables.h"

#include <gmock/gmock.h>

#include "base/runtime_error.h"
#include "settings/saved_settings.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

const SettingsKind kKinds[] = {SettingsKind::einstellung1, SettingsKind::einstellung2,
                               SettingsKind::einstellung1b};

/// Settings with every field at the given end of its range, as far as the windows allow.
Settings at_end(SettingsKind kind, bool high) {
  Settings settings;
  for (const SlotRow& row : kSlots) {
    const Choice choice = row.of(kind);
    if (choice == Choice::none || choice == Choice::stufe_wahl) continue;
    const ChoiceRow& range = choice_row(choice);
    set_choice(settings, choice, high ? range.highest : range.lowest);
  }
  if (high) set_choice(settings, Choice::Combo_tonraum, 0);
  settings.ton_st_wahl = 0;
  return settings;
}

TEST(EinstSicherung, ComesBackAsItWasOnEveryWindow) {
  for (const SettingsKind kind : kKinds) {
    for (const bool high : {false, true}) {
      Settings saved = at_end(kind, high);
      if (kind != SettingsKind::einstellung1b && !high) {
        saved.ton_st_wahl = 1;
        saved.tongeschl = 2;
        saved.stufe_wahl = 10;
      }
      const auto record = build_EinstSicherung(saved, kind);
      EXPECT_EQ(record.size(), 14U + static_cast<std::size_t>(saved.ton_st_wahl));
      Settings in_force;
      in_force.invzahl = 3;
      const Settings back = read_EinstSicherung(in_force, kind, record);
      EXPECT_TRUE(back.ton_st_wahl == 0 || back.invzahl == 1);
      EXPECT_EQ(build_EinstSicherung(back, kind), record);
      EXPECT_EQ(back.tonraum_min, saved.tonraum_min);
      EXPECT_EQ(back.tonraum_max, saved.tonraum_max);
    }
  }
}

TEST(EinstSicherung, ReachesTheLastOfEachChoice) {
  EXPECT_THAT(build_EinstSicherung(at_end(kKinds[0], true), kKinds[0]),
              ElementsAre("1", "9", "4", "3", "0", "1", "1", "2", "1", "", "0", "2", "1", "2"));
  EXPECT_THAT(build_EinstSicherung(at_end(kKinds[1], true), kKinds[1]),
              ElementsAre("1", "9", "3", "0", "1", "1", "2", "1", "", "0", "2", "2", "1", "4"));
}

TEST(Defaults, TheoryStartsWithoutWhatAnExerciseByEarLeft) {
  Settings fresh;
  Settings left = at_end(SettingsKind::einstellung1, true);
  left.trans_dfg = 2;
  for (Settings* settings : {&fresh, &left}) set_defaults(*settings, SettingsKind::einstellung1b);
  for (const SlotRow& row : kSlots) {
    const Choice choice = row.of(SettingsKind::einstellung1);
    // The window chooses the place of the range by its width.
    if (choice == Choice::none || choice == Choice::Combo_tonraum) continue;
    EXPECT_EQ(choice_value(left, choice), choice_value(fresh, choice)) << row.slot;
  }
  EXPECT_EQ(left.trans_dfg, 0);
  EXPECT_EQ(left.abfr_iv, Naming::from_tone_before);
  EXPECT_EQ(left.Tonart, 1);
}

TEST(EinstSicherung, RefusesEveryBrokenPlace) {
  for (const SettingsKind kind : kKinds) {
    const auto good = build_EinstSicherung(Settings(), kind);
    for (std::size_t slot = 0; slot < good.size(); ++slot) {
      for (const char* bad :
           {"x", "1x", " 1", "1.0", "-1", "5e0", "70000", "99999999999999999999", "32767", "NIL"}) {
        auto record = good;
        record[slot] = bad;
        EXPECT_THROW(read_EinstSicherung(Settings(), kind, record), RuntimeError) << slot << bad;
      }
      auto record = good;
      if (record[slot].empty()) continue;
      record[slot].clear();
      EXPECT_THROW(read_EinstSicherung(Settings(), kind, record), RuntimeError) << slot;
    }
    for (const std::size_t length : {0U, 1U, 13U, 15U, 16U}) {
      auto record = good;
      record.resize(length, "0");
      EXPECT_THROW(read_EinstSicherung(Settings(), kind, record), RuntimeError) << length;
    }
  }
}

TEST(EinstSicherung, RefusesChoicesThatNoWindowLetsComeTogether) {
  struct Case {
    ExerciseKind ueb_typ;
    std::vector<std::pair<Choice, std::int16_t>> choices;
  };
  for (const Case& one : std::initializer_list<Case>{
           {ExerciseKind::determine, {{Choice::ivg, 1}}},
           {ExerciseKind::determine, {{Choice::E_Oktav, 3}}},
           {ExerciseKind::write, {{Choice::Combo_tonraum, 3}}},
           {ExerciseKind::determine, {{Choice::ton_st_wahl, 1}, {Choice::stufe_wahl, 7}}},
           {ExerciseKind::determine,
            {{Choice::ton_st_wahl, 1}, {Choice::stufe_wahl, 6}, {Choice::invzahl, 2}}}}) {
    Settings settings;
    settings.ueb_typ = one.ueb_typ;
    for (const auto& [choice, value] : one.choices) set_choice(settings, choice, value);
    const auto record = build_EinstSicherung(settings, SettingsKind::einstellung1);
    EXPECT_THROW(read_EinstSicherung(settings, SettingsKind::einstellung1, record), RuntimeError);
  }
}

TEST(Tempo, HasTheBeatThatItsTextTells) {
  const std::array<std::int16_t, 10> beats{2000, 1500, 1000, 750, 600, 500, 428, 375, 333, 300};
  EXPECT_EQ(tempo_beats(), beats);
}

}  // namespace
}  // namespace tonarix
