#include "settings/settings_tables.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "settings/saved_settings.h"

namespace tonarix {
namespace {

using Record = std::vector<std::string>;

/// The last of each choice that goes together, without and with a degree.
const std::pair<SettingsKind, Record> kLast[] = {
    {SettingsKind::einstellung1,
     {"1", "9", "4", "3", "0", "1", "1", "2", "1", "", "0", "2", "1", "2"}},
    {SettingsKind::einstellung1,
     {"1", "9", "1", "3", "0", "1", "1", "2", "1", "", "1", "2", "1", "2", "10"}},
    {SettingsKind::einstellung2,
     {"1", "9", "3", "0", "1", "1", "2", "1", "", "0", "2", "2", "1", "4"}},
    {SettingsKind::einstellung2,
     {"1", "9", "3", "0", "1", "1", "2", "1", "", "1", "2", "2", "1", "4", "10"}},
    {SettingsKind::einstellung1b, {"1", "", "4", "3", "0", "", "", "2", "", "", "", "2", "", ""}}};

TEST(EinstSicherung, ComesBackAsItWasAndReachesTheLastOfEachChoice) {
  for (const auto& [kind, record] : kLast) {
    Settings in_force;
    in_force.invzahl = 3;
    const Settings back = read_EinstSicherung(in_force, kind, record);
    EXPECT_EQ(build_EinstSicherung(back, kind), record);
    EXPECT_EQ(back.tonraum_min * 100 + back.tonraum_max, 3696);
    EXPECT_TRUE(kind != SettingsKind::einstellung2 || back.invzahl == 1) << "not stored there";
    for (std::size_t slot = 0; slot < record.size(); ++slot) {
      if (record[slot].empty()) continue;
      Record beyond = record;
      beyond[slot] = std::to_string(std::stoi(record[slot]) + 1);
      EXPECT_THROW(read_EinstSicherung({}, kind, beyond), RuntimeError) << slot;
    }
  }
}

TEST(Defaults, TheoryStartsWithoutWhatAnExerciseByEarLeft) {
  Settings fresh;
  Settings left = read_EinstSicherung({}, kLast[0].first, kLast[0].second);
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
  for (const auto& [kind, good] : kLast) {
    for (std::size_t slot = 0; slot < good.size(); ++slot) {
      for (const char* bad : {"x", "1x", " 1", "1.0", "-1", "5e0", "70000", "99999999999999999999",
                              "32767", "NIL", ""}) {
        Record record = good;
        record[slot] = bad;
        if (record == good) continue;
        EXPECT_THROW(read_EinstSicherung({}, kind, record), RuntimeError) << slot << bad;
      }
    }
    for (const std::size_t length : std::array{0UL, 1UL, 13UL, 29 - good.size(), 16UL}) {
      Record record = good;
      record.resize(length, "0");
      EXPECT_THROW(read_EinstSicherung({}, kind, record), RuntimeError) << length;
    }
  }
}

TEST(EinstSicherung, RefusesChoicesThatNoWindowLetsComeTogether) {
  using Choices = std::vector<std::pair<Choice, std::int16_t>>;
  using enum Choice;
  constexpr auto kDetermine = ExerciseKind::determine;
  const std::pair<ExerciseKind, Choices> cases[] = {
      {kDetermine, {{ivg, 1}}},
      {kDetermine, {{E_Oktav, 3}}},
      {ExerciseKind::write, {{Combo_tonraum, 3}}},
      {kDetermine, {{ton_st_wahl, 1}, {stufe_wahl, 7}}},
      {kDetermine, {{ton_st_wahl, 1}, {stufe_wahl, 6}, {invzahl, 2}}}};
  for (const auto& [ueb_typ, choices] : cases) {
    Settings settings;
    settings.ueb_typ = ueb_typ;
    for (const auto& [choice, value] : choices) set_choice(settings, choice, value);
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
