#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "flow/play_bed.h"

namespace tonarix {
namespace {

/// How the first interval of a task of two is played, and what it comes to.
struct Played {
  const char* how;  ///< presses: x wrong, o another octave, s another spelling, r right
  double first;     ///< seconds to the first click, which begins the row
  double second;    ///< seconds to the press after it
  int repeats;      ///< before the first click
  float rf;         ///< what its weight takes
};

// A late first click counts for the first interval, and a wrong tone is asked more from then on.
TEST(PlayFlow, WhatAToneEarns) {
  const Played cases[] = {{"r", 2, 2, 0, -4},      {"r", 2, 2.1, 0, -3}, {"r", 2.1, 2, 0, -3},
                          {"r", 3, 2.6, 0, -1.2F}, {"r", 2, 2, 2, -2},   {"o", 9, 9, 0, 1},
                          {"s", 1, 1, 2, 3},       {"xr", 1, 1, 1, 3},   {"xs", 1, 1, 0, 3},
                          {"xxo", 1, 1, 0, 5},     {"xxxx", 1, 1, 0, 8}};
  for (const Played& at : cases) {
    SCOPED_TRACE(at.how);
    FakeHost host;
    PlayBed bed(host, 5);
    bed.open_settings().click(bed.settings().E_Oktav[2]);
    bed.settings().choose(bed.settings().training_Combo, 1);
    Arbeitsblatt3& window = bed.open_exercise();
    bed.hear(window);
    for (int i = 0; i < at.repeats; ++i) {
      window.wieder_click();
      bed.hear(window);
    }
    bed.scheduler.advance_ms(at.first * 1000);
    window.taste_down(bed.field(0).key, bed.field(0).band);
    bed.scheduler.advance_ms(at.second * 1000);
    const int up = bed.tone(1).chr > bed.tone(0).chr ? 12 : -12;
    int wrong_tries = 0, near_misses = 0;
    std::vector<int> confused;
    std::vector<std::string> told;
    for (const char* press = at.how; *press; ++press) {
      Field key = bed.field(1, *press == 'o' ? up : 0);
      if (*press == 's') key.band = key.band % 2 + 1;
      if (*press == 'x') {
        key = bed.wrong(window, 1);
        confused.push_back(bed.degree(key, 1));
      }
      window.taste_down(key.key, key.band);
      wrong_tries += *press == 'x';
      near_misses += *press == 'o' || *press == 's';
      told.push_back(*press == 'x'   ? "false"
                     : *press == 'o' ? "TrOf"
                     : *press == 's' ? "TfOr"
                                     : "true");
      EXPECT_EQ(window.zaehler[1].text, std::to_string(wrong_tries));
      const bool again = *press == 'x' && wrong_tries < 4;
      EXPECT_EQ(PlayBed::asked(window), again ? 1 : 2);
      EXPECT_EQ(window.locked(key.key), again);
      EXPECT_EQ(window.warnung[1].visible, near_misses > 0);
    }
    EXPECT_TRUE(near_misses == 0 || window.warnung[1].text ==
                                        (told.back() == "TrOf" ? "[433s][703s]" : "[561s][703s]"));
    const bool right = told.back() == "true";
    EXPECT_EQ(window.zaehler[0].text, right ? "1" : "0");
    EXPECT_EQ(window.ergPic[1].text.starts_with("[1125s]: "), wrong_tries == 4);
    EXPECT_EQ(window.ergPic[1].back, right             ? signal::right
                                     : near_misses > 0 ? signal::open
                                                       : signal::given);
    bed.play_row(window, 0);
    const std::size_t task = bed.module.row().iv[0] == bed.module.row().iv[1] ? 0 : 1;
    ASSERT_EQ(task, 1U) << "the two are told apart";
    const auto intervals = bed.module.row().iv;
    bed.dialogs.script = {Reply::yes};
    const auto answers = FlowBed::lessons(bed.leave(window)).at(0);
    ASSERT_EQ(answers.size(), told.size() + 1);
    for (std::size_t i = 0; i < told.size(); ++i) {
      EXPECT_EQ(answers.at(i).at("Antwort"), told[i]);
      EXPECT_EQ(answers.at(i).at("interval"), "1");
      EXPECT_EQ(std::stod(answers.at(i).at("Anz Whlg")), i == 0 ? at.repeats : 0);
      EXPECT_NEAR(std::stod(answers.at(i).at("AntwDau")), i == 0 ? at.second * 10 : 0, 0.01);
      if (told[i] != "false") continue;
      const int value = confused.at(i);
      EXPECT_EQ(answers.at(i).at("FalschIv"), value == 0 ? "" : std::to_string(value));
    }
    // Weights begin at 4; what was taken for the interval gains one each.
    const Variant::Array record = host.records.at("vemo06/A3").array();
    const std::size_t rows = (record.size() - 3) / 6;
    const auto end = std::ranges::find(confused, 0);
    for (std::size_t i = 1; i <= rows; ++i) {
      const int value = std::stoi(record.at(i).text());
      double weight = 4;
      if (value == intervals[0]) weight = std::trunc(weight + at.rf);
      if (value == intervals[1]) weight -= 4;
      if (at.rf > 0) weight += static_cast<double>(std::count(confused.begin(), end, value));
      EXPECT_EQ(std::stod(record.at(rows + i).text()), weight) << value;
    }
  }
}

/// Some texts take in what they tell of.
struct TellingLanguage final : LanguageObject {
  std::string Wort(const std::string& key) override {
    const bool tells = key == "1332s" || (key >= "1348s" && key <= "1353s");
    return "[" + key + (tells ? " %1]" : "]");
  }
};

TEST(PlayFlow, EveryVerdictIsToldInWords) {
  FakeHost host;
  LanguageLibraries texts = key_languages();
  texts.create_language = [](const std::string&) { return std::make_unique<TellingLanguage>(); };
  PlayBed bed(host, texts);
  bed.open();
  bed.open_settings().click(bed.settings().invzahl[4]);
  bed.settings().click(bed.settings().E_Oktav[3]);
  bed.settings().click(bed.settings().cmdOk);
  auto& window = bed.newest<Arbeitsblatt3>();
  std::vector<std::string> news;
  window.on_announced = [&](const std::string& one) { news.push_back(one); };
  const auto told = [&] { return std::exchange(news, {}); };
  using Lines = std::vector<std::string>;
  bed.hear(window);
  const int keynote = bed.tone(0).qz;
  const ToneNames names(bed.language);
  EXPECT_EQ(window.grdton_pic.text, "[1351s " + names.upper(keynote) + "]");
  const auto name = [&](int place) {
    const Tone tone = bed.tone(place);
    return names.lower(tone.qz) + ", [" + std::to_string(1338 + written_octave(tone)) + "s]";
  };
  const auto in_full = [&](int place) {
    return name(place) + ", [" + std::to_string(1335 + band_of(bed.tone(place).qz)) + "s]";
  };
  const auto next = [](int tone) { return " [1332s " + std::to_string(tone) + "]"; };
  const std::string told_key = "[1058s]: [1351s " + names.upper(keynote) + "]. [1110s]";
  EXPECT_EQ(told(), (Lines{told_key, "[1335s]. [1165s]." + next(1)}));
  bed.press(window, bed.field(0));
  EXPECT_EQ(told(), Lines{"[468s]: " + name(0) + "." + next(2)});
  bed.press(window, bed.field(1));
  EXPECT_EQ(told(), Lines{"[468s]: " + name(1) + "." + next(3)});
  bed.press(window, bed.wrong(window, 2));
  EXPECT_EQ(told(), Lines{"[232s], [1163s]."});
  Field other = bed.field(2);
  other.band = other.band % 2 + 1;
  bed.press(window, other);
  EXPECT_EQ(told(), Lines{"[1348s " + in_full(2) + "]." + next(4)});
  EXPECT_EQ(window.hint.text, "[1348s " + in_full(2) + "]");
  EXPECT_EQ(window.ergPic[1].accessible_name, "[1357s]: " + name(1) + ", [1123s]");
  bed.press(window, bed.field(3));
  bed.press(window, bed.field(4));
  other = bed.field(5);
  other.band = other.band % 2 + 1;
  bed.press(window, other);
  EXPECT_EQ(window.phase(), Phase::next_offered);
  EXPECT_EQ(window.hint.text, "[1348s " + in_full(5) + "]") << "read as long as nothing sounds";
  told();
  bed.next_task(window);
  EXPECT_EQ(told(), (Lines{"[1110s]", "[1165s]." + next(1)})) << "the key is the same";
}

}  // namespace
}  // namespace tonarix
