#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

#include "base/windows/presenter.h"
#include "config/settings_tables.h"
#include "config/windows/einstellung1_view.h"
#include "host/local/catalogue_folder.h"
#include "host/windows/selection_view.h"
#include "support/fake_dialogs.h"
#include "support/fake_host.h"
#include "support/recording_midi.h"
#include "support/virtual_scheduler.h"

namespace tonarix {
namespace {

/// The first two windows with their real logic on a screen of no glass.
struct FirstWindowsTest : testing::TestWithParam<const char*> {
  FirstWindowsTest() {
    host.answers["LANG"] = Variant(std::string(GetParam()));
    presenter.add<SelectionWindow, SelectionView>("grd_einst", language);
    presenter.add<Einstellung1, Einstellung1View>("einstellung1", language);
    selection = &windows.open(std::make_unique<SelectionWindow>(
        SelectionContext{.scheduler = scheduler,
                         .windows = windows,
                         .server = server,
                         .language = language,
                         .tables = tables,
                         .errors = errors,
                         .dialogs = dialogs,
                         .fields = {settings.Theoriewahl, settings.ueb_typ, settings.tempo_ms,
                                    settings.supervisor, settings.klein_bildschirm},
                         .tempo_beats = tempo_beats(),
                         .screen_width = 1024,
                         .open_settings = [this](SettingsWindowKind) { open_settings(); },
                         .show_help = [this] { ++helped; },
                         .quit = [] {},
                         .available = [](int, int) { return true; },
                         .join_companion = [](Host&) {}}));
    selection->load();
    settle();
  }
  void open_settings() {
    names = std::make_unique<IntervalNames>(language);
    windows.open(std::make_unique<Einstellung1>(
        SettingsContext{.scheduler = scheduler,
                        .windows = windows,
                        .texts = language,
                        .server = server,
                        .errors = errors,
                        .dialogs = dialogs,
                        .midi = midi,
                        .devices = devices,
                        .midi_event = midi_event,
                        .settings = settings,
                        .statistics = statistics,
                        .best = best,
                        .tables = tables,
                        .interval_names = *names,
                        .ProtokollNeu = [] {},
                        .open_exercise = [](SettingsWindow&) {},
                        .show_selection = [this] { selection->show(); },
                        .send_keys = [](const std::string&) {},
                        .put_listing = [](const std::string&) {},
                        .check_saved_state = [](const Settings&) {}}));
  }
  void settle() {
    scheduler.advance_ms(500);
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }
  WindowView& view(int window) { return *presenter.view_of(*windows.at(window)); }
  template <typename Widget>
  Widget& widget(int window, const char* name) {
    return *view(window).findChild<Widget*>(QLatin1String(name));
  }
  void to_settings() {
    widget<QPushButton>(0, "cmdOk").click();
    settle();
  }

  VirtualScheduler scheduler;
  FakeHost host;
  Server server{host.factory(), {"vemo06", "Intervalle", 1, 0, 0}};
  Language language{catalogue_folder(TONARIX_CATALOGUES)};
  TextTables tables;
  RecordingDialogs dialogs{scheduler};
  ErrorReport errors{server, language, dialogs};
  Settings settings;
  RecordingDevices devices{scheduler};
  Midi midi;
  MidiEvent midi_event;
  Auswertung statistics;
  Ergebnis best;
  std::unique_ptr<IntervalNames> names;
  WindowList windows{scheduler};
  Presenter presenter{windows};
  SelectionWindow* selection = nullptr;
  int helped = 0;
};

TEST_P(FirstWindowsTest, TheoryHidesWhatNeedsTheEar) {
  widget<QRadioButton>(0, "ueb_typ_3").click();
  EXPECT_EQ(settings.ueb_typ, 3);
  widget<QRadioButton>(0, "Theoriewahl_1").click();
  EXPECT_EQ(settings.Theoriewahl, 1);
  EXPECT_FALSE(widget<QRadioButton>(0, "ueb_typ_2").isVisible());
  EXPECT_TRUE(widget<QRadioButton>(0, "ueb_typ_1").isChecked());
  widget<QPushButton>(0, "cmdHilfe").click();
  EXPECT_EQ(helped, 1);
}

TEST_P(FirstWindowsTest, TheSettingsFollowTheirWindowAndBack) {
  to_settings();
  ASSERT_EQ(windows.count(), 2);
  EXPECT_FALSE(view(0).isVisible());
  EXPECT_TRUE(widget<QRadioButton>(1, "grd_ton_1").isChecked());
  widget<QRadioButton>(1, "grd_ton_0").click();
  EXPECT_EQ(settings.grd_ton, 0);
  EXPECT_EQ(widget<QComboBox>(1, "Channel_Combo").count(), 2);
  widget<QRadioButton>(1, "E_Oktav_2").click();
  EXPECT_EQ(settings.tonraum_max - settings.tonraum_min, 48);
  EXPECT_TRUE(widget<QRadioButton>(1, "ivg_1").isEnabled());
  widget<QSlider>(1, "HSliderVolume").setValue(70);
  EXPECT_EQ(midi.midi_lautstaerke, 70);
  EXPECT_EQ(widget<QLabel>(1, "lb14_1").text(), "70");
  widget<QPushButton>(1, "cmdZurueck").click();
  EXPECT_EQ(windows.count(), 1);
  EXPECT_TRUE(view(0).isVisible());
}

TEST_P(FirstWindowsTest, TheSettingsFitASmallScreen) {
  to_settings();
  const auto* area = view(1).findChild<QScrollArea*>();
  view(1).resize(1024, 560);  // a title bar and the desktop's line beside it
  settle();
  EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
  view(1).resize(512, 300);
  settle();
  EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << "frames stand below each other instead";
  EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
}

TEST_P(FirstWindowsTest, EveryControlOnTheWayOfTheTabKeyHasAName) {
  to_settings();
  for (int window : {0, 1}) {
    for (const Control* control : windows.at(window)->controls()) {
      const auto* shown = view(window).findChild<QWidget*>(to_qstring(control->object_name()));
      if (!shown || !(shown->focusPolicy() & Qt::TabFocus)) continue;
      EXPECT_FALSE(shown->accessibleName().isEmpty()) << control->object_name();
    }
  }
  const std::string title = language.Wort(1057_text);
  ASSERT_NE(title, "VOID");
  EXPECT_TRUE(widget<QRadioButton>(1, "grd_ton_0").accessibleName().startsWith(to_qstring(title)));
}

INSTANTIATE_TEST_SUITE_P(Languages, FirstWindowsTest, testing::Values("Deutsch", "English"));

}  // namespace
}  // namespace tonarix
