#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "flow/flow_bed.h"

namespace tonarix {
namespace {

struct WindowFlowTest : testing::Test {
  int mark(const Arbeitsblatt1& window) const {
    for (const Control& one : window.sounding) {
      if (one.visible) return *one.index();
    }
    return -1;
  }
  FakeHost host;
  FlowBed bed{host};
};

TEST_F(WindowFlowTest, EveryMomentSaysWhatComesAndNumbersTheNextTask) {
  bed.open_settings().click(bed.settings().abfrage[1]);
  Arbeitsblatt1& window = bed.open_exercise();
  const auto lines = [&] { return window.question.text + window.hint.text; };
  EXPECT_EQ(lines(), "[1140s][1110s]");
  bed.hear_row();
  window.grundton_click();
  EXPECT_EQ(window.hint.text, "[1122s]");
  bed.hear_row();
  EXPECT_EQ(lines(), "[1158s][1148s]");
  bed.answer_row(window);
  EXPECT_EQ(lines(), "[1141s][1109s]");
  for (const bool by_keynote : {false, true}) {
    by_keynote ? window.grundton_click() : window.wieder2_click();
    EXPECT_EQ(window.hint.text, by_keynote ? "[1122s]" : "[1110s]");
    EXPECT_FALSE(window.LbNextAufg.visible);
    bed.scheduler.advance_ms(bed.beat() * (by_keynote ? 1 : bed.tones()) + 300);
    EXPECT_EQ(lines(), "[1121s][1143s]");
    EXPECT_EQ(window.default_button(), nullptr) << "Return takes nothing back";
    EXPECT_EQ(window.LbNextAufg.text, "[129s] 2");
  }
  bed.scheduler.advance_ms(1800);
  EXPECT_EQ(window.CmdNextAufg.text, "[129s] 3");
}

TEST_F(WindowFlowTest, WhoDoesNotSeeTheScreenIsToldEachStepOnce) {
  bed.open_settings().click(bed.settings().tongeschl[0]);
  Arbeitsblatt1& window = bed.open_exercise();
  std::vector<std::string> news;
  window.on_announced = [&](const std::string& one) { news.push_back(one); };
  const auto told = [&] { return std::exchange(news, {}); };
  using Lines = std::vector<std::string>;
  const std::string asked = "[1158s]";
  bed.hear_row();
  EXPECT_EQ(told(), Lines{"[1165s]. " + asked});
  bed.press(window, bed.wrong_code(window, 0));
  EXPECT_EQ(told(), Lines{"[232s], [1163s]."});
  window.grundton_click();
  EXPECT_EQ(told(), Lines{"[1122s]"});
  bed.hear_row();
  EXPECT_EQ(told(), Lines{"[1165s]. " + asked});
  bed.press(window, bed.right_code(0));
  EXPECT_EQ(told(), Lines{"[468s]: " + window.ergebnis[0].text + "."});
  for (const char* verdict : {"[232s], [1163s].", "[232s], [1163s].", "[232s], [1164s]."}) {
    bed.press(window, bed.wrong_code(window, 1));
    EXPECT_EQ(told(), Lines{verdict});
  }
  bed.press(window, bed.wrong_code(window, 1));
  EXPECT_EQ(told(), Lines{"[232s], " + window.ergebnis[1].text + ". [1166s]. [1141s]"});
  window.wieder2_click();
  bed.hear_row();
  EXPECT_EQ(told(), (Lines{"[1110s]", "[1142s]"}));
  bed.scheduler.advance_ms(60000);
  EXPECT_EQ(told(), Lines{}) << "the clock is no news";
}

TEST_F(WindowFlowTest, BreakingOffARunningTestIsAskedFirstWhileItsTimeGoesOn) {
  for (const bool by_button : {true, false}) {
    Arbeitsblatt1& window = bed.begin(by_button ? 3 : 4);
    const auto ask = [&] { by_button ? window.zurueck_click() : window.title_bar_close(); };
    for (int time = 0; time < 2; ++time) ask();
    EXPECT_EQ(bed.dialogs.shown.back().text, by_button ? "[1159s]" : "[1160s]");
    EXPECT_EQ(bed.dialogs.shown.back().usual, Reply::no);
    const std::string left = window.stop_uhr.text;
    bed.scheduler.advance_ms(10000);
    EXPECT_NE(window.stop_uhr.text, left);
    bed.dialogs.answer(Reply::no);
    ASSERT_FALSE(bed.dialogs.open()) << "asked once";
    bed.answer_row(window);
    EXPECT_EQ(window.phase(), Phase::next_offered) << "without hearing the row again";
    ask();
    bed.scheduler.advance_ms(3600e3);  // the end comes while it is asked
    EXPECT_EQ(window.phase(), Phase::time_up);
    bed.dialogs.answer(by_button ? Reply::no : Reply::yes);
    if (by_button) window.zurueck_click();
    bed.scheduler.advance_ms(400);
    bed.result().cmdOk_click();
    bed.scheduler.advance_ms(400);
    bed.settings().click(bed.settings().cmdZurueck);
    bed.scheduler.advance_ms(50);
  }
  EXPECT_EQ(bed.documents.written.size(), 2U);
}

TEST_F(WindowFlowTest, ABoxTakesNoAnswerTimeAndNothingBeginsBehindIt) {
  for (const bool help : {true, false}) {  // or the question whether to break off
    bed.open_settings().click(bed.settings().abfrage[1]);
    bed.settings().choose(bed.settings().training_Combo, help ? 1 : 3);
    Arbeitsblatt1& window = bed.open_exercise();
    bed.dialogs.hold = true;
    const auto read = [&](double ms) {
      help ? window.cmdHilfe_click() : window.zurueck_click();
      bed.scheduler.advance_ms(ms);
      bed.dialogs.answer(help ? Reply::ok : Reply::no);
    };
    for (int time = 0; time < 2; ++time) read(30000);  // first while the task sounds
    bed.answer_row(window, 0.5);
    if (help) window.wieder2_click();
    for (int time = 0; time < 2; ++time) read(60000);  // first while the control sounds
    EXPECT_EQ(window.phase(), Phase::next_offered);
    bed.scheduler.advance_ms(1800);
    EXPECT_EQ(window.phase(), Phase::sounding);
    bed.dialogs.script = {help ? Reply::no : Reply::yes};
    const auto lessons = FlowBed::lessons(bed.leave(window));
    EXPECT_LT(std::stod(lessons[0][0].at("AntwDau")), 20) << "tenths of a second";
    bed.settings().click(bed.settings().cmdZurueck);
    bed.scheduler.advance_ms(50);
  }
}

TEST_F(WindowFlowTest, TheToneThatSoundsIsMarkedForItsBeatAndNoLonger) {
  bed.open_settings();
  Arbeitsblatt1& window = bed.open_exercise();
  while (mark(window) < 0) bed.scheduler.advance_ms(1);
  for (int tone = 0; tone < bed.tones(); ++tone) {
    bed.scheduler.advance_ms(bed.beat() * 0.5);
    EXPECT_EQ(mark(window), tone);
    bed.scheduler.advance_ms(bed.beat() * 0.45);
    EXPECT_EQ(mark(window), tone + 1 < bed.tones() ? tone : -1) << "the queue has run out";
    bed.scheduler.advance_ms(bed.beat() * 0.05);
  }
}

TEST_F(WindowFlowTest, TheDocumentTellsTheBendsAndTheFieldsTheDirection) {
  Einstellung1& settings = bed.open_settings();
  for (OptionControl* one : {&settings.frequenz[1], &settings.stimm_g[2], &settings.abfr_iv[1]}) {
    settings.click(*one);
  }
  Arbeitsblatt1& window = bed.open_exercise();
  std::vector<int> bends;
  for (int task = 0; task < 4; ++task) {
    if (task > 0) bed.next_task(window);
    bed.hear_row();
    for (int place = 0; place < bed.tones(); ++place) {
      const auto& log = bed.devices.log;
      const auto bend = std::find_if(log.rbegin(), log.rend(), [&](const auto& entry) {
        return entry.message.status == 0xE2 + place;
      });
      bends.push_back(bend->message.data2 - 64);
    }
    bed.answer_row(window);
    for (int i = 0; i <= 1; ++i) {
      const bool rises = bed.module.row().iv[static_cast<std::size_t>(i)] > 0;
      EXPECT_EQ(window.ergebnis[i].text[0], rises ? '+' : '-');
    }
  }
  const pugi::xml_node exercise = bed.leave(window);
  std::vector<int> told;
  for (const auto& found : exercise.select_nodes("//property[@key='PB-Abweichung']")) {
    told.push_back(found.node().attribute("value").as_int());
  }
  EXPECT_EQ(told, bends);
}

TEST_F(WindowFlowTest, ATestThatIsDoneHasNoMoreTimeToLose) {
  Arbeitsblatt1& window = bed.begin(3);
  for (int task = 0; window.phase() != Phase::test_finished; ++task) {
    if (task > 0) bed.next_task(window);
    bed.answer_row(window, 0.1);
  }
  const std::string left = window.stop_uhr.text;
  bed.scheduler.advance_ms(3600 * 1000.0);
  EXPECT_EQ(window.stop_uhr.text, left);
  EXPECT_EQ(window.phase(), Phase::test_finished);
}

TEST(TestListFlow, ATestAsksEveryIntervalOnceInEachHalf) {
  FakeHost host;
  FlowBed bed(host, 5);
  Einstellung1& settings = bed.open_settings();
  settings.click(settings.abfr_iv[1]);
  settings.choose(settings.temp_Combo, 9);
  settings.choose(settings.training_Combo, 3);
  Arbeitsblatt1& window = bed.open_exercise();
  bed.hear_row();
  std::map<int, int> asked;
  for (int task = 0; window.phase() != Phase::test_finished; ++task) {
    ASSERT_LT(task, 300);
    if (task > 0) bed.next_task(window);
    for (const int i : {0, 1}) ++asked[bed.module.row().iv.at(i)];
    bed.answer_row(window, 0.1);
  }
  EXPECT_EQ(asked.size(), 26U);
  for (const auto& [code, times] : asked) EXPECT_GE(times, 2) << code;
}

TEST_F(WindowFlowTest, TheSheetStandsAWhileAndTheProtocolWaitsForItsEnd) {
  for (const double closed_after : {1.0, 2000.0}) {
    Arbeitsblatt1& window = bed.begin();
    const std::size_t written = bed.documents.written.size();
    window.zurueck_click();
    EXPECT_FALSE(window.zurueck.enabled);
    bed.scheduler.advance_ms(closed_after);
    EXPECT_EQ(bed.documents.written.size(), written);
    EXPECT_TRUE(window.hint.visible && !window.WaitMeldung.visible);
    window.on_changed = [&] { EXPECT_FALSE(window.hint.visible && window.WaitMeldung.visible); };
    bed.result().cmdOk_click();
    bed.scheduler.advance_ms(200);
    EXPECT_EQ(bed.documents.written.size(), closed_after < 300 ? written : written + 1);
    bed.scheduler.advance_ms(100);
    EXPECT_EQ(bed.documents.written.size(), written + 1);
    bed.settings().click(bed.settings().cmdZurueck);
    bed.scheduler.advance_ms(50);
  }
}

TEST_F(WindowFlowTest, AKeptTrainingGoesOnFromItsLastStateAndLeavesTheListWhenItIsUsedUp) {
  const auto segments = [](const Arbeitsblatt1& window) {
    int filled = 0;
    for (int part = 0; part < 15; ++part) filled += window.matboxanz[part].back.has_value();
    return filled;
  };
  Arbeitsblatt1* window = &bed.begin(1);
  EXPECT_EQ(segments(*window), 8);
  std::string percent;
  for (int round = 0; round < 2; ++round) {
    for (int task = 0; task < 4; ++task) {
      if (task > 0) bed.next_task(*window);
      bed.answer_row(*window);
    }
    percent = window->matboxanz[15].text;
    bed.dialogs.script = {Reply::yes};
    bed.leave(*window);
    if (round == 0) bed.settings().choose(bed.settings().training_Combo, 2);
    window = &bed.open_exercise();
    EXPECT_EQ(window->matboxanz[15].text, percent);
    bed.hear_row();
  }
  for (int task = 0; window->phase() != Phase::training_finished; ++task) {
    if (task > 0) bed.next_task(*window);
    bed.answer_row(*window);
  }
  EXPECT_EQ(segments(*window), 0);
  bed.leave(*window);
  EXPECT_EQ(bed.settings().training_Combo.items.at(2).text, "---------------");
  EXPECT_EQ(bed.settings().training_Combo.selected, 1);
}

}  // namespace
}  // namespace tonarix
