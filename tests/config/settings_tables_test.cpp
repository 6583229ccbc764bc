#include "config/settings_tables.h"

#include <gmock/gmock.h>

#include "base/runtime_error.h"
#include "config/einst_dat_save.h"
#include "config/levels.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

const SettingsKind kKinds[] = {SettingsKind::einstellung1, SettingsKind::einstellung2,
                               SettingsKind::einstellung1b};

TEST(SettingsTables, RangesSpanTwoToFiveOctaves) {
  EXPECT_EQ(range_bottom(1), 48);
  EXPECT_EQ(range_top(1, 0), 72);
  for (int E_Oktav = 0; E_Oktav <= 3; ++E_Oktav) {
    const int last = range_entries(E_Oktav, 1) - 1;
    EXPECT_EQ(range_top(last, E_Oktav), 96);
    EXPECT_EQ(range_entries(E_Oktav, 4), range_entries(E_Oktav, 1) - 1);
  }
}

TEST(SettingsTables, BeatsAreTruncatedMinutes) {
  const int metronome[] = {30, 40, 60, 80, 100, 120, 140, 160, 180, 200};
  for (std::size_t i = 0; i < kTempi.size(); ++i) {
    EXPECT_EQ(tempo_beats()[i], 60000 / metronome[i]);
    EXPECT_EQ(kTempi[i].text.size(), 17U);
  }
}

TEST(SettingsTables, ExamsOfTheThreeWindows) {
  const auto told = [](SettingsKind kind, int prfnr) {
    Settings settings;
    for (const ExamChoice& exam : exam_choices(kind, prfnr)) {
      set_choice(settings, exam.choice, exam.value);
    }
    EXPECT_EQ(settings.abfrage, 1);
    EXPECT_EQ(settings.ton_st_wahl, 0);
    return std::vector<int>{settings.tempo,   settings.invzahl, settings.tongeschl,
                            settings.abfr_iv, settings.aufg,    settings.genau};
  };
  EXPECT_THAT(told(SettingsKind::einstellung1, 2), ElementsAre(2, 2, 1, 0, 0, 0));
  EXPECT_THAT(told(SettingsKind::einstellung1, 5), ElementsAre(3, 3, 2, 1, 0, 0));
  EXPECT_THAT(told(SettingsKind::einstellung2, 2), ElementsAre(3, 1, 1, 0, 0, 1));
  EXPECT_THAT(told(SettingsKind::einstellung2, 5), ElementsAre(4, 1, 2, 0, 1, 3));
  EXPECT_THAT(told(SettingsKind::einstellung1b, 4), ElementsAre(1, 2, 1, 1, 0, 0));
  EXPECT_THROW(exam_choices(SettingsKind::einstellung1, 6), RuntimeError);
}

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
        saved.stufe_wahl = 6;
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

TEST(EinstSicherung, LayoutOfTheEarWindow) {
  Settings settings;
  settings.tongeschl = 2;
  settings.frequenz = 1;
  settings.stimm_g = 2;
  settings.ton_st_wahl = 1;
  settings.stufe_wahl = 9;
  EXPECT_THAT(
      build_EinstSicherung(settings, SettingsKind::einstellung1),
      ElementsAre("0", "1", "1", "0", "1", "1", "0", "2", "1", "", "1", "0", "0", "2", "9"));
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
  const auto refused = [](Settings settings) {
    const auto record = build_EinstSicherung(settings, SettingsKind::einstellung1);
    EXPECT_THROW(read_EinstSicherung(settings, SettingsKind::einstellung1, record), RuntimeError);
  };
  Settings wide;
  wide.ivg = 1;
  refused(wide);
  Settings high;
  set_choice(high, Choice::E_Oktav, 3);
  refused(high);
  Settings staff;
  staff.ueb_typ = 4;
  set_choice(staff, Choice::Combo_tonraum, 3);
  refused(staff);
  Settings degree;
  degree.ton_st_wahl = 1;
  degree.stufe_wahl = 7;
  refused(degree);
  degree.stufe_wahl = 6;
  degree.invzahl = 2;
  refused(degree);
}

TEST(AntwSicherung, HasItsBuild) {
  std::vector<std::string> state(9, "0");
  EXPECT_THROW(check_AntwSicherung(state), RuntimeError);
  state[0] = "true";
  EXPECT_NO_THROW(check_AntwSicherung(state));
  for (const std::size_t length : {1U, 3U, 8U, 10U, 14U}) {
    state.resize(length);
    EXPECT_THROW(check_AntwSicherung(state), RuntimeError) << length;
  }
  state.resize(15);
  EXPECT_NO_THROW(check_AntwSicherung(state));
  state[0] = "True";
  EXPECT_THROW(check_AntwSicherung(state), RuntimeError);
  EXPECT_THROW(check_AntwSicherung({}), RuntimeError);
}

TEST(Levels, KeysOfTheStoreRecords) {
  EXPECT_EQ(short_key('E', 1, SettingsKind::einstellung1), "E1");
  EXPECT_EQ(short_key('A', 2, SettingsKind::einstellung2), "A2");
  EXPECT_EQ(short_key('A', 4, SettingsKind::einstellung1b), "A4b");
}

TEST(PairList, TrimsValuesAndCountsToTheHighestIndex) {
  PairList pairs;
  pairs.add("Tempo", " 40 (Largo)      ");
  pairs.add("Klangfarben: ", "  ");
  EXPECT_THAT(pairs.finish(), ElementsAre("4", "Tempo", "40 (Largo)", "Klangfarben: ", ""));
  EXPECT_EQ(frequency_value("fest (a' 440 Hz)'"), "fest (a1 440 Hz)'");
}

}  // namespace
}  // namespace tonarix
