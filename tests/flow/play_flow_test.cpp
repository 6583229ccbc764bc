#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "flow/play_bed.h"

namespace tonarix {
namespace {

/// The bend a channel had last, -1 where it was never bent.
int bend_of(const PlayBed& bed, int channel) {
  int last = -1;
  for (const auto& entry : bed.devices.log) {
    if (entry.message.status == (0xE0 | channel)) last = entry.message.data2;
  }
  return last;
}

/// The last tone of the host's log that was moved into the range, with its new note.
std::pair<int, int> moved_last(const FakeHost& host, std::size_t from) {
  std::pair<int, int> last{-1, 0};
  for (; from < host.calls.size(); ++from) {
    const FakeHost::Call& call = host.calls[from];
    if (call.key != "LOGMESS") continue;
    EXPECT_EQ(call.input.text().find("Komplement"), std::string::npos) << "a degree has none";
    if (call.input.text().find("scheinbare") != std::string::npos) continue;
    std::sscanf(call.input.text().c_str(), "  Ton %d = außerhalb  inv_ton(i, 0) neu %d",
                &last.first, &last.second);
  }
  return last;
}

// Each tone that is pressed sounds as it did in the row.
TEST(PlayFlow, EveryCombinationIsPlayedBackAsItSounded) {
  int moved_tones = 0;
  for (int number = 0; number < 4 * 3 * 3 * 2; ++number) {
    SCOPED_TRACE(number);
    const int invzahl = number % 4 + 1;
    FakeHost host;
    PlayBed bed(host, static_cast<std::uint64_t>(number));
    Einstellung1& settings = bed.open_settings();
    EXPECT_FALSE(settings.grdeinst[6].visible);
    settings.click(settings.E_Oktav[number % 3 + 1]);
    settings.click(settings.invzahl[invzahl]);
    settings.click(settings.tongeschl[number / 4 % 3]);
    settings.click(settings.stimm_g[number / 12 % 3]);
    settings.click(settings.frequenz[number / 36]);
    settings.click(settings.Tonart[number % 2]);
    settings.choose(settings.temp_Combo, 9);
    std::size_t logged = host.calls.size();
    Arbeitsblatt3& window = bed.open_exercise();
    const KeyRange keys = window.keys();
    for (int task = 0; task < 2; ++task) {
      const auto [moved, note] = moved_last(host, std::exchange(logged, host.calls.size()));
      EXPECT_TRUE(moved < 0 || invzahl == 1 || bed.tone(moved).chr == note);
      moved_tones += moved >= 0;
      bed.scheduler.advance_ms(300);
      bed.press(window, bed.field(0));
      EXPECT_EQ(PlayBed::asked(window), 0) << "closed while the row sounds";
      bed.hear_row();
      EXPECT_EQ(window.keys(), keys) << "the picture stays";
      EXPECT_EQ(std::ranges::count_if(window.ergPic, &Control::visible), invzahl + 2);
      for (int place = 0; place <= invzahl + 1; ++place) {
        EXPECT_EQ(PlayBed::asked(window), place);
        const int channel = number / 12 == 0 ? 0 : place + 2;
        const int bend = bend_of(bed, channel);
        bed.press(window, bed.field(place));
        const auto sounded = bed.devices.notes().back();
        EXPECT_EQ(std::pair(sounded.channel, sounded.note),
                  std::pair(channel, int{bed.tone(place).chr}));
        EXPECT_EQ(bend_of(bed, channel), bend);
        EXPECT_EQ(window.ergPic[place].back, signal::right);
      }
      EXPECT_EQ(window.phase(), Phase::next_offered);
      if (task == 0) logged = host.calls.size(), window.CmdNextAufg_click();
    }
    EXPECT_EQ(window.zaehler[0].text, std::to_string(2 * (invzahl + 1)));
    for (const auto& answers : FlowBed::lessons(bed.leave(window))) {
      int place = 0;
      for (const auto& facts : answers) {
        EXPECT_EQ(facts.at("interval"), std::to_string(++place));
        EXPECT_EQ(facts.at("Antwort"), "true");
      }
      EXPECT_EQ(place, invzahl + 1);
    }
    EXPECT_TRUE(bed.dialogs.shown.empty() && host.error_places().empty());
  }
  EXPECT_GT(moved_tones, 20);
}

struct PlayFlowTest : testing::Test {
  FakeHost host;
  PlayBed bed{host, 2};
};

TEST_F(PlayFlowTest, TheFirstClickOnlyTestsTheField) {
  Arbeitsblatt3& window = bed.begin();
  int rights = 0;
  for (const bool wrong_field : {true, false}) {
    const Field right = bed.field(0);
    EXPECT_EQ(window.hint.text, "[1335s]");
    EXPECT_FALSE(window.finished_tone() || window.warnung[0].visible);
    window.taste_down(right.key, std::nullopt);
    window.taste_down(20, 3);
    EXPECT_EQ(PlayBed::asked(window), 0) << "no field with a name";
    const auto heard = bed.devices.notes().size();
    const int key = right.key + (right.key > window.keys().highest - 12 ? -12 : 12);
    bed.press(window, {key, wrong_field ? right.band % 2 + 1 : right.band});
    EXPECT_EQ(bed.devices.notes().size(), heard + 1);
    EXPECT_EQ(PlayBed::asked(window), 1);
    EXPECT_EQ(window.finished_tone(), right) << "the key that was meant";
    EXPECT_EQ(window.warnung[0].visible, wrong_field);
    EXPECT_TRUE(!wrong_field || window.warnung[0].back == RGB(255, 255, 0));
    EXPECT_EQ(window.ergPic[0].back, wrong_field ? signal::given : signal::right);
    EXPECT_EQ(window.hint.text, wrong_field ? "[1350s]" : "[1334s]");
    EXPECT_EQ(window.zaehler[0].text, std::to_string(rights));
    bed.play_row(window);
    rights += 2;
    if (wrong_field) bed.next_task(window);
  }
  EXPECT_EQ(window.zaehler[1].text, "0");
  EXPECT_TRUE(bed.dialogs.shown.empty());
}

TEST_F(PlayFlowTest, AWrongKeyIsLockedUntilItsToneIsDoneOrHeardAgain) {
  Arbeitsblatt3& window = bed.begin();
  bed.press(window, bed.field(0));
  const Field wrong = bed.wrong(window, 1);
  const auto colours = [&] { return std::pair(*window.ergPic[1].back, *window.ergPic[1].fore); };
  bed.press(window, wrong);
  EXPECT_EQ(colours(), std::pair(signal::wrong, signal::black));
  EXPECT_FALSE(window.taste[wrong.key].back);
  const auto heard = bed.devices.notes().size();
  bed.press(window, wrong);
  EXPECT_TRUE(window.zaehler[1].text == "1" && bed.devices.notes().size() == heard);
  window.grundton_click();
  bed.hear(window);
  EXPECT_FALSE(window.taste[wrong.key].open());
  window.wieder_click();
  bed.hear(window);
  EXPECT_TRUE(window.taste[wrong.key].open());
  bed.press(window, wrong);
  EXPECT_EQ(colours(), std::pair(signal::black, signal::wrong));
  EXPECT_EQ(window.tries[1].text, "2");
  bed.press(window, bed.field(1));
  EXPECT_TRUE(window.taste[wrong.key].open());
  const KeyRange keys = window.keys();
  window.taste_down(keys.lowest - 1, 1);
  window.taste_down(keys.highest + 1, 1);
  EXPECT_EQ(PlayBed::asked(window), 2) << "hidden keys stay hidden";
}

TEST_F(PlayFlowTest, AKeySoundsUntilItIsLetGoOrSomethingElseSounds) {
  Arbeitsblatt3& window = bed.begin();
  const auto status = [&] { return bed.devices.log.back().message.status & 0xF0; };
  const Field first = bed.field(0);
  window.taste_down(first.key, first.band);
  EXPECT_EQ(window.taste[first.key].back, RGB(255, 224, 192));
  bed.scheduler.advance_ms(3000);
  EXPECT_EQ(status(), 0x90);
  window.taste_up();
  EXPECT_EQ(status(), 0x80);
  EXPECT_EQ(bed.devices.log.back().message.data1, bed.tone(0).chr);
  EXPECT_FALSE(window.taste[first.key].back);
  const auto sent = bed.devices.log.size();
  window.taste_up();
  EXPECT_EQ(bed.devices.log.size(), sent);
  for (int place = 1; place <= 2; ++place) {
    window.taste_down(bed.field(place).key, bed.field(place).band);
    EXPECT_EQ(status(), 0x90);
  }
  EXPECT_EQ(bed.devices.log.at(bed.devices.log.size() - 2).message.status & 0xF0, 0x80);
  EXPECT_TRUE(window.taste[bed.field(2).key].back) << "the last key of a row sounds on";
  window.wieder2_click();
  EXPECT_FALSE(window.taste[bed.field(2).key].back);
  bed.hear_row();
  const auto heard = bed.devices.log.size();
  window.taste_up();
  EXPECT_EQ(bed.devices.log.size(), heard);
}

TEST_F(PlayFlowTest, ATrainingGoesOnAndTestsHaveTheirOwnLength) {
  std::string left;
  {
    Arbeitsblatt3& window = bed.begin(1);
    for (int task = 0; task < 4; ++task) {
      if (task > 0) bed.next_task(window);
      bed.play_row(window, 1, 0.5);
    }
    left = window.matboxanz[15].text + window.zaehler[1].text;
    bed.dialogs.script = {Reply::yes};
    bed.leave(window);
    EXPECT_TRUE(host.records.contains("vemo06/E3") && host.records.contains("vemo06/A3"));
  }
  {
    PlayBed next(host, 3);
    Einstellung1& settings = next.open_settings();
    settings.choose(settings.training_Combo, 2);
    Arbeitsblatt3& window = next.open_exercise();
    EXPECT_EQ(window.matboxanz[15].text + window.zaehler[1].text, left);
    next.hear_row();
    for (int task = 0; task < 300 && !is_over(window.phase()); ++task) {
      if (task > 0) next.next_task(window);
      next.play_row(window, 1);
    }
    EXPECT_EQ(window.phase(), Phase::training_finished);
    EXPECT_EQ(host.records["vemo06/A3"], Variant::strings({"False"}));
    next.leave(window);
  }
  // tempo, tones more than two, mode, chosen degree; exam or none; tasks, minutes, seconds
  const int lengths[][8] = {{1, 1, 0, 0, 0, 38, 6, 40}, {0, 4, 2, 0, 0, 20, 8, 0},
                            {9, 1, 0, 0, 0, 38, 4, 20}, {9, 1, 0, 1, 0, 56, 4, 30},
                            {9, 4, 0, 0, 0, 18, 4, 10}, {0, 1, 2, 1, 0, 66, 10, 50},
                            {0, 0, 0, 0, 5, 34, 8, 50}, {0, 0, 0, 0, 4, 40, 9, 0}};
  for (const auto& at : lengths) {
    SCOPED_TRACE(at[5]);
    PlayBed test(host);
    Einstellung1& settings = test.open_settings();
    settings.choose(settings.training_Combo, at[4] ? 4 : 3);
    if (at[4]) {
      settings.choose(settings.prfnr_Comb, at[4] - 1);
    } else {
      settings.click(settings.tongeschl[at[2]]);
      settings.choose(settings.temp_Combo, at[0]);
      settings.click(settings.invzahl[at[1]]);
      settings.click(settings.ton_st_wahl[at[3]]);
    }
    Arbeitsblatt3& window = test.open_exercise();
    int minutes = 0, seconds = 0, all = 0;
    std::sscanf(window.stop_uhr.text.c_str(), "[461s] %d [394s] %d", &minutes, &seconds);
    std::sscanf(window.lab_aufgaben.text.c_str(), "[462s] %d", &all);
    EXPECT_EQ(all, at[5]);
    EXPECT_EQ(minutes * 60 + seconds, at[6] * 60 + at[7]);
    if (!at[4]) continue;
    EXPECT_EQ(test.module.settings().abfr_iv, Naming::from_tone_before);
    test.hear_row();
    if (at[4] == 4) {
      window.taste_down(test.field(0).key, test.field(0).band);
      test.scheduler.advance_ms(3600e3);
      EXPECT_EQ(window.phase(), Phase::time_up);
      const auto sent = test.devices.log.size();
      window.taste_up();
      EXPECT_EQ(test.devices.log.size(), sent) << "silent since the time was up";
      continue;
    }
    int tasks = 0;
    for (; !is_over(window.phase()); ++tasks) {
      if (tasks > 0) test.next_task(window);
      test.play_row(window, 0.3);
    }
    EXPECT_EQ(window.phase(), Phase::test_finished);
    EXPECT_EQ(tasks, all);
    test.leave(window);
    settings.choose(settings.training_Combo, 0);
    EXPECT_EQ(test.module.settings().abfr_iv, Naming::from_keynote);
  }
}

// Left at every moment of a task, with a key down: nothing sounds on.
TEST_F(PlayFlowTest, ItCanBeLeftAtAnyMoment) {
  for (double moment = 0; moment < 5000; moment += 61) {
    SCOPED_TRACE(moment);
    PlayBed one(host);
    Arbeitsblatt3& window = [&]() -> Arbeitsblatt3& {
      Einstellung1& settings = one.open_settings();
      settings.choose(settings.temp_Combo, 9);
      return one.open_exercise();
    }();
    one.scheduler.advance_ms(std::min(moment, 2000.0));
    if (moment > 2000) {
      for (int place = 0; place <= 2; ++place) {
        window.taste_down(one.field(place).key, one.field(place).band);
      }
      if (moment > 3000) window.wieder2_click();
      one.scheduler.advance_ms(moment - 2000);
    }
    window.zurueck_click();
    one.scheduler.advance_ms(10);
    const std::size_t notes = one.devices.notes().size();
    window.taste_up();
    window.taste_down(one.field(0).key, one.field(0).band);
    one.scheduler.advance_ms(20000);
    EXPECT_EQ(one.devices.notes().size(), notes);
    one.result();
    EXPECT_TRUE(one.dialogs.shown.empty());
  }
}

TEST_F(PlayFlowTest, OnASilentDeviceKeysAreStillAnswers) {
  Arbeitsblatt3& window = bed.begin();
  bed.press(window, bed.field(0));
  bed.devices.refuses = true;
  window.wieder_click();
  bed.hear_row();
  EXPECT_EQ(bed.dialogs.shown.size(), 1U);
  bed.press(window, bed.field(1));
  EXPECT_EQ(PlayBed::asked(window), 2);
  EXPECT_EQ(bed.dialogs.shown.size(), 1U) << "told once";
  bed.devices.refuses = false;
  window.wieder_click();
  bed.hear_row();
  const auto heard = bed.devices.notes().size();
  bed.play_row(window);
  EXPECT_EQ(bed.devices.notes().size(), heard + 1);
  EXPECT_EQ(window.zaehler[0].text, "2");
  bed.next_task(window);
  bed.devices.deaf = true;
  bed.press(window, bed.field(0));
  EXPECT_EQ(PlayBed::asked(window), 1) << "the press that finds it out counts too";
  bed.play_row(window);
  EXPECT_EQ(bed.dialogs.shown.size(), 2U) << "told once";
  EXPECT_EQ(window.zaehler[0].text, "4");
}

}  // namespace
}  // namespace tonarix
