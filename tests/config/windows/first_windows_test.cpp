#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

#include "base/module_texts.h"
#include "base/windows/presenter.h"
#include "base/windows/toolkit_texts.h"
#include "config/settings_bed.h"
#include "config/windows/einstellung1_view.h"
#include "config/windows/einstellung2_view.h"
#include "config/windows/selection_view.h"
#include "exercises/determine/windows/arbeitsblatt1_view.h"
#include "flow/flow_bed.h"
#include "host/local/catalogue_folder.h"
#include "results/windows/result_view.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

/// The settings opened from the first window, in real windows.
struct FirstWindowsTest : testing::TestWithParam<const char*> {
  FirstWindowsTest() {
    host.answers["LANG"] = Variant(std::string(GetParam()));
    presenter.add<SelectionWindow, SelectionView>("grd_einst", bed.language);
    presenter.add<Einstellung1, Einstellung1View>("einstellung1", bed.language);
    bed.open();
    settle();
    widget<QPushButton>(0, "cmdOk").click();
    settle();
  }
  void settle() {
    QCoreApplication::processEvents();
    bed.scheduler.advance_ms(500);
    QCoreApplication::processEvents();
    bed.scheduler.advance_ms(500);
  }
  WindowView& view(int window) { return *presenter.view_of(*bed.windows.at(window)); }
  template <typename Widget>
  Widget& widget(int window, const char* name) {
    return *view(window).findChild<Widget*>(QLatin1String(name));
  }

  FakeHost host;
  FlowBed bed{host, catalogue_folder(TONARIX_CATALOGUES)};
  const Settings& settings = bed.module.settings();
  Presenter presenter{bed.windows};
};

TEST_P(FirstWindowsTest, TheSettingsFollowTheirWindowAndBack) {
  EXPECT_FALSE(view(0).isVisible());
  EXPECT_TRUE(widget<QRadioButton>(1, "grd_ton_1").isChecked());
  widget<QRadioButton>(1, "grd_ton_0").click();
  EXPECT_EQ(settings.grd_ton, 0);
  EXPECT_EQ(widget<QComboBox>(1, "Channel_Combo").count(), 2);
  widget<QRadioButton>(1, "E_Oktav_2").click();
  EXPECT_TRUE(widget<QRadioButton>(1, "ivg_1").isEnabled());
  widget<QSlider>(1, "HSliderVolume").setValue(70);
  EXPECT_EQ(widget<QLabel>(1, "lb14_1").text(), "70");
  widget<QPushButton>(1, "cmdZurueck").click();
  EXPECT_TRUE(bed.windows.count() == 1 && view(0).isVisible());
}

TEST_P(FirstWindowsTest, TheFirstWindowFitsASmallScreen) {
  auto& window = static_cast<Einstellung1&>(*bed.windows.at(1));
  window.click(window.cmdZurueck);
  settle();
  view(0).resize(508, 264);
  settle();
  EXPECT_EQ(view(0).findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
}

TEST_P(FirstWindowsTest, EveryControlOnTheWayOfTheTabKeyHasAName) {
  for (int window : {0, 1}) {
    for (const Control* control : bed.windows.at(window)->controls()) {
      auto* shown = view(window).findChild<QWidget*>(to_qstring(control->object_name()));
      if (!shown || shown->isHidden() || !(shown->focusPolicy() & Qt::TabFocus)) continue;
      EXPECT_FALSE(spoken_name(*shown).isEmpty()) << control->object_name();
    }
  }
  const std::string title = bed.language.Wort(1057_text);
  ASSERT_NE(title, "VOID");
  EXPECT_TRUE(spoken_name(widget<QRadioButton>(1, "grd_ton_0")).startsWith(to_qstring(title)));
}

TEST_P(FirstWindowsTest, TheQuestionNamesTheToneThatIsAsked) {
  presenter.add<Arbeitsblatt1, Arbeitsblatt1View>("arbeitsblatt1", bed.language);
  for (const int naming : {0, 1}) {
    bed.settings().click(bed.settings().abfr_iv[naming]);
    Arbeitsblatt1& window = bed.open_exercise();
    bed.hear_row();
    for (const int place : {0, 1}) {
      const int tone = place + (naming == 0 ? 2 : 1);
      EXPECT_NE(window.question.text.find(" " + std::to_string(tone) + "?"), std::string::npos)
          << window.question.text;
      bed.press(window, bed.right_code(place));
    }
    EXPECT_EQ(window.zaehler[0].accessible_name, bed.language.Wort(468_text) + ": 2");
    EXPECT_EQ(window.zaehler[1].accessible_name, bed.language.Wort(232_text) + ": 0");
    presenter.add<ResultWindow, ResultView>("testergebnis", bed.language);
    bed.leave(window);
  }
}

TEST_P(FirstWindowsTest, TheToolkitsOwnDialogsSpeakTheLanguage) {
  ToolkitTexts texts;
  texts.speak(to_qstring(bed.language.Wort(text::toolkit_language)));
  const auto caption = [] { return QCoreApplication::translate("QFileDialog", "Look in:"); };
  EXPECT_EQ(caption(), std::string(GetParam()) == "Deutsch" ? "Suchen in:" : "Look in:");
  texts.speak("VOID");
  EXPECT_EQ(caption(), "Look in:");
}

INSTANTIATE_TEST_SUITE_P(Languages, FirstWindowsTest, testing::Values("Deutsch", "English"));

struct SmallScreenTest : testing::TestWithParam<const char*> {
  template <typename Kind, typename View>
  void expect_room(const char* name, ExerciseKind exercise) {
    SettingsBed bed(exercise);
    Language language(catalogue_folder(TONARIX_CATALOGUES));
    language.SprachInit();
    language.SprachWahl(GetParam());
    const auto word = [&](TextKey key) { return to_qstring(language.Wort(key)); };
    for (int key = 1; key < 2000; ++key) bed.texts.given[key] = language.Wort({key});
    bed.tables.load(bed.texts);
    Presenter presenter{bed.windows};
    presenter.add<Kind, View>(name, bed.texts);
    Kind& window = bed.open<Kind>();
    WindowView& view = *presenter.view_of(window);
    const auto* area = view.findChild<QScrollArea*>();
    come_up(bed.scheduler);
    window.choose(window.training_Combo, 4);  // the marks of what is locked need room too
    for (const QSize size : {QSize(1024, 560), QSize(512, 300)}) {  // a title bar is beside it
      view.resize(size);
      come_up(bed.scheduler);
      QCoreApplication::processEvents();
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
      EXPECT_EQ(area->verticalScrollBar()->maximum() > 0, size.width() == 512);
    }
    const QString note = exercise == ExerciseKind::build ? word(text::no_pure_forming) : QString();
    EXPECT_EQ(view.findChild<QRadioButton*>("stimm_g_1")->accessibleDescription(), note);
  }
};

TEST_P(SmallScreenTest, HasRoomForTheSettings) {
  expect_room<Einstellung1, Einstellung1View>("einstellung1", ExerciseKind::determine);
  expect_room<Einstellung2, Einstellung2View>("einstellung2", ExerciseKind::build);
}

INSTANTIATE_TEST_SUITE_P(Languages, SmallScreenTest, testing::Values("Deutsch", "English"));

}  // namespace
}  // namespace tonarix
