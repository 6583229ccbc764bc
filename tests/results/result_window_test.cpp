#include "results/result_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/result_bed.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ResultWindowTest : testing::Test, ResultBed {
  ResultWindowTest() { texts.given = {{700, ": "}, {83, "Downward"}, {132, "Upward"}}; }
};

TEST_F(ResultWindowTest, FillsItselfOnce) {
  ResultWindow& window = open_filled();
  EXPECT_EQ(window.caption, "[1200]: Training");
  statistics.Clear();
  scheduler.advance_ms(10'000);
  EXPECT_EQ(spoken_sheet(window.content()), R"([724]: [291]
 [189]:  21.11.2026 14:40
 [586]:  [154]
 [109]:  praxis-3
 [1235] Lovelace
 [1236] Ada
 [1237] 4711
[1201]
[1214]: Training
[1218]: 40 (Largo)
[1202]
[275] 50.0%
[358] Upward: 
[281] Upward: 100.0%
[281] Downward: 0.0%
)");
  settings.abfr_iv = Naming::from_keynote;
  EXPECT_THAT(spoken_sheet(open_filled().content()), testing::Not(testing::HasSubstr("Upward")))
      << "degrees have no direction";
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
    printer.finish({end, "no paper"});
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
}

}  // namespace
}  // namespace tonarix
