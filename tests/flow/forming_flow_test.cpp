#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "flow/forming_bed.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

// One task for each distance and accuracy: the verdict, the words and the record.
TEST(FormingFlow, AToneIsRightWithinItsAccuracyAndToldInSteps) {
  for (int genau = 0; genau < 5; ++genau) {
    FakeHost host;
    FormingBed bed(host, 3);
    Arbeitsblatt2& window = bed.begin(1, 0, genau);
    std::vector<int> told;
    int rights = 0;
    for (int number = -10; number <= 10; ++number) {
      SCOPED_TRACE(testing::Message() << genau << ": " << number);
      EXPECT_TRUE(window.LabPitch[0].text.empty() && window.pitch_gap.text.empty());
      EXPECT_FALSE(window.pitches());
      const int target = bed.target();
      // The slider reaches to one side farther than to the other.
      const bool reached = target + number <= window.sldPitch.maximum;
      const int steps = reached && target + number >= window.sldPitch.minimum ? number : -number;
      const bool right = std::abs(steps) < 9 - 2 * genau;
      bed.answer(window, steps);
      told.push_back(steps);
      EXPECT_EQ(window.LabPitch[0].text, right ? std::to_string(target + steps) : "");
      EXPECT_EQ(window.ergebnis[1].text == "[232s]", !right);
      for (int more = 0; !right && more < 3; ++more)
        bed.answer(window, steps), told.push_back(steps);
      EXPECT_EQ(window.LabPitch[1].text, std::to_string(target));
      const std::string words[] = {"[1322s]", "[1323s]", "[1324s]", "[1321s]", "[1320s]"};
      EXPECT_EQ(window.pitch_gap.text, words[std::clamp(steps, -2, 2) + 2]);
      EXPECT_EQ(window.ergebnis[1].back, right ? RGB(0, 0, 0) : RGB(228, 228, 224));
      rights += right;
      if (number < 10) bed.next_task(window);
    }
    EXPECT_EQ(rights, 2 * (8 - 2 * genau) + 1);
    EXPECT_EQ(window.zaehler[0].text, std::to_string(rights));
    EXPECT_EQ(window.zaehler[1].text, std::to_string(4 * (21 - rights)));
    std::vector<int> gaps;
    for (const auto& lesson : FlowBed::lessons(bed.leave(window))) {
      for (const auto& answer : lesson) {
        gaps.push_back(std::stoi(answer.at("Pitch Gap")));
        const bool right = std::abs(gaps.back()) < 9 - 2 * genau;
        EXPECT_EQ(answer.at("Antwort"), right ? "true" : "false");
        EXPECT_EQ(answer.count("FalschIv"), right ? 0U : 1U);
        EXPECT_TRUE(right || answer.at("FalschIv").empty());
      }
    }
    EXPECT_EQ(gaps, told);
  }
}

TEST(FormingFlow, AfterAWrongAnswerTheSliderHasToBeMovedFirst) {
  FakeHost host;
  FormingBed bed(host);
  Arbeitsblatt2& window = bed.begin(0);
  EXPECT_TRUE(window.cmdok.open()) << "a task may be answered unmoved, and is wrong then";
  EXPECT_EQ(window.default_button(), &window.cmdok);
  window.cmdok_click();
  const auto colours = [&] {
    return std::pair(*window.ergebnis[1].back, *window.ergebnis[1].fore);
  };
  EXPECT_EQ(colours(), std::pair(RGB(255, 0, 0), RGB(0, 0, 0)));
  EXPECT_FALSE(window.cmdok.open());
  EXPECT_EQ(window.hint.text, "[1318s]");
  const int stood = window.sldPitch.value;
  window.wieder_click();
  EXPECT_FALSE(window.sldPitch.open());
  bed.scheduler.advance_ms(60);
  EXPECT_EQ(window.vorgabe_lab.text, "[616s]");
  window.sldPitch_change(stood + 5);
  EXPECT_EQ(window.sldPitch.value, stood) << "closed while the task sounds";
  bed.hear_task();
  EXPECT_FALSE(window.cmdok.open());
  EXPECT_EQ(window.sldPitch.value, stood);
  EXPECT_EQ(window.whlgzaehler.text, "1");
  EXPECT_EQ(window.sldPitch.back, RGB(255, 128, 0));
  window.sldPitch_change(1000);
  EXPECT_EQ(window.sldPitch.value, window.sldPitch.maximum);
  EXPECT_TRUE(window.cmdok.open());
  window.wieder_click();
  bed.hear_task();
  EXPECT_TRUE(window.cmdok.open()) << "it was moved before the repeat";
  window.cmdok_click();
  EXPECT_EQ(colours(), std::pair(RGB(0, 0, 0), RGB(255, 0, 0)));
  for (const int steps : {20, 20}) bed.answer(window, steps);
  EXPECT_EQ(window.ergebnis[1].text, window.aufg.text) << "the fourth gives the solution";
  EXPECT_EQ(window.phase(), Phase::next_offered);
  EXPECT_EQ(window.sldPitch.back, RGB(255, 224, 192));
  EXPECT_TRUE(window.CmdNextAufg.open() && window.wieder2.open());
  const auto answers = FlowBed::lessons(bed.leave(window)).at(0);
  ASSERT_EQ(answers.size(), 4U);
  for (const auto& answer : answers) EXPECT_EQ(answer.at("interval"), "1");
  EXPECT_EQ(std::stod(answers.at(1).at("Anz Whlg")), 2);
}

TEST(FormingFlow, LevelsEndAndATrainingGoesOn) {
  FakeHost host;
  std::string left;
  {
    FormingBed bed(host);
    Arbeitsblatt2& window = bed.begin(1, 1);
    for (int task = 0; task < 5; ++task) {
      if (task > 0) bed.next_task(window);
      bed.answer(window, 20);
      bed.answer(window, 0);
    }
    left = window.matboxanz[15].text + window.zaehler[1].text;
    bed.dialogs.script = {Reply::yes};
    bed.leave(window);
    EXPECT_TRUE(host.records.contains("vemo06/E2") && host.records.contains("vemo06/A2"));
  }
  {
    FormingBed bed(host, 4);
    Einstellung2& settings = bed.open_settings();
    settings.choose(settings.training_Combo, 2);
    Arbeitsblatt2& window = bed.open_exercise();
    EXPECT_EQ(window.matboxanz[15].text + window.zaehler[1].text, left);
    for (int task = 0; task < 300 && !is_over(window.phase()); ++task) {
      task > 0 ? bed.next_task(window) : bed.hear_task();
      bed.answer(window, 0);
    }
    EXPECT_EQ(window.phase(), Phase::training_finished);
    EXPECT_EQ(host.records["vemo06/A2"], Variant::strings({"False"}));
    EXPECT_EQ(window.zurueck.text, "[625s]");
    bed.leave(window);
  }
  for (const int level : {3, 4}) {
    FormingBed bed(host, 5);
    Arbeitsblatt2& window = bed.begin(1, level);
    // Of each task five beats and a second are heard, or three beats, and then come 1.8 + 5 s.
    int minutes = 0, seconds = 0, all = 0, tasks = 0;
    std::sscanf(window.stop_uhr.text.c_str(), "[461s] %d [394s] %d", &minutes, &seconds);
    std::sscanf(window.lab_aufgaben.text.c_str(), "[462s] %d", &all);
    const double estimate = all * (level == 4 ? 7.5 + 1 + 6.8 : 0.9 + 6.8);
    EXPECT_NEAR(minutes * 60 + seconds, estimate, 10);
    for (; !is_over(window.phase()); ++tasks) {
      if (tasks > 0) bed.next_task(window);
      bed.answer(window, 0);
    }
    EXPECT_EQ(window.phase(), Phase::test_finished);
    EXPECT_EQ(window.zaehler[0].text, std::to_string(tasks));
    bed.leave(window);
  }
}

// Left at every moment of a task with its answer and control: nothing sounds on, the sheet comes.
TEST(FormingFlow, ItCanBeLeftAtEachOfItsWaits) {
  for (double moment = 0; moment < 8500; moment += 37) {
    SCOPED_TRACE(moment);
    FakeHost host;
    FormingBed bed(host);
    Einstellung2& settings = bed.open_settings();
    settings.choose(settings.temp_Combo, 9);
    settings.click(settings.grd_ton[0]);
    Arbeitsblatt2& window = bed.open_exercise();
    double heard = std::min(moment, 4000.0);
    bed.scheduler.advance_ms(heard);
    if (moment > 4000) {
      window.sldPitch_change(bed.target());
      window.cmdok_click();
      window.wieder2_click();
      bed.scheduler.advance_ms(moment - 4000);
    }
    window.zurueck_click();
    bed.scheduler.advance_ms(10);
    const std::size_t notes = bed.devices.notes().size();
    bed.scheduler.advance_ms(400);
    bed.result();
    bed.scheduler.advance_ms(20000);
    EXPECT_EQ(bed.devices.notes().size(), notes);
    EXPECT_TRUE(bed.dialogs.shown.empty());
  }
}

/// Its help texts are those of the language "test".
struct TestLanguage final : LanguageObject {
  std::string Wort(const std::string& key) override { return key == "705s" ? "test" : key; }
};

TEST(FormingFlow, TheHelpPageStandsInTheSlidersPlaceAndStopsTheClock) {
  FakeHost host;
  LanguageLibraries texts = key_languages();
  texts.create_language = [](const std::string&) { return std::make_unique<TestLanguage>(); };
  for (const char* source : {"{\\rtf1 Form a \\b tone\\b0 .}", "no page"}) {
    TemporaryFolder folder;
    folder.write("vemo06/txt_test/tb06_bildenIv_test.rtf", source);
    FormingBed bed(host, texts, folder.path);
    bed.open();
    Arbeitsblatt2& window = bed.begin(1);
    const bool readable = *source == '{';
    window.cmdHilfe_click();
    EXPECT_EQ(bed.dialogs.shown.size(), readable ? 0U : 1U) << "without a page the usual help";
    EXPECT_EQ(window.RTxtBox.visible, readable);
    if (!readable) continue;
    EXPECT_EQ(window.help_page(), "<p>Form a <b>tone</b>.</p>");
    EXPECT_FALSE(window.sldPitch.open() || window.cmdok.open());
    bed.scheduler.advance_ms(60000);
    window.help_close_click();
    EXPECT_TRUE(window.sldPitch.open() && window.cmdok.open() && !window.RTxtBox.visible);
    for (const bool again : {true, false}) {
      window.cmdHilfe_click();
      EXPECT_EQ(window.RTxtBox.visible, again) << "the help key closes it too";
    }
    bed.answer(window, 0);
    window.cmdHilfe_click();
    EXPECT_FALSE(window.CmdNextAufg.open()) << "nothing begins behind it";
    window.help_close_click();
    bed.next_task(window);
    bed.answer(window, 0);
    for (const auto& lesson : FlowBed::lessons(bed.leave(window))) {
      EXPECT_LT(std::stod(lesson.at(0).at("AntwDau")), 100);
    }
  }
}

TEST(FormingFlow, TheTaskIsToldBeforeItSoundsAndTimeUpEndsTheTone) {
  FakeHost host;
  FormingBed bed(host);
  Einstellung2& settings = bed.open_settings();
  settings.choose(settings.training_Combo, 4);
  Arbeitsblatt2& window = bed.open_exercise();
  bed.scheduler.advance_ms(200);
  EXPECT_EQ(window.phase(), Phase::sounding);
  EXPECT_EQ(window.question.text, "[1316s]");
  bed.scheduler.advance_ms(700'000);
  EXPECT_EQ(window.phase(), Phase::time_up);
  EXPECT_FALSE(window.sldPitch.open() || window.cmdok.open());
  EXPECT_EQ(bed.devices.log.back().message.status & 0xF0, 0xC0) << "the programs, after the notes";
}

TEST(FormingFlow, TroubleEndsTidyOrLeavesTheTaskOpen) {
  FakeHost host;
  {
    FormingBed bed(host);
    Einstellung2& settings = bed.open_settings();
    settings.click(settings.stimm_g[1]);
    bed.open_exercise();
    bed.scheduler.advance_ms(3000);
    EXPECT_EQ(bed.dialogs.shown.size(), 1U) << "this tuning has no tones here";
    EXPECT_EQ(std::ranges::count(host.error_places(), "vemo06.mat_wahl."), 1);
    bed.result().cmdOk_click();
    bed.scheduler.advance_ms(500);
    EXPECT_TRUE(bed.documents.written.size() == 1 && bed.devices.notes().empty());
    EXPECT_TRUE(bed.newest<Einstellung2>().visible);
  }
  {
    FormingBed bed(host);
    Arbeitsblatt2& window = bed.begin(1, 1);
    bed.answer(window, 0);
    bed.dialogs.script = {Reply::yes};
    bed.leave(window);
  }
  Variant::Array slots = host.records["vemo06/E2"].array();
  slots.at(11) = "1";
  host.records["vemo06/E2"] = slots;
  {
    FormingBed bed(host);
    Einstellung2& settings = bed.open_settings();
    settings.choose(settings.training_Combo, 2);
    EXPECT_EQ(bed.module.settings().stimm_g, 1) << "a stored training may hold that tuning too";
    bed.open_exercise();
    bed.scheduler.advance_ms(3000);
    EXPECT_EQ(bed.dialogs.shown.size(), 1U);
    EXPECT_EQ(bed.windows.newest()->name(), "testergebnis");
  }
  FormingBed bed(host);
  Arbeitsblatt2& window = bed.begin();
  bed.devices.refuses = true;
  window.wieder_click();
  bed.hear_task();
  EXPECT_EQ(bed.dialogs.shown.size(), 1U);
  EXPECT_TRUE(window.sldPitch.open() && window.wieder.open());
  for (const int step : {1, 2, 3}) window.sldPitch_change(window.sldPitch.value + step);
  EXPECT_EQ(bed.dialogs.shown.size(), 1U) << "a silent device is not asked again";
  bed.devices.refuses = false;
  window.wieder_click();
  bed.hear_task();
  EXPECT_EQ(bed.devices.notes().back().channel, 4);
  bed.answer(window, 0);
  EXPECT_EQ(window.zaehler[0].text, "1");
}

}  // namespace
}  // namespace tonarix
