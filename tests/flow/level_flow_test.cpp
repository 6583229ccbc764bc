#include <gtest/gtest.h>

#include <array>
#include <set>

#include "flow/flow_bed.h"
#include "host/local/local_host.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

int percent(const Arbeitsblatt1& window) {
  return std::stoi(window.matboxanz[15].text);
}
bool finished(const Arbeitsblatt1& window) {
  return window.zurueck.text == "[625s]";
}
std::string saved_training_entry(FlowBed& bed) {
  return bed.settings().training_Combo.items.at(2).text;
}

struct LevelFlowTest : testing::Test {
  Variant& state() { return host.records["vemo06/A1"]; }
  FakeHost host;
};

TEST_F(LevelFlowTest, ATrainingAnsweredWellEndsSolved) {
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin(1);
  EXPECT_EQ(percent(window), 50);
  EXPECT_TRUE(window.ergebnis_anz[0].visible);
  for (int repeat = 1; repeat <= 4; ++repeat) {
    window.wieder_click();
    bed.hear_row();
  }
  int last = 50;
  for (int task = 0; task < 500 && !finished(window); ++task) {
    if (task > 0) bed.next_task(window);
    bed.answer_row(window, 1);
    EXPECT_LE(percent(window), last);
    if (task == 0) {
      EXPECT_EQ(percent(window), 46) << "repeats use the first reward up, not the second";
    }
    last = percent(window);
  }
  ASSERT_TRUE(window.ergebnis_anz[1].visible);
  EXPECT_FALSE(window.ergebnis_anz[0].visible);
  EXPECT_EQ(percent(window), 0);
  EXPECT_EQ(window.zurueck.back, RGB(255, 255, 0));
  EXPECT_EQ(window.default_button(), &window.zurueck);
  EXPECT_EQ(state(), Variant::strings({"False"}));

  // The row can still be heard, but no further task is offered.
  window.wieder2_click();
  bed.hear_row();
  EXPECT_FALSE(window.CmdNextAufg.visible);
  bed.leave(window);
  EXPECT_TRUE(bed.dialogs.shown.empty()) << "a finished training is not offered for saving";
  EXPECT_EQ(saved_training_entry(bed), "---------------");
  EXPECT_EQ(bed.settings().training_Combo.selected, 1);
}

TEST_F(LevelFlowTest, ATrainingAnsweredBadlyEndsTooHard) {
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin(1);
  for (int task = 0; task < 500 && !finished(window); ++task) {
    if (task > 0) bed.next_task(window);
    for (int iv_nr = bed.asked(window); iv_nr >= 0; iv_nr = bed.asked(window)) {
      bed.press(window, bed.wrong_code(window, iv_nr));
    }
  }
  EXPECT_TRUE(window.ergebnis_anz[2].visible);
  EXPECT_EQ(percent(window), 100);
}

TEST_F(LevelFlowTest, ASavedTrainingGoesOnInANewProcessAsItWasLeft) {
  const TemporaryFolder folder;
  const StandingClock clock;
  const auto process = [&] {
    LocalHostOptions options;
    options.folder = folder.path;
    options.user = "Lovelace;Ada;4711";
    return std::make_unique<LocalHostHome>(options, clock);
  };
  const auto stored = [](LocalHostHome& home) {
    std::string key = "READ";
    Variant input = Variant::Array{"vemo06", "A1"};
    Variant output;
    home.factory()()->Request(key, input, output);
    return output;
  };
  std::string wrong, repeats, shown;
  Variant saved;
  {
    const auto home = process();
    FlowBed bed(host, home->factory(), 7);
    Arbeitsblatt1& window = bed.begin(1);
    for (int task = 0; task < 9; ++task) {
      if (task > 0) bed.next_task(window);
      if (task == 3) {
        window.wieder_click();
        bed.hear_row();
      }
      bed.answer_row(window, 2.5, 0.4);
    }
    wrong = window.zaehler[1].text;
    repeats = window.whlgzaehler.text;
    shown = window.matboxanz[15].text;
    EXPECT_NE(wrong, "0");
    bed.dialogs.script = {Reply::yes};
    bed.leave(window);
    EXPECT_EQ(bed.dialogs.shown.at(0).text, "[495s]");
    EXPECT_EQ(saved_training_entry(bed), "[565s]");
    EXPECT_EQ(bed.settings().training_Combo.selected, 1);
    saved = stored(*home);
  }
  const auto home = process();
  FlowBed bed(host, home->factory(), 8);
  Arbeitsblatt1& window = bed.begin(2);
  EXPECT_EQ(window.zaehler[1].text, wrong);
  EXPECT_EQ(window.whlgzaehler.text, repeats);
  EXPECT_EQ(window.matboxanz[15].text, shown);
  EXPECT_EQ(window.zaehler[0].text, "0");

  // Leaving at once asks nothing and leaves the record; one task later the state is stored anew.
  bed.leave(window);
  EXPECT_TRUE(bed.dialogs.shown.empty());
  EXPECT_EQ(stored(*home), saved);
  Arbeitsblatt1& again = bed.open_exercise();
  EXPECT_EQ(again.matboxanz[15].text, shown);
  bed.hear_row();
  bed.answer_row(again, 1);
  bed.dialogs.script = {Reply::yes};
  bed.leave(again);
  EXPECT_NE(stored(*home), saved);
  EXPECT_EQ(stored(*home).array().size(), saved.array().size());
}

TEST_F(LevelFlowTest, SavingIsTriedAgainUntilTheHostTakesItOrTheStudentLeaves) {
  FlowBed bed(host);
  Arbeitsblatt1& window = bed.begin(1);
  bed.answer_row(window);
  host.failing = {"STORE"};
  window.zurueck_click();
  bed.scheduler.advance_ms(50);
  bed.dialogs.answer(Reply::yes);
  bed.scheduler.advance_ms(50);
  ASSERT_EQ(bed.dialogs.shown.size(), 2U);
  EXPECT_EQ(bed.dialogs.shown[1].text, "[1106s]");
  EXPECT_EQ(bed.windows.newest(), &window);
  host.failing.clear();
  bed.dialogs.answer(Reply::yes);
  bed.scheduler.advance_ms(400);
  EXPECT_TRUE(host.records.count("vemo06/A1"));
  bed.result();
}

TEST_F(LevelFlowTest, BothRecordsOfATrainingAreStoredOrNone) {
  /// A training with this many intervals, left with yes, and with no where the host refuses.
  const auto train = [](FakeHost& of, int invzahl) {
    FlowBed bed(of);
    bed.open_settings().click(bed.settings().invzahl[invzahl]);
    bed.settings().choose(bed.settings().training_Combo, 1);
    Arbeitsblatt1& window = bed.open_exercise();
    bed.hear_row();
    bed.answer_row(window);
    bed.dialogs.script = {Reply::yes, Reply::no};
    bed.leave(window);
    return saved_training_entry(bed);
  };
  EXPECT_EQ(train(host, 2), "[565s]");
  const auto taken = host.records;
  ASSERT_EQ(taken.size(), 2U);
  for (const bool had_former : {false, true}) {
    for (const char* refused : {"vemo06/E1", "vemo06/A1"}) {
      SCOPED_TRACE(refused);
      FakeHost of;
      if (had_former) train(of, 1);
      const auto former = of.records;
      of.failing_records = {refused};
      EXPECT_EQ(train(of, 2), had_former ? "[565s]" : "---------------");
      of.records.erase(had_former ? "" : "vemo06/E1");  // settings alone are no training
      EXPECT_EQ(of.records, former);
      of.failing_records.clear();
      train(of, 2);
      EXPECT_EQ(of.records, taken);
    }
  }
}

TEST_F(LevelFlowTest, ATestTakesItsTasksAndEndsWithThem) {
  FlowBed bed(host, 5);
  Einstellung1& settings = bed.open_settings();
  settings.click(settings.abfr_iv[1]);
  settings.choose(settings.temp_Combo, 9);
  settings.choose(settings.training_Combo, 3);
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  ASSERT_TRUE(window.lab_aufgaben.visible);
  window.cmd_test_aus_click();
  EXPECT_FALSE(window.lab_aufgaben.visible || window.stop_uhr.visible);
  EXPECT_FALSE(window.cmd_test_aus.enabled);
  window.cmd_test_ein_click();
  EXPECT_TRUE(window.lab_aufgaben.visible && window.stop_uhr.visible);
  std::map<int, int> asked;
  int tasks = 0;
  while (!finished(window) && tasks < 300) {
    if (tasks++ > 0) bed.next_task(window);
    const std::string left = window.lab_aufgaben.text;
    for (const int i : {0, 1}) ++asked[bed.module.row().iv.at(i)];
    bed.answer_row(window, 0.2);
    EXPECT_NE(window.lab_aufgaben.text, left);
  }
  EXPECT_EQ(window.lab_aufgaben.text, "[462s] 0");
  EXPECT_EQ(tasks % 2, 0);
  EXPECT_EQ(asked.size(), 26U);
  for (const auto& [code, times] : asked) EXPECT_GE(times, 2) << code << ", once in each half";
  EXPECT_FALSE(window.wieder.enabled);
  EXPECT_EQ(FlowBed::lessons(bed.leave(window)).size(), static_cast<std::size_t>(tasks));
  EXPECT_TRUE(bed.dialogs.shown.empty());
}

TEST_F(LevelFlowTest, EveryExamHasItsSettingsAndEndsByTasksAndByTime) {
  struct Exam {
    int tempo, invzahl, tongeschl, abfr_iv, tasks;
    const char* time;
    std::size_t intervals;  ///< of both directions
  };
  constexpr Exam kExams[] = {{1, 1, 0, 0, 38, "[461s] 6 [394s] 40 [480s]", 14},
                             {2, 2, 1, 0, 28, "[461s] 5 [394s] 30 [480s]", 18},
                             {1, 1, 0, 1, 44, "[461s] 8 [394s] 20 [480s]", 26},
                             {2, 2, 1, 1, 34, "[461s] 7 [394s] 40 [480s]", 34},
                             {3, 3, 2, 1, 28, "[461s] 7 [394s] 20 [480s]", 38}};
  for (int prfnr = 1; prfnr <= 5; ++prfnr) {
    SCOPED_TRACE(prfnr);
    const Exam& exam = kExams[prfnr - 1];
    FlowBed bed(host);
    // What was chosen before, another exam at last, leaves no trace.
    Einstellung1& choices = bed.open_settings();
    choices.click(choices.abfr_iv[1 - exam.abfr_iv]);
    choices.click(choices.ton_st_wahl[1]);
    choices.choose(choices.degree_list, 2);
    choices.choose(choices.training_Combo, 4);
    for (const int chosen : {prfnr % 5, prfnr - 1}) choices.choose(choices.prfnr_Comb, chosen);
    EXPECT_TRUE(choices.tongeschl[exam.tongeschl].value && choices.invzahl[exam.invzahl].value);
    EXPECT_TRUE(choices.abfr_iv[exam.abfr_iv].value && choices.abfrage[1].value);
    EXPECT_TRUE(choices.ton_st_wahl[0].value && !choices.degree_list.visible);
    EXPECT_EQ(choices.temp_Combo.selected, exam.tempo);

    Arbeitsblatt1& window = bed.open_exercise();
    bed.hear_row();
    const Settings& now = bed.module.settings();
    EXPECT_EQ((std::array<int, 6>{now.tempo, now.invzahl, now.tongeschl,
                                  static_cast<int>(now.abfr_iv), now.abfrage, now.ton_st_wahl}),
              (std::array{exam.tempo, exam.invzahl, exam.tongeschl, exam.abfr_iv, 1, 0}));
    EXPECT_EQ(window.lab_aufgaben.text, "[462s] " + std::to_string(exam.tasks));
    EXPECT_EQ(window.stop_uhr.text, exam.time);
    std::set<int> asked;
    int tasks = 0;
    for (; !finished(window) && tasks < 300; ++tasks) {
      if (tasks > 0) {  // the keynote chord is the quickest way on
        window.grundton_click();
        bed.scheduler.advance_ms(bed.beat() + 300 + 1800);
        bed.hear_row();
      }
      EXPECT_GE(asked.size() + 2, tasks * 2 < exam.tasks ? 0 : exam.intervals) << "at half time";
      const auto row = bed.module.row().iv.begin();
      asked.insert(row, row + exam.invzahl + 1);
      bed.answer_row(window, 0.1);
    }
    EXPECT_EQ(asked.size(), exam.intervals);
    EXPECT_EQ(tasks, exam.tasks);
    EXPECT_EQ(window.lab_aufgaben.text, "[462s] 0") << "time must not run out for a quick student";
    bed.leave(window);

    Arbeitsblatt1& slow = bed.open_exercise();
    bed.hear_row();
    bed.scheduler.advance_ms(60.0 * 60 * 1000);
    EXPECT_TRUE(finished(slow));
    EXPECT_EQ(slow.stop_uhr.text, "[461s] 0 [394s] 0 [480s]");
    EXPECT_EQ(FlowBed::asked(slow), -1);
    for (const Control& button : slow.st_int) EXPECT_FALSE(button.enabled);
    bed.leave(slow);
  }
}

TEST_F(LevelFlowTest, ABrokenSavedTrainingIsToldAndLeftAsItIs) {
  {
    FlowBed bed(host);
    Arbeitsblatt1& window = bed.begin(1);
    bed.answer_row(window);
    bed.dialogs.script = {Reply::yes};
    bed.leave(window);
  }
  const Variant good = state();
  const auto changed = [&](std::size_t place, const std::string& text) {
    Variant::Array copy = good.array();
    copy.at(place) = text;
    return Variant(copy);
  };
  Variant::Array cut = good.array();
  cut.resize(cut.size() - 4);
  const Variant broken[] = {cut,
                            changed(1, "x"),
                            changed(2, "40000"),
                            changed(1, "99"),
                            Variant::strings({"true"}),
                            changed(good.array().size() - 1, "")};
  for (const Variant& record : broken) {
    state() = record;
    FlowBed bed(host);
    Einstellung1& settings = bed.open_settings();
    settings.choose(settings.training_Combo, 2);
    bed.scheduler.advance_ms(10);
    ASSERT_EQ(bed.dialogs.shown.size(), 1U);
    EXPECT_EQ(bed.dialogs.shown[0].text, "[196s] [565s]");
    EXPECT_EQ(settings.training_Combo.selected, 1);
    EXPECT_EQ(bed.module.settings().Uebungsmodus, Level::training);
    EXPECT_EQ(state(), record);
    bed.open_exercise();
  }
  for (const char* flag : {"True", "False", "NIL", ""}) {
    state() = changed(0, flag);
    FlowBed bed(host);
    bed.open_settings();
    EXPECT_EQ(saved_training_entry(bed), "---------------") << flag;
  }
  // What was read when the level was chosen is gone on with, whatever the host does afterwards.
  state() = good;
  FlowBed bed(host);
  Einstellung1& settings = bed.open_settings();
  settings.choose(settings.training_Combo, 2);
  host.failing = {"READ"};
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  EXPECT_LT(percent(window), 50);
}

}  // namespace
}  // namespace tonarix
