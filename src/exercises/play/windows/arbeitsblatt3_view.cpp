#include "exercises/play/windows/arbeitsblatt3_view.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "base/module_texts.h"
#include "base/windows/accessibility.h"
#include "exercises/play/windows/piano_keyboard.h"
#include "exercises/play/windows/tone_row.h"

namespace tonarix {
namespace {

constexpr int kLowestPiano = 110;
constexpr int kBesidePiano = 190;  // the question, the line above the keys and the actions

static_assert(kPianoKeys == kLastKey + 1);

bool is_return(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

Arbeitsblatt3View::Arbeitsblatt3View(Arbeitsblatt3& window, const Texts& texts)
    : ExerciseView(window, texts, &window), window_(window) {
  build_head(window.settings_line);
  build_tones();
  build_standing(StandingColumn::Shape::compact);
  build_keyboard();
  build_actions(nullptr);
  // A button would take the arrow keys for a way to its neighbour.
  for (Button* button : findChildren<Button*>()) button->installEventFilter(this);
}

void Arbeitsblatt3View::build_tones() {
  Card* card = build_messages(window_.row_title);
  row_ = new ToneRow(card);
  for (int i = 0; i < ToneRow::kTones; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const Control& number = window_.int_lb[i];
    bindings().bind(*row_->marks[at], number,
                    [this, i, &number] { row_->set_number(i, to_qstring(number.text)); });
    bindings().bind(*row_->fields[at], window_.ergPic[i], {.signs = true});
    bindings().bind(*row_->warnings[at], window_.warnung[i]);
    SoundingMark* mark = row_->sounding[at];
    bindings().bind(*mark, window_.sounding[i],
                    [mark, &number] { set_accessible_name(*mark, to_qstring(number.text)); });
  }
  card->body().addWidget(row_);
}

void Arbeitsblatt3View::build_keyboard() {
  Card* card = this->card(nullptr, nullptr);
  Label* note = label(window_.field_note, TextRole::note);
  note->setWordWrap(true);
  card->head().addWidget(note, 1);
  card->head().addWidget(label(window_.grundtlb, TextRole::note));
  card->head().addWidget(label(window_.grdton_pic, TextRole::title));

  keyboard_ = new PianoKeyboard(card);
  keyboard_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  keyboard_->set_locked_word(word(text::locked));
  keyboard_->setAccessibleDescription(word(text::field_says_spelling) + QLatin1Char(' ') +
                                      word(text::how_to_play));
  keyboard_->on_pressed = [this](int key, std::optional<int> band) { press(key, band); };
  keyboard_->on_released = [this] {
    if (bindings().live()) window_.taste_up();
  };
  keyboard_->on_field_focused = [this](const QString& spoken) { announce(spoken); };
  bindings().bind(*keyboard_, window_.Klavierrahmen, [this] { show_task(); });
  for (int key = 0; key < kPianoKeys; ++key) {
    bindings().bind(keyboard_->key(key), window_.taste[key], [this, key] { show_key(key); });
  }
  card->body().addWidget(keyboard_, 1);
  build_below(*card);
}

// The tone goes out before anything is drawn.
void Arbeitsblatt3View::press(int key, std::optional<int> band) {
  // A press above the bands is a miss, and what it was meant for may come at once.
  if (!band || !bindings().live()) return;
  if (!window_.guard.admits(&window_.taste[key], window_.now())) return;
  pressed_at_ = window_.now();
  window_.taste_down(key, band);
}

void Arbeitsblatt3View::show_task() {
  if (window_.phase() == Phase::starting) return;
  keyboard_->set_finished_tone(window_.finished_tone());
  if (keys_ == window_.keys()) return;
  keys_ = window_.keys();
  for (int key = keys_->lowest; key <= keys_->highest; ++key) {
    KeyTexts texts;
    for (int band = 1; band <= kBands; ++band) {
      const auto at = static_cast<std::size_t>(band - 1);
      texts.captions[at] = to_qstring(window_.caption({key, band}));
      texts.spoken[at] = to_qstring(window_.spoken({key, band}));
    }
    keyboard_->set_texts(key, texts);
  }
  keyboard_->set_keys(*keys_);
}

void Arbeitsblatt3View::show_key(int key) {
  keyboard_->set_state(key, {.open = actions_in(window_.phase()).answers,
                             .locked = window_.locked(key),
                             .sounding = window_.taste[key].back.has_value()});
}

void Arbeitsblatt3View::show_row() {
  const auto shown = std::ranges::count_if(window_.ergPic, &Control::visible);
  asked_ = -1;
  int tries = 0;
  for (const Control& number : window_.int_lb) {
    if (!number.visible) continue;
    asked_ = *number.index();
    const Control& left = window_.tries[asked_];
    if (left.visible) tries = to_qstring(left.text).toInt();
  }
  row_->show_state(static_cast<int>(shown), asked_, tries);
}

void Arbeitsblatt3View::fit() {
  if (!keyboard_) return;
  const int usual = keyboard_->minimumSizeHint().height();
  keyboard_->setMinimumHeight(std::min(std::max(height() - kBesidePiano, kLowestPiano), usual));
}

void Arbeitsblatt3View::applied() {
  show_row();
  ExerciseView::applied();
  const Phase phase = window_.phase();
  if (phase == shown_phase_) return;
  shown_phase_ = phase;
  if (phase == Phase::sounding || phase == Phase::control_sounding) {
    bring_into_view(*row_->fields[static_cast<std::size_t>(std::max(asked_, 0))]);
  }
  if (phase != Phase::answering) return;
  // With the line above the keys, where both have room.
  QWidget* card = keyboard_->parentWidget();
  const QMargins edge = card->layout()->contentsMargins();
  const int needed = card->height() - edge.top() - edge.bottom();
  const bool fits = needed <= content().parentWidget()->height();
  bring_into_view(fits ? *card : *keyboard_);
  // The hand goes to the keys as soon as they are open.
  const QWidget* focus = focusWidget();
  if (!focus || focus == this) keyboard_->setFocus(Qt::OtherFocusReason);
}

bool Arbeitsblatt3View::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && dynamic_cast<Button*>(watched)) {
    const auto& stroke = static_cast<QKeyEvent&>(*event);
    const bool presses = is_return(stroke) || stroke.key() == Qt::Key_Space;
    if (!presses && takes_keys() && keyboard_->take_key(stroke)) return true;
  }
  return ExerciseView::eventFilter(watched, event);
}

bool Arbeitsblatt3View::takes_keys() const {
  return window_.takes_input() && keyboard_->isVisible();
}

void Arbeitsblatt3View::keyPressEvent(QKeyEvent* event) {
  if (!takes_keys()) return ExerciseView::keyPressEvent(event);
  if (is_return(*event)) {
    const bool on_button = dynamic_cast<Button*>(focusWidget()) != nullptr;
    if (!on_button && actions_in(window_.phase()).answers) {
      keyboard_->setFocus(Qt::OtherFocusReason);
      keyboard_->take_key(*event);
      return;
    }
    // The second of two quick strokes is meant for the last tone, not for the way on.
    if (pressed_at_ && window_.now() - *pressed_at_ < milliseconds(InputGuard::kSamePress)) return;
  } else if (event->key() != Qt::Key_Space && keyboard_->take_key(*event)) {
    return;
  }
  ExerciseView::keyPressEvent(event);
}

}  // namespace tonarix
