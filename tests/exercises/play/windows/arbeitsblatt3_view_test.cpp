#include "exercises/play/windows/arbeitsblatt3_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>

#include "base/arithmetic.h"
#include "base/windows/accessibility.h"
#include "base/windows/key_repeats.h"
#include "base/windows/presenter.h"
#include "exercises/play/windows/piano_keyboard.h"
#include "flow/flow_bed.h"
#include "support/shown_window.h"

namespace tonarix {
namespace {

/// A row of six tones to be played back, in its real window.
struct Arbeitsblatt3ViewTest : testing::Test {
  explicit Arbeitsblatt3ViewTest(int level = 0) {
    settings.choose(settings.training_Combo, level);
    settings.click(settings.invzahl[4]);
    presenter.add<Arbeitsblatt3, Arbeitsblatt3View>("arbeitsblatt3", bed.language);
    settings.click(settings.cmdOk);
    bed.scheduler.advance_ms(1);
    window = &bed.newest<Arbeitsblatt3>();
    view = presenter.view_of(*window);
    view->resize(1024, 564);
    view->apply();
    come_up(bed.scheduler);
    keyboard = &child<PianoKeyboard>("Klavierrahmen");
  }
  template <typename Kind>
  Kind& child(const QString& name) const {
    return *view->findChild<Kind*>(name);
  }
  int asked() const {
    const auto mark = std::ranges::find_if(window->int_lb, &Control::visible);
    return mark == window->int_lb.end() ? -1 : *mark->index();
  }
  /// Where the tone that is asked lies.
  Field right() const {
    const Tone& tone = bed.module.row().inv_ton[static_cast<std::size_t>(asked())];
    return {key_of(tone.chr, bed.module.settings().tonraum_min), band_of(tone.qz)};
  }
  /// Two keys that are wrong, in their lowest band.
  std::vector<Field> wrong() const {
    std::vector<Field> found;
    for (int key = window->keys().lowest; found.size() < 2; ++key) {
      if (pitch_class_of_key(key - right().key) != 0) found.push_back({key, 1});
    }
    return found;
  }
  void mouse(QEvent::Type type, const Field& field) const {
    const Box box = keyboard->geometry().outline(field);
    const QPointF at = keyboard->logical({(box.left + box.right) / 2.0, box.bottom - 2.0});
    QWidget& key = *keyboard->childAt(at.toPoint());
    EXPECT_EQ(key.objectName().toStdString(), "taste_" + std::to_string(field.key));
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, key.mapFrom(keyboard, at), keyboard->mapToGlobal(at), Qt::LeftButton,
                      held, Qt::NoModifier);
    QApplication::sendEvent(&key, &event);
  }
  void click(const Field& field) const {
    mouse(QEvent::MouseButtonPress, field);
    mouse(QEvent::MouseButtonRelease, field);
  }
  void stroke(int key, bool repeats = false, const QString& text = {}) const {
    QWidget* focus = view->focusWidget() ? view->focusWidget() : view;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text, repeats);
    QApplication::sendEvent(focus, &press);
    focus = view->focusWidget() ? view->focusWidget() : view;
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, {}, repeats);
    QApplication::sendEvent(focus, &release);
  }
  /// A repeat as the display tells it, where the toolkit has not seen that it is one.
  void unmarked_repeat(int key, quint64 moment) const {
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
      QKeyEvent event(type, key, Qt::NoModifier);
      event.setTimestamp(moment);
      QApplication::sendEvent(view->focusWidget(), &event);
    }
  }
  void go_to(const Field& field) const {
    while (keyboard->focused_field().key != field.key) {
      stroke(keyboard->focused_field().key < field.key ? Qt::Key_Right : Qt::Key_Left);
    }
    for (int time = 0; time < kBands; ++time) stroke(Qt::Key_Down);
    for (int band = 1; band < field.band; ++band) stroke(Qt::Key_Up);
  }
  void settle() const {
    view->apply();
    for (int time = 0; time < 3; ++time) QApplication::processEvents();
  }
  /// All of it, in the window and in what is scrolled to.
  bool seen(const QString& name) const {
    const QWidget& widget = child<QWidget>(name);
    const QWidget& port = *child<QScrollArea>({}).viewport();
    const QWidget& frame = port.isAncestorOf(&widget) ? port : *view;
    return widget.isVisible() &&
           frame.rect().contains({widget.mapTo(&frame, QPoint()), widget.size()});
  }
  std::string wrong_count() const { return window->zaehler[1].text; }

  FakeHost host;
  FlowBed bed{host, 3};
  Einstellung1& settings = (bed.selection().ueb_typ_click(3), bed.open_settings());
  Presenter presenter{bed.windows};
  Arbeitsblatt3* window = nullptr;
  WindowView* view = nullptr;
  PianoKeyboard* keyboard = nullptr;
};

TEST_F(Arbeitsblatt3ViewTest, ARealKeyAnswersOncePerClickAndSoundsWhileItIsHeld) {
  const auto wire = [this] { return bed.devices.log.size(); };
  click(right());
  EXPECT_EQ(asked(), 0) << "the row sounds";
  bed.hear_row();
  click(right());
  ASSERT_EQ(asked(), 1);
  const std::vector<Field> keys = wrong();
  for (const Field& key : keys) {
    click(key);
    mouse(QEvent::MouseButtonDblClick, key);
    mouse(QEvent::MouseButtonRelease, key);
  }
  EXPECT_EQ(wrong_count(), "2") << "two keys, each pressed twice";
  bed.scheduler.advance_ms(InputGuard::kSamePress);
  click(keys[0]);
  EXPECT_EQ(wrong_count(), "2") << "a wrong key is closed";
  while (asked() > 0) {
    const Field field = right();
    const std::size_t before = wire();
    mouse(QEvent::MouseButtonPress, field);
    ASSERT_EQ(wire(), before + 1);
    EXPECT_EQ(bed.devices.log.back().message.data1,
              note_of(field.key, bed.module.settings().tonraum_min));
    mouse(QEvent::MouseButtonRelease, field);
    EXPECT_EQ(wire(), before + 2) << "also when the last answer has closed the keys";
    mouse(QEvent::MouseButtonDblClick, field);
    mouse(QEvent::MouseButtonRelease, field);
    EXPECT_EQ(wire(), before + 2) << "the second half of a double click";
    bed.scheduler.advance_ms(InputGuard::kSamePress);
  }
  EXPECT_EQ(window->zaehler[0].text + wrong_count(), "52");
  EXPECT_EQ(child<Label>("ergPic_5").sign(), Label::Sign::right);
}

// Tasks with tones that no key of the exercise has: each of the named ones is played once.
TEST_F(Arbeitsblatt3ViewTest, EveryNamedToneHasItsPlaceOnTheKeys) {
  auto& row = const_cast<TaskRow&>(bed.module.row());
  for (int qz = 0; qz < kNamedTones;) {
    bed.hear_row();
    click(right());
    for (; asked() >= 0 && qz < kNamedTones; ++qz) {
      const auto place = static_cast<std::size_t>(asked());
      row.inv_ton[place] = {to_int16(60 + pitch_class(qz)), to_int16(qz)};
      bed.scheduler.advance_ms(InputGuard::kSamePress);
      click(right());
      EXPECT_EQ(window->ergPic[static_cast<int>(place)].back, signal::right) << qz;
    }
    window->CmdNextAufg_click();
  }
  EXPECT_EQ(window->zaehler[0].text + wrong_count(), "350");
}

TEST_F(Arbeitsblatt3ViewTest, AWholeTaskIsPlayedByKeysAloneAndItsLastStrokeLeadsNoFurther) {
  const auto& announcer = child<Announcer>("announcer");
  stroke(Qt::Key_Return);
  bed.hear_row();
  EXPECT_EQ(view->focusWidget(), keyboard);
  child<QWidget>("wieder").setFocus();
  stroke(Qt::Key_Left);
  EXPECT_EQ(view->focusWidget(), keyboard) << "from a button too";
  while (asked() >= 0) {
    go_to(right());
    EXPECT_EQ(announcer.news().toStdString(), window->spoken(keyboard->focused_field()));
    bed.scheduler.advance_ms(InputGuard::kSamePress);
    stroke(Qt::Key_Return);
  }
  EXPECT_EQ(window->zaehler[0].text + wrong_count(), "50");
  stroke(Qt::Key_Return, true);
  stroke(Qt::Key_Return);
  bed.scheduler.advance_ms(InputGuard::kSamePress);
  const KeyRepeats filter(*QCoreApplication::instance());
  unmarked_repeat(Qt::Key_Return, 15325283);
  EXPECT_EQ(window->phase(), Phase::next_offered) << "the same stroke, or its second half";
  stroke(Qt::Key_Return);
  EXPECT_EQ(window->phase(), Phase::sounding);
}

// A letter is the name of a tone here before it is a way to an action.
TEST_F(Arbeitsblatt3ViewTest, LettersPressNoAction) {
  bed.hear_row();
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    stroke(letter - 'a' + Qt::Key_A, false, QString(QLatin1Char(letter)));
    ASSERT_EQ(window->phase(), Phase::answering) << letter;
  }
}

TEST_F(Arbeitsblatt3ViewTest, ALowWindowShowsWhatEachStepNeeds) {
  // Longer captions would take a second line of actions: the same room as in 300 pixels.
  view->resize(512, 258);
  window->field_note.text =
      "Die Taste klingt; das Feld auf der Taste sagt, wie der Ton geschrieben ist.";
  for (const int task : {1, 2}) {
    settle();
    EXPECT_TRUE(seen("question") && seen("hint") && seen("int_lb_0") && seen("ergPic_0")) << task;
    bed.hear_row();
    settle();
    EXPECT_TRUE(seen("question") && seen("hint") && seen("field_note") && seen("Klavierrahmen"))
        << task;
    for (; asked() >= 0; bed.scheduler.advance_ms(InputGuard::kSamePress)) click(right());
    window->CmdNextAufg_click();
  }
  view->resize(512, 232);
  bed.hear_row();
  settle();
  EXPECT_TRUE(seen("question") && seen("hint") && seen("Klavierrahmen")) << "the keys come first";
}

struct Arbeitsblatt3TestViewTest : Arbeitsblatt3ViewTest {
  Arbeitsblatt3TestViewTest() : Arbeitsblatt3ViewTest(3) {}
};

TEST_F(Arbeitsblatt3TestViewTest, ANarrowWindowShowsTheTimeLeftBelowAGrownPiano) {
  view->resize(800, 600);
  bed.hear_row();
  settle();
  EXPECT_TRUE(seen("question") && seen("stop_uhr") && seen("cmd_test_aus"));
  EXPECT_GT(keyboard->height(), 150);
}

TEST_F(Arbeitsblatt3ViewTest, NothingIsCutOffAndOnlyALowWindowScrolls) {
  bed.hear_row();
  for (Control& warning : window->warnung) {
    warning.text = "Other register!";
    warning.back = signal::finished;
    warning.visible = true;
  }
  window->hint.text =
      "Richtige Taste, andere Schreibweise: gesucht war aisis, dreigestrichene Oktave, unteres "
      "Feld.";
  const auto& area = *view->findChild<QScrollArea*>();
  for (const QSize size : {QSize(512, 300), QSize(1024, 600), QSize(1024, 564)}) {
    view->resize(size);
    settle();
    EXPECT_EQ(view->size(), size);
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(area.verticalScrollBar()->maximum() > 0, size.height() == 300);
    for (const QLabel* label : view->findChildren<QLabel*>()) {
      if (!label->isVisible() || label->text().isEmpty()) continue;
      const int needed = label->hasHeightForWidth() ? label->heightForWidth(label->width())
                                                    : label->sizeHint().height();
      EXPECT_LE(needed, label->height()) << label->objectName().toStdString();
      EXPECT_LE(label->minimumSizeHint().width(), label->width())
          << label->objectName().toStdString();
      EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry()));
    }
    EXPECT_GE(keyboard->height(), size.height() == 300 ? 110 : 150);
  }
}

}  // namespace
}  // namespace tonarix
