#include "results/result_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/percentage.h"
#include "results/result_bed.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ResultWindowTest : testing::Test, ResultBed {
  ResultWindowTest() { texts.given = {{700, ": "}, {83, "Downward"}, {132, "Upward"}}; }
  template <typename Controls>
  static std::vector<std::string> visible_texts(const Controls& controls) {
    std::vector<std::string> shown;
    for (const Control& control : controls) {
      if (control.visible) shown.push_back(control.text);
    }
    return shown;
  }
  using State =
      std::vector<std::tuple<std::string, bool, bool, std::string, std::optional<Colour>>>;
  static State state_of(const Window& window) {
    State state;
    for (const Control* control : window.controls()) {
      state.emplace_back(control->object_name(), control->visible, control->enabled, control->text,
                         control->back);
    }
    return state;
  }
};

TEST_F(ResultWindowTest, FillsItselfOnceInItsNamedControls) {
  ResultWindow& window = open_filled();
  EXPECT_EQ(window.caption, "[1200]: Training");
  EXPECT_EQ(window.grd_einst_head.text, "[724]: [291]");
  EXPECT_THAT(
      visible_texts(window.g_einst_inh),
      ElementsAre(" 21.11.2026 14:40", " [154]", " praxis-3", " Lovelace", " Ada", " 4711"));
  EXPECT_THAT(visible_texts(window.einst_lab), ElementsAre("Übungsmodus: ", "Tempo: "));
  EXPECT_THAT(visible_texts(window.einst_Inh), ElementsAre("Training", "40 (Largo)"));
  EXPECT_THAT(visible_texts(window.Lab_richtung), ElementsAre("Upward", "Downward"));
  EXPECT_THAT(visible_texts(window.Lab_ergeb), ElementsAre("[275]", "[281]", "[358]", "[281]"));
  EXPECT_THAT(visible_texts(window.ergebnis), ElementsAre("50.0%", "100.0%", "", "0.0%"));
  EXPECT_EQ(window.ergebnis[4].back, scale::from_80);
  EXPECT_EQ(window.ergebnis[0].back, scale::under_60);

  statistics.Clear();
  scheduler.advance_ms(10'000);
  EXPECT_EQ(window.ergebnis[4].text, "100.0%");
}

TEST_F(ResultWindowTest, DegreesHaveNoDirectionsAndFreePracticeNoRows) {
  settings.abfr_iv = 0;
  EXPECT_THAT(visible_texts(open_filled().Lab_richtung), IsEmpty());
  settings.Uebungsmodus = 0;
  host.answers["LOGIN"] = Variant::Array{"unbekannt"};
  ResultWindow& window = open_filled();
  EXPECT_THAT(visible_texts(window.ergebnis), ElementsAre("0.0 %"));
  EXPECT_EQ(visible_texts(window.g_einst_lab).size(), 3U);
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

TEST_F(ResultWindowTest, AFailureInTheTableIsLoggedShownAndClosesTheSheet) {
  statistics = {};
  dialogs.hold = true;
  ResultWindow& window = open_filled();
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.LbEinst."));
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].title, "Tonarix 2000");
  EXPECT_EQ(dialogs.shown[0].text, "[720]\n[721]\n[722]\n[723]");
  EXPECT_EQ(window.cmdOk.tag, "ERROR");
  EXPECT_FALSE(window.cmdPrint.enabled);
  EXPECT_EQ(closed, 0) << "the message is still open";
  dialogs.answer(Reply::ok);
  scheduler.advance_ms(100);
  EXPECT_EQ(closed, 1);
}

TEST_F(ResultWindowTest, AFailureInTheHeadBlockHasItsOwnNameAndEndsTheFill) {
  settings.ueb_typ = 9;
  open_filled();
  scheduler.advance_ms(100);
  EXPECT_THAT(host.error_places(), ElementsAre("vemo06.LbGrdEinst."));
  EXPECT_EQ(closed, 1);
}

TEST_F(ResultWindowTest, ThePageIsTheSheetAndTheWindowIsAsBeforeHoweverItEnds) {
  ResultWindow& window = open_filled();
  const State before = state_of(window);
  for (const auto end :
       {PrintResult::End::printed, PrintResult::End::cancelled, PrintResult::End::failed}) {
    window.cmdPrint_click();
    window.cmdPrint_click();
    ASSERT_TRUE(printer.busy());
    printer.finish({end, "no paper"});
    EXPECT_EQ(state_of(window), before);
  }
  ASSERT_EQ(printer.pages.size(), 3U) << "one job at a time";
  EXPECT_EQ(printer.pages[0].texts.size(),
            sheet_picture(window.content(), SheetGround::paper).texts.size());
  ASSERT_EQ(dialogs.shown.size(), 1U) << "only a failure is told";
  EXPECT_EQ(dialogs.shown[0].text, "[1204]\nno paper");
}

TEST_F(ResultWindowTest, APrintThatEndsAfterTheSheetIsForgotten) {
  ResultWindow& window = open_filled();
  window.cmdPrint_click();
  window.title_bar_close();
  scheduler.settle();
  printer.finish({PrintResult::End::failed, "late"});
  EXPECT_THAT(dialogs.shown, IsEmpty());
}

}  // namespace
}  // namespace tonarix
