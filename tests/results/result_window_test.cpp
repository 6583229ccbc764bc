#include "results/result_window.h"

#include <gmock/gmock.h>

#include "results/result_bed.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

struct ResultWindowTest : testing::Test, ResultBed {};

TEST_F(ResultWindowTest, FillsItselfOnceWithWhatASheetSays) {
  texts.given = {
      {700, ": "}, {83, "Downward"}, {132, "Upward"}, {1217, "Instruments"}, {1048, ","}};
  host.answers["LOGIN"] = Variant::Array{"Lovelace", "<b>Ada</b>\r\n&amp; עדה"};
  settings.EinstDatSave = {
      "18",   "Übungsmodus", "Training", "Nr.:",  "3",    "Klangfarben: ", "2",
      "Töne", "Piano",       "Ton 2:",   "Oboe",  "Mine", " 40 (Largo)  ", "Oktavbereich",
      "",     "Grdton zus.", "ja",       "Tempo", "60",   "cut off"};
  answered(4, 1, -16);
  answered(25, 1, 0);
  offered(11);
  ResultWindow& window = open();
  std::string told;
  window.on_announced = [&](const std::string& news) { told += news; };
  scheduler.settle();
  EXPECT_EQ(told, "[275] 50,0%. 3 [1239] [1246], 10 [1247], 2 [1248]");
  EXPECT_EQ(window.caption, "[1200]: Training");
  statistics.Clear();
  scheduler.advance_ms(10'000);
  EXPECT_EQ(spoken_sheet(window.content(), texts), R"([724]: [291]
 [189]:  21.11.2026 09:05
 [586]:  [154]
 [109]:  praxis-3
 [1235] Lovelace
 [1236] <b>Ada</b>  &amp; עדה
 [1237] 
[1201]
[1050]: Training
[1215]: 3
Instruments: Töne: Piano; Ton 2: Oboe
Mine: 40 (Largo)
[1226]: [1234] ja
[1060]: 60
[1202]
3 [1239] [1246], 10 [1247], 2 [1248]
[275] 50,0%
[358] Upward: 
[281] Upward: 100,0%
[281] Downward: 0,0%
)");
  settings.abfr_iv = Naming::from_keynote;
  host.answers.clear();
  const std::string other = spoken_sheet(open_filled().content(), texts);
  EXPECT_THAT(other, Not(HasSubstr("Upward"))) << "degrees have no direction";
  EXPECT_THAT(other, Not(HasSubstr("[1235]"))) << "nobody has no name";
  for (const auto& cut_off : {std::vector<std::string>{}, {"0"}, {"2", "Klangfarben: ", "9"}}) {
    EXPECT_THAT(setting_lines(cut_off, texts), IsEmpty());
  }
}

TEST_F(ResultWindowTest, TheWorkIsToldInNumbersThatReadRightly) {
  texts.given = {{1238, "%1 of %2"}, {1239, "tasks"}, {1245, "task"},
                 {1246, "in %1"},    {1247, "right"}, {1248, "wrong"},
                 {1249, "h"},        {394, "min"},    {480, "s"}};
  const std::pair<WorkDone, const char*> told[] = {
      {{}, "0 tasks in 0 s, 0 right, 0 wrong"},
      {{1, {}, 59, 1, 0}, "1 task in 59 s, 1 right, 0 wrong"},
      {{2, {}, 60, 0, 8}, "2 tasks in 1 min 0 s, 0 right, 8 wrong"},
      {{1, 38, 252, 2, 1}, "1 of 38 tasks in 4 min 12 s, 2 right, 1 wrong"},
      {{97, {}, 3600 + 59, 210, 1}, "97 tasks in 1 h 0 min, 210 right, 1 wrong"}};
  for (const auto& [done, line] : told) EXPECT_EQ(work_words(done, texts).line(", "), line);

  settings.Uebungsmodus = Level::free;
  ResultWindow& sheet = open();
  std::string spoken;
  sheet.on_announced = [&](const std::string& news) { spoken += news; };
  scheduler.advance_ms(100);
  EXPECT_THAT(spoken, StartsWith("3 tasks"));
  const SheetPicture free = sheet_picture(sheet.content(), SheetGround::screen);
  const auto found = [&](const char* words) {
    return *std::ranges::find(free.texts, words, &SheetText::text);
  };
  EXPECT_EQ(found("10").font, SheetFont::total) << "free practice leads with its counts";
  EXPECT_LT(found("10").box.top, found("0.0 %").box.top);
  EXPECT_EQ(found("0.0 %").font, SheetFont::label);
  for (const SheetSurface& surface : free.surfaces) EXPECT_EQ(surface.fill, signal::white);
}

TEST_F(ResultWindowTest, EachWayOutUnloadsFirstAndAnnouncesOnce) {
  ResultWindow& by_button = open_filled();
  by_button.cmdOk_click();
  by_button.cmdOk_click();
  by_button.title_bar_close();
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(windows_when_closed, 0);
  open().title_bar_close();  // before it was filled
  scheduler.advance_ms(1000);
  EXPECT_EQ(closed, 2);
  EXPECT_THAT(dialogs.shown, IsEmpty());
}

TEST_F(ResultWindowTest, AFailureIsLoggedShownAndClosesTheSheet) {
  dialogs.hold = true;
  settings.ueb_typ = ExerciseKind{9};
  open_filled();
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.LbGrdEinst."));
  settings.ueb_typ = ExerciseKind::determine;
  statistics = {};
  ResultWindow& window = open_filled();
  EXPECT_EQ(host.error_places().back(), "vemo06.LbEinst.");
  EXPECT_EQ(dialogs.shown.at(1).text, "[720]\n[721]\n[722]\n[723]");
  EXPECT_EQ(window.cmdOk.tag, "ERROR");
  EXPECT_FALSE(window.cmdPrint.enabled);
  EXPECT_EQ(closed, 0) << "the messages are still open";
  dialogs.answer(Reply::ok);
  dialogs.answer(Reply::ok);
  scheduler.advance_ms(100);
  EXPECT_EQ(closed, 2);
}

TEST_F(ResultWindowTest, ThePageIsTheSheetAndTheWindowOpenAgainHoweverItEnds) {
  using End = PrintResult::End;
  ResultWindow& window = open_filled();
  for (const End end : {End::printed, End::cancelled, End::failed}) {
    window.cmdPrint_click();
    window.cmdPrint_click();
    printer.finish({end, "no paper", end == End::failed ? "Out of paper" : ""});
    EXPECT_TRUE(window.cmdPrint.open() && window.cmdOk.open());
  }
  ASSERT_EQ(printer.pages.size(), 3U) << "one job at a time";
  EXPECT_EQ(printer.pages[0].texts.size(),
            sheet_picture(window.content(), SheetGround::paper).texts.size());
  window.cmdPrint_click();
  window.title_bar_close();
  scheduler.settle();
  printer.finish({End::failed, "after the sheet is gone"});
  ASSERT_EQ(dialogs.shown.size(), 1U) << "only a failure is told";
  EXPECT_EQ(dialogs.shown[0].text, "[1204]\nno paper");
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.cmdPrint_click."));
}

bool overlap(const SheetBox& a, const SheetBox& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

TEST_F(ResultWindowTest, TheLongestSheetHasAllItsTextsApartAndOnThePageAndPaperSaysThemInWhite) {
  fill();
  SheetContent content = open_filled().content();
  const SheetPicture paper = sheet_picture(content, SheetGround::paper);
  for (const SheetSurface& surface : paper.surfaces) EXPECT_EQ(surface.fill, signal::white);
  using enum SheetShape;
  for (const auto& [shape, counts_lead] :
       {std::pair(wide, true), {tall, true}, {tall, false}, {wide, false}}) {
    content.counts_lead = counts_lead;
    const SheetPicture picture = sheet_picture(content, SheetGround::screen, shape);
    const bool lead = content.counts_lead;
    ASSERT_EQ(picture.texts.size(), 1U + 12 + 1 + 34 + 1 + 2 + (lead ? 7 : 1 + 2 + 76));
    for (const SheetText& text : picture.texts) {
      EXPECT_GE(text.box.left, 0);
      EXPECT_GE(text.box.width, 60);
      EXPECT_LE(text.box.right(), picture.width);
      EXPECT_LE(text.box.bottom(), picture.height);
      for (const SheetText& other : picture.texts) {
        EXPECT_FALSE(&other != &text && overlap(text.box, other.box)) << text.text << other.text;
      }
    }
    const auto same = [](const SheetText& a, const SheetText& b) { return a.text == b.text; };
    EXPECT_TRUE(shape == tall || lead || std::ranges::equal(picture.texts, paper.texts, same));
  }
  for (std::size_t i = 3; i < 6; ++i) content.head[i].visible = false;
  const SheetPicture shorter = sheet_picture(content, SheetGround::paper);
  EXPECT_EQ(paper.surfaces[0].box.height - shorter.surfaces[0].box.height, 3 * 20);
  EXPECT_EQ(shorter.surfaces[0].box.bottom() - shorter.texts[6].box.bottom(), 7) << "105 twips";
}

}  // namespace
}  // namespace tonarix
