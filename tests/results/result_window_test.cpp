#include "results/result_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/percentage.h"
#include "support/fake_dialogs.h"
#include "support/fake_host.h"
#include "support/key_texts.h"
#include "support/recording_printer.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct StandingClock final : WallClock {
  CivilTime now() const override { return {2026, 11, 21, 14, 40, 0}; }
};

struct ResultWindowTest : testing::Test {
  ResultWindowTest() {
    server.ServerInit("vemo06");
    texts.given = {{700, ": "}, {83, "Downward"}, {132, "Upward"}};
    host.answers["LOGIN"] = Variant::Array{"Lovelace", "Ada", "4711"};
    settings.Uebungsmodus = 1;
    settings.abfr_iv = 1;
    settings.EinstDatSave = {"4", "Übungsmodus", "Training", "Tempo", "40 (Largo)"};
    statistics.init_arr(3, 42);
    for (const std::int16_t row : {4, 25, 11}) statistics.Increment(row, 3);
    statistics.Save(4, 0, 1);
    statistics.Save(4, 1, -16);
    statistics.Save(25, 0, 1);
  }
  ResultWindow& open() {
    ResultWindow& window = windows.open(std::make_unique<ResultWindow>(
        ResultContext{scheduler, windows, texts, server, errors, dialogs, clock, settings,
                      statistics, names, printer, "praxis-3", [this] { ++help_shown; }},
        [this] {
          ++closed;
          windows_when_closed = windows.count();
        }));
    return window;
  }
  ResultWindow& open_filled() {
    ResultWindow& window = open();
    scheduler.advance_ms(100);
    return window;
  }
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

  VirtualScheduler scheduler;
  WindowList windows{scheduler};
  KeyTexts texts;
  FakeHost host;
  Server server{host.factory(), {"vemo06", "test"}};
  RecordingDialogs dialogs{scheduler};
  ErrorReport errors{server, texts, dialogs};
  StandingClock clock;
  Settings settings;
  Auswertung statistics;
  IntervalNames names{texts};
  RecordingPrinter printer;
  int closed = 0;
  int windows_when_closed = -1;
  int help_shown = 0;
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
  EXPECT_EQ(window.ergebnis[25].back, scale::under_20);
  EXPECT_EQ(window.ergebnis[11].back, std::nullopt);
  EXPECT_EQ(window.ergebnis[0].back, scale::under_60);
  EXPECT_EQ(window.chart().bars.size(), 3U);

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

TEST_F(ResultWindowTest, HelpIsAsked) {
  open_filled().cmdHilfe_click();
  EXPECT_EQ(help_shown, 1);
}

}  // namespace
}  // namespace tonarix
