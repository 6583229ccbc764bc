#include <gmock/gmock.h>

#include <set>

#include "base/arithmetic.h"
#include "base/chance.h"
#include "config/settings_bed.h"
#include "music/degrees.h"
#include "settings/saved_settings.h"

namespace tonarix {
namespace {

using testing::ElementsAre;

TEST(EarSettings, WhateverAStudentClicksGoesTogetherAndCanBeSaved) {
  // All come about, but on the staff the fifth octave, its lowest place, and naming.
  const std::pair<ExerciseKind, std::size_t> cases[] = {
      {ExerciseKind::determine, 43}, {ExerciseKind::write, 40}, {ExerciseKind::build, 44}};
  for (const auto& [exercise, come_about] : cases) {
    SettingsBed bed(exercise);
    const Settings fresh = bed.settings;
    const SettingsKind kind = exercise_row(fresh).settings;
    EarSettingsWindow& window = bed.open_own();
    const Settings& now = bed.settings;
    SeededChance chance(1);
    std::set<std::pair<Choice, int>> seen;
    const auto any = [&](const auto& of) { return draw(chance, static_cast<int>(of.size())); };
    std::vector<Control*> controls = window.controls();
    std::erase_if(controls, [](const Control* one) { return one->tag.empty(); });
    for (int step = 0; step < 2000; ++step) {
      Control& control = *controls[static_cast<std::size_t>(any(controls))];
      auto* list = dynamic_cast<ListControl*>(&control);
      list ? window.choose(*list, any(list->items)) : window.click(control);
      const auto record = build_EinstSicherung(now, kind);
      const Settings read = read_EinstSicherung(fresh, kind, record);
      ASSERT_EQ(build_EinstSicherung(read, kind), record);
      EXPECT_TRUE(read.invzahl == now.invzahl && read.abfr_iv == now.abfr_iv);
      EXPECT_EQ(now.tonraum_max - now.tonraum_min, 24 + 12 * now.E_Oktav);
      EXPECT_EQ(window.degree_list.visible, now.ton_st_wahl == 1);
      if (now.ton_st_wahl == 1) {
        EXPECT_EQ(window.degree_list.items.size(), 1 + degrees_above_keynote(now.tongeschl).size());
      }
      for (const Control* one : controls) {
        const bool open = one->enabled && one->container->enabled;
        EXPECT_TRUE(open || !one->visible || !why_not_open(*one).empty()) << one->object_name();
      }
      for (const SlotRow& row : kSlots) {
        const Choice choice = row.of(kind);
        const Choices::Row* shown = window.choices().find(choice);
        if (!shown) continue;
        if (choice != Choice::stufe_wahl) seen.insert({choice, choice_value(now, choice)});
        for (const OptionControl& option : shown->options) {
          EXPECT_EQ(option.value, option.index() == choice_value(now, choice));
        }
      }
    }
    EXPECT_EQ(seen.size(), come_about);
  }
}

TEST(Einstellung1, TheStaffHasAnOctaveLess) {
  SettingsBed bed(ExerciseKind::write);
  Einstellung1& window = bed.open();
  window.click(window.E_Oktav[2]);
  EXPECT_EQ(window.Combo_tonraum.items.size(), 1U);
  EXPECT_EQ(why_not_open(window.ivg[1]), "");
  window.click(window.ivg[1]);
  EXPECT_EQ(why_not_open(window.E_Oktav[1]) + why_not_open(window.E_Oktav[2]), "[1031]");
  window.choose(window.CmbTrans, 2);
  EXPECT_EQ(window.CmbTransIv.items.size(), 22U);
  EXPECT_EQ(window.CmbTrans.items[1].text + window.CmbTrans.selected_text(),
            "[345][700][623][345][700][413]");
  window.choose(window.CmbTransIv, 11);
  EXPECT_EQ(window.CmbTransIv.selected_text(), "-[358]");
  EXPECT_EQ(bed.settings.trans_dfg * 100 + bed.settings.trans_iv, 211);
  bed.settings.frequenz = 1;
  bed.open();
  EXPECT_EQ(bed.settings.trans_dfg + bed.settings.trans_iv, 0);
  EXPECT_TRUE(bed.window->frequenz[1].value) << "no default: kept from the window before";
}

TEST(Einstellung1, RangesAndDegreesAreListedByTheirNames) {
  SettingsBed bed;
  Einstellung1& window = bed.open();
  for (int E_Oktav = 0; E_Oktav <= 3; ++E_Oktav) {
    window.click(window.E_Oktav[E_Oktav]);
    EXPECT_EQ(window.Combo_tonraum.selected, E_Oktav < 3 ? 1 : 0);
    for (int low = 0; low <= 3 - E_Oktav; ++low) {
      window.choose(window.Combo_tonraum, low);
      EXPECT_EQ(window.Combo_tonraum.selected_text(),
                KeyTexts::shown({681 + low}) + " [702] " + KeyTexts::shown({694 + E_Oktav + low}));
    }
  }
  for (int mode = 0; mode <= 2; ++mode) {
    window.click(window.ton_st_wahl[0]);
    window.click(window.tongeschl[mode]);
    window.click(window.ton_st_wahl[1]);
    EXPECT_EQ(window.degree_list.items[0].text, "[450]/[433]");
    for (int row = 1; row < std::ssize(window.degree_list.items); ++row) {
      window.choose(window.degree_list, row);
      EXPECT_THAT(degree_caption(to_int16(mode), degree_in(row), bed.interval_names, bed.texts),
                  testing::EndsWith(") " + window.degree_list.selected_text()));
    }
  }
}

TEST(EarSettings, InstrumentsFollowTheVoiceButTheStudentsOwnToneKeepsItsOwn) {
  const std::tuple<ExerciseKind, std::array<int, 3>, int> cases[] = {
      {ExerciseKind::determine, {0, 43, 0}, 40}, {ExerciseKind::build, {73, 0, 71}, 71}};
  for (const auto& [exercise, start, own] : cases) {
    SettingsBed bed(exercise);
    EarSettingsWindow& window = bed.open_own();
    EXPECT_EQ(window.lb14[1].text, "100");
    for (const int channel : {0, 1, 2, 7}) {
      EXPECT_EQ(bed.devices.program(channel), start[channel == 7 ? 0 : channel]) << channel;
    }
    window.click(window.grd_ton[0]);
    EXPECT_EQ(window.Channel_Combo.items.size(), 2U);
    EXPECT_EQ(window.patch_list.selected, start[1]);
    window.choose(window.patch_list, 19);
    EXPECT_EQ(bed.devices.program(1) * 100 + bed.devices.program(2), 1900 + start[2]);
    window.choose(window.Channel_Combo, 0);
    window.choose(window.patch_list, 40);
    EXPECT_THAT(bed.settings.patch_ar, ElementsAre(40, 19, own, 40, 40, 40, 40, 40));
    EXPECT_EQ(bed.devices.program(2) * 100 + bed.devices.program(7), 100 * own + 40);
    window.click(window.grd_ton[1]);
    EXPECT_EQ(bed.settings.kanal, 0);
    window.slide(window.HSliderVolume, 300);
    EXPECT_EQ(bed.midi.midi_lautstaerke, 127);
    EXPECT_EQ(window.lb14[1].text, "127");
  }
}

TEST(EarSettings, AcceptAndOpenTheExercise) {
  const std::pair<ExerciseKind, std::string> cases[] = {
      {ExerciseKind::determine,
       "30|Übungsmodus|[136]|Klangfarbe|Acoustic Grand Piano|Tempo|40 (Largo)|"
       "Frequenz|fest (a1 440 Hz)|Abfolge|[1065]|Iv-Anzahl|2|Iv-Größe|[1071]|Tonraum|2 [1072]|"
       "Oktavbereich|[682] [702] [695]|Stimmung|[546]|Grdton zus.|[1069]|Tongeschlecht|[1062]|"
       "Tonart|[1067]|Iv-Bestimmung|[1076]|Stufen|[1078]|"},
      {ExerciseKind::build,
       "34|Übungsmodus|[136]|Klangfarben: |2|[341]|Flute|[641]|Acoustic Grand Piano|"
       "Tempo|40 (Largo)|Frequenz|fest (a1 440 Hz)|Abfolge|[1065]|Iv-Größe|[1071]|"
       "Tonraum|2 [1072]|Oktavbereich|[682] [702] [695]|Stimmung|[546]|Grdton zus.|[1069]|"
       "Tongeschlecht|[1062]|Tonart|[1067]|Aufgabe|[1290]|Genauigkeit|[478]|Stufen|[1078]|"}};
  for (const auto& [exercise, pairs] : cases) {
    SettingsBed bed(exercise);
    bed.texts.given[1074] = "fest (a' 440 Hz)";
    bed.settings.stimm_g = 2;  // goes back to its default
    EarSettingsWindow& window = bed.open_own();
    EXPECT_EQ(window.geinst_lb[8].text, "[556] 2: [508](n)");
    window.click(window.grd_ton[0]);
    window.choose(window.Channel_Combo, 0);
    window.click(window.cmdOk);
    EXPECT_THAT(bed.steps, ElementsAre("protocol", "exercise"));
    EXPECT_TRUE(!window.visible && bed.settings.EinstSicherung.empty()) << "kept at level 1 alone";
    std::string told;
    for (const std::string& one : bed.settings.EinstDatSave) told += one + "|";
    EXPECT_EQ(told, pairs);
  }
}

TEST(Einstellung2, SaysWhatAnAccuracyMeansInStepsAndCents) {
  SettingsBed bed(ExerciseKind::build);
  bed.texts.given = {{1048, ","}, {1293, "%1 (%2)"}};
  auto& window = bed.open<Einstellung2>();
  std::vector<std::string> told, meanings;
  window.on_announced = [&](const std::string& news) { told.push_back(news); };
  for (const int genau : {1, 2, 3, 4, 0}) {
    window.choose(window.genau_combo, genau);
    bed.scheduler.settle();
    meanings.push_back(window.genau_note.text);
  }
  EXPECT_THAT(meanings, ElementsAre("6 (18,8)", "4 (12,5)", "2 (6,3)", "[1294]", "8 (25)"));
  EXPECT_EQ(told, meanings);
  EXPECT_EQ(window.genau_combo.accessible_name, "[1230], 8 (25)");
}

TEST(Einstellung2, FormsOneIntervalFromToneToToneAndGivesTheNamingBack) {
  for (const bool device_gone : {false, true}) {
    SettingsBed bed(ExerciseKind::build);
    bed.settings.abfr_iv = Naming::from_keynote;
    bed.settings.invzahl = 3;
    auto& window = bed.open<Einstellung2>();
    for (const int level : {0, 4, 3}) {
      bed.choose_level(level);
      EXPECT_TRUE(bed.settings.invzahl == 1 && bed.settings.abfr_iv == Naming::from_tone_before);
    }
    bed.devices.refuses = device_gone;
    window.title_bar_close();
    EXPECT_EQ(bed.settings.abfr_iv, Naming::from_keynote);
  }
}

TEST(Einstellung1, GoesBackWhenItOrTheExerciseCannotStart) {
  for (const bool exercise : {false, true}) {
    SettingsBed bed(exercise ? ExerciseKind::determine : ExerciseKind{7});
    bed.exercise_fails = true;
    Einstellung1& window = bed.open();
    if (exercise) window.click(window.cmdOk);
    bed.scheduler.settle();
    EXPECT_THAT(bed.host.error_places(),
                ElementsAre(exercise ? "vemo06.cmdOK_click." : "vemo06.start_timer."));
    EXPECT_TRUE(bed.dialogs.shown.size() == 1 && bed.windows.count() == 0);
    EXPECT_EQ(bed.steps.back(), "selection");
  }
}

TEST(SoundCheck, PlaysTheRangeAndOpensTheButtonsAgain) {
  SettingsBed bed;
  Einstellung1& window = bed.open();
  window.click(window.grd_ton[0]);
  window.click(window.invzahl[4]);
  window.choose(window.temp_Combo, 9);
  window.click(window.klang_contr);
  bed.scheduler.advance_ms(1920);
  EXPECT_FALSE(window.cmdOk.enabled || window.klang_contr.enabled);
  bed.scheduler.advance_ms(120);
  EXPECT_TRUE(window.cmdOk.enabled && window.klang_contr.enabled);
  int tones = 0;
  for (const RecordingDevices::Note& note : bed.devices.notes()) {
    EXPECT_EQ(note.note, note.channel == 1 ? 36 : 48 + 4 * tones);
    if (note.channel == 1) continue;
    EXPECT_NEAR(note.at_ms, 150 + 300.0 * tones++, 1.0);
  }
  EXPECT_EQ(tones, 6);
}

TEST(SoundCheck, LeavingStopsIt) {
  for (const double wait_ms : {10.0, 60.0, 120.0, 400.0}) {
    SettingsBed bed;
    bed.open().click(bed.window->klang_contr);
    bed.scheduler.advance_ms(wait_ms);
    bed.window->title_bar_close();
    const std::size_t heard = bed.devices.notes().size();
    bed.scheduler.advance_ms(5000);
    EXPECT_EQ(bed.devices.notes().size(), heard);
    EXPECT_TRUE(bed.windows.count() == 0 && bed.midi.MidiOut == nullptr);
  }
}

TEST(SoundCheck, AFailingDeviceIsToldAndTheEndOfAnotherQueuePassedOn) {
  SettingsBed bed;
  Einstellung1& window = bed.open();
  bed.devices.refuses = true;
  window.click(window.klang_contr);
  EXPECT_TRUE(window.cmdOk.enabled && window.klang_contr.enabled);
  EXPECT_EQ(bed.dialogs.shown.at(0).text, "[1085]") << "in the student's language alone";
  EXPECT_THAT(bed.host.error_places(), ElementsAre("vemo06.klang_contr_click."));
  bool passed_on = false;
  bed.midi_event.QueueEmpty = [&] { passed_on = true; };
  bed.open();
  window.MIDI.on_queue_empty();
  EXPECT_TRUE(passed_on);
}

}  // namespace
}  // namespace tonarix
