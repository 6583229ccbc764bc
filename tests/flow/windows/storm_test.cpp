#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <cstdlib>

#include "base/windows/presenter.h"
#include "config/windows/einstellung1_view.h"
#include "config/windows/einstellung2_view.h"
#include "config/windows/selection_view.h"
#include "exercises/build/windows/arbeitsblatt2_view.h"
#include "exercises/determine/windows/arbeitsblatt1_view.h"
#include "exercises/play/windows/arbeitsblatt3_view.h"
#include "flow/flow_bed.h"
#include "results/windows/result_view.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

/// The whole module in its real windows, under input that comes too often, too late, or where it
/// was not meant to go.
struct StormTest : testing::Test {
  StormTest() { start(); }
  void start() {
    presenter.reset();
    bed.reset();
    bed = std::make_unique<FlowBed>(host, key_languages());
    presenter = std::make_unique<Presenter>(bed->windows);
    presenter->add<SelectionWindow, SelectionView>("grd_einst", bed->language);
    presenter->add<Einstellung1, Einstellung1View>("einstellung1", bed->language);
    presenter->add<Arbeitsblatt1, Arbeitsblatt1View>("arbeitsblatt1", bed->language);
    presenter->add<Einstellung2, Einstellung2View>("einstellung2", bed->language);
    presenter->add<Arbeitsblatt2, Arbeitsblatt2View>("arbeitsblatt2", bed->language);
    presenter->add<Arbeitsblatt3, Arbeitsblatt3View>("arbeitsblatt3", bed->language);
    presenter->add<ResultWindow, ResultView>("testergebnis", bed->language);
    bed->open();
    come_up(bed->scheduler);
  }

  WindowView& newest() { return *presenter->view_of(*bed->windows.newest()); }
  static void stroke(QWidget& target, int key, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, text);
      QApplication::sendEvent(&target, &event);
    }
  }
  static void click(QWidget& target) {
    const QPointF at = target.rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
      QMouseEvent event(type, at, target.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
      QApplication::sendEvent(&target, &event);
    }
  }
  static void act(QWidget& target) {
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(&target)->actionInterface();
    if (actions && !actions->actionNames().isEmpty()) actions->doAction(actions->actionNames()[0]);
  }

  /// Presses the button, and before anything is drawn everything else that leads somewhere: in the
  /// old window, which may be hidden by now, and in the new one.
  void press_in_a_storm(const char* name) {
    const QPointer<WindowView> before = &newest();
    auto& button = *before->findChild<Button*>(QLatin1String(name));
    button.click();
    for (const QPointer<WindowView>& view : {before, QPointer<WindowView>(&newest())}) {
      for (Button* each : view->findChildren<Button*>()) {
        each->click();
        act(*each);
      }
      view->close();
      for (const int key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_1}) stroke(*view, key);
    }
    bed->scheduler.advance_ms(1);
    QApplication::processEvents();
    click(*newest().findChild<Button*>(QStringLiteral("cmdHilfe")));
    come_up(bed->scheduler);
  }
  int taking_input() const {
    int count = 0;
    for (int i = 0; i < bed->windows.count(); ++i) count += bed->windows.at(i)->takes_input();
    return count;
  }

  FakeHost host;
  std::unique_ptr<FlowBed> bed;
  std::unique_ptr<Presenter> presenter;
};

TEST_F(StormTest, EveryStepIsTakenOnceHoweverOftenItIsPressed) {
  press_in_a_storm("cmdOk");
  ASSERT_EQ(bed->windows.count(), 2);
  bed->settings().choose(bed->settings().temp_Combo, 9);
  press_in_a_storm("cmdOk");
  ASSERT_EQ(bed->windows.count(), 3);
  Arbeitsblatt1& exercise = bed->exercise();
  bed->hear_row();
  QApplication::processEvents();
  const auto answer = QStringLiteral("st_int_%1").arg(bed->right_code(0));
  auto& button = *newest().findChild<Button*>(answer);
  for (int press = 0; press < 3; ++press) click(button);
  EXPECT_EQ(exercise.zaehler[0].text + exercise.zaehler[1].text, "10");
  bed->scheduler.advance_ms(InputGuard::kSamePress - 1);
  act(button);
  EXPECT_EQ(exercise.zaehler[0].text + exercise.zaehler[1].text, "10");
  press_in_a_storm("zurueck");
  bed->scheduler.advance_ms(500);
  ASSERT_EQ(bed->windows.newest()->name(), "testergebnis");
  EXPECT_NE(newest().windowHandle()->transientParent(), nullptr) << "it stays in front";
  come_up(bed->scheduler);
  press_in_a_storm("cmdOk");
  bed->scheduler.advance_ms(500);
  EXPECT_EQ(bed->documents.written.size(), 1U);
  ASSERT_EQ(bed->windows.count(), 2);
  EXPECT_TRUE(bed->settings().takes_input());
  EXPECT_TRUE(bed->dialogs.shown.empty());
  come_up(bed->scheduler);
  press_in_a_storm("cmdZurueck");
  ASSERT_EQ(bed->windows.count(), 1);
  EXPECT_FALSE(bed->ended);
}

TEST_F(StormTest, RandomInputEndsInNothingButOneOpenWindow) {
  const char* wanted = std::getenv("STORM_EVENTS");
  const int events = wanted ? std::atoi(wanted) : 4000;
  SeededChance chance(7);
  std::size_t exercises = 0;
  std::size_t written = 0;
  const auto listen = [&] {
    bed->windows.on_opened = [&, earlier = bed->windows.on_opened](Window& window) {
      earlier(window);
      exercises += window.name().starts_with("arbeitsblatt");
    };
  };
  listen();
  constexpr int kKeys[] = {Qt::Key_Return, Qt::Key_Escape, Qt::Key_1,  Qt::Key_2,
                           Qt::Key_3,      Qt::Key_F2,     Qt::Key_F1, Qt::Key_Tab,
                           Qt::Key_Space,  Qt::Key_Down};
  constexpr double kPauses[] = {0, 0, 1, 60, 250, 300, 900, 5000};
  for (int event = 0; event < events; ++event) {
    WindowView& view = *presenter->view_of(*bed->windows.at(draw(chance, bed->windows.count())));
    const auto widgets = view.findChildren<QWidget*>();
    QWidget& widget = *widgets[draw(chance, static_cast<int>(widgets.size()))];
    const QPointer<QWidget> still = &widget;
    switch (draw(chance, 12)) {
      case 0:
        stroke(view, kKeys[draw(chance, std::size(kKeys))]);
        break;
      case 1:
        stroke(view, Qt::Key_A, QString(QChar('a' + draw(chance, 26))));
        break;
      case 2:
        act(widget);
        break;
      case 3:
        if (draw(chance, 8) == 0) view.close();
        break;
      case 4:
      case 5:
        bed->scheduler.advance_ms(kPauses[draw(chance, std::size(kPauses))]);
        break;
      case 6:
        QApplication::processEvents();
        break;
      case 7:
        if (bed->dialogs.open()) bed->dialogs.answer(draw(chance, 2) == 0 ? Reply::yes : Reply::no);
        break;
      default:
        for (int press = draw(chance, 3); press >= 0 && still; --press) click(*still);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_LE(taking_input(), 1) << "after " << event;
    ASSERT_LE(bed->windows.count(), 4) << "after " << event;
    if (!bed->ended) continue;
    written += bed->documents.written.size();
    bed->ended = false;
    for (const Message& told : bed->dialogs.shown) {
      // The pure tuning has no tones to form, and the exercise ends with that.
      if (told.text.find("arbeitsblatt2 mat_wahl.") != std::string::npos) continue;
      ASSERT_EQ(told.text.find(bed->language.Wort(720_text)), std::string::npos) << told.text;
    }
    start();
    listen();
  }
  written += bed->documents.written.size();
  const bool one_is_open = bed->windows.count() > 2;
  EXPECT_EQ(exercises, written + (one_is_open ? 1 : 0)) << "each exercise leaves its protocol";
  EXPECT_GT(exercises, 3U);
}

}  // namespace
}  // namespace tonarix
