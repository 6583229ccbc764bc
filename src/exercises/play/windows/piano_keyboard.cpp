#include "exercises/play/windows/piano_keyboard.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/windows/accessibility.h"
#include "exercises/play/windows/piano_accessible.h"

namespace tonarix {
namespace {

constexpr int kOctaveKeys = 12;

bool is_play_key(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

bool is_field(const Field& field) {
  return spelling(field).has_value();
}

}  // namespace

PianoKeyboard::PianoKeyboard(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setLayoutDirection(Qt::LeftToRight);  // high is on the right in every language
  install_piano_accessibility();
  for (const bool black : {false, true}) {
    for (int number = 0; number < kPianoKeys; ++number) {
      if (is_black(number) == black) {
        keys_.at(static_cast<std::size_t>(number)) = new PianoKey(*this, number);
      }
    }
  }
}

PianoKeyboard::~PianoKeyboard() {
  // Before the toolkit hides them: they would tell a keyboard that is half gone.
  for (PianoKey*& key : keys_) delete std::exchange(key, nullptr);
}

void PianoKeyboard::set_keys(const KeyRange& keys) {
  if (focus_ && keys == face_.geometry.keys()) return;
  if (!focus_) {
    const int middle = (keys.lowest + keys.highest) / 2;
    focus_ = Field{(middle + kOctaveKeys - 1) / kOctaveKeys * kOctaveKeys, 1};
  }
  face_.geometry = KeyboardGeometry(keys, 1, 1);
  face_.tasteMark.reset();
  focus_->key = std::clamp(focus_->key, keys.lowest, keys.highest);
  lay_out();
  for (int number = 0; number < kPianoKeys; ++number) {
    key(number).setVisible(face_.geometry.has(number));
  }
  show_focus();
}

void PianoKeyboard::set_texts(int key, const KeyTexts& texts) {
  KeyTexts& own = face_.texts.at(static_cast<std::size_t>(key));
  if (own != texts) {
    own = texts;
    // A longer name may make those of its row smaller.
    texts_changed_ = true;
    update();
  }
  tell_names(key);
}

void PianoKeyboard::set_state(int key, const KeyState& state) {
  KeyState& own = face_.states.at(static_cast<std::size_t>(key));
  if (own != state) {
    own = state;
    update_key(key);
  }
  tell_names(key);
}

void PianoKeyboard::set_finished_tone(const std::optional<Field>& field) {
  if (face_.finished_tone == field) return;
  for (const auto& changed : {std::exchange(face_.finished_tone, field), field}) {
    if (changed) update_key(changed->key);
  }
}

void PianoKeyboard::set_locked_word(const QString& word) {
  locked_word_ = word;
}

Field PianoKeyboard::focused_field() const {
  Field field = focus_.value_or(Field{face_.geometry.keys().lowest, 1});
  if (!is_field(field)) --field.band;
  return field;
}

QString PianoKeyboard::spoken(const Field& field) const {
  QString name = face_.texts_of(field.key).spoken.at(static_cast<std::size_t>(field.band - 1));
  if (face_.state_of(field.key).locked) name += QStringLiteral(", ") + locked_word_;
  return name;
}

void PianoKeyboard::tell_names(int number) {
  QStringList fields;
  for (const QString& spoken : face_.texts_of(number).spoken) {
    if (!spoken.isEmpty()) fields << spoken;
  }
  set_accessible_name(key(number), fields.join(QStringLiteral("; ")));
}

bool PianoKeyboard::takes_press(int number) const {
  return face_.takes_press(number) && keys_.at(static_cast<std::size_t>(number))->isEnabled();
}

void PianoKeyboard::press(const KeyPlace& place, int by) {
  if (!takes_press(place.key)) return;
  if (place.band && !is_field({place.key, *place.band})) return;
  let_go();
  held_ = Held{place.key, by};
  if (on_pressed) on_pressed(place.key, place.band);
}

void PianoKeyboard::let_go() {
  if (!held_) return;
  held_.reset();
  if (on_released) on_released();
}

void PianoKeyboard::mouse_pressed(const QPointF& at) {
  if (const auto place = place_at(at)) press(*place, 0);
  pointer_at(at);
}

void PianoKeyboard::mouse_released() {
  if (held_ && held_->by == 0) let_go();
}

void PianoKeyboard::pointer_at(const std::optional<QPointF>& at) {
  const auto place = at ? place_at(*at) : std::nullopt;
  if (held_ && held_->by == 0 && (!place || place->key != held_->key)) let_go();
  std::optional<Field> mark;
  if (place && place->band && is_field({place->key, *place->band})) {
    mark = Field{place->key, *place->band};
  }
  if (mark == face_.tasteMark) return;
  for (const auto& changed : {std::exchange(face_.tasteMark, mark), mark}) {
    if (changed) update_pixels(picture_.marks_place(*changed));
  }
}

bool PianoKeyboard::take_key(const QKeyEvent& event) {
  if (is_play_key(event.key())) return play(event);
  if (event.type() != QEvent::KeyPress || (event.modifiers() & ~Qt::KeypadModifier) != 0) {
    return false;
  }
  const auto to = goal(event.key());
  if (!to) return false;
  // A key that is held at the end is answered once.
  if (focus_field(*to) || !event.isAutoRepeat()) tell_focus();
  return true;
}

std::optional<Field> PianoKeyboard::goal(int key) const {
  const Field field = focused_field();
  // The band that was chosen comes back behind a key that lacks it.
  const int band = focus_ ? focus_->band : 1;
  const KeyRange& keys = face_.geometry.keys();
  switch (key) {
    case Qt::Key_Left:
      return Field{field.key - 1, band};
    case Qt::Key_Right:
      return Field{field.key + 1, band};
    case Qt::Key_PageUp:
      return Field{field.key + kOctaveKeys, band};
    case Qt::Key_PageDown:
      return Field{field.key - kOctaveKeys, band};
    case Qt::Key_Home:
      return Field{keys.lowest, band};
    case Qt::Key_End:
      return Field{keys.highest, band};
    case Qt::Key_Up:
      return Field{field.key, field.band + 1};
    case Qt::Key_Down:
      return Field{field.key, field.band - 1};
    default:
      return std::nullopt;
  }
}

bool PianoKeyboard::play(const QKeyEvent& event) {
  if (held_ && held_->by == event.key()) {
    if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat()) let_go();
    return true;
  }
  if (event.type() != QEvent::KeyPress || (event.modifiers() & ~Qt::KeypadModifier) != 0) {
    return false;
  }
  // One held since something else was pressed by it presses nothing, here or in the window.
  if (event.isAutoRepeat()) return true;
  if (!open()) return false;
  press_focused(event.key());
  return true;
}

void PianoKeyboard::click() {
  press_focused(0);
  let_go();
}

void PianoKeyboard::press_focused(int by) {
  const Field field = focused_field();
  if (!takes_press(field.key)) return tell_focus();
  press({field.key, field.band}, by);
}

void PianoKeyboard::tell_focus() const {
  if (on_field_focused) on_field_focused(spoken(focused_field()));
}

bool PianoKeyboard::focus_field(const Field& field) {
  if (!hasFocus()) setFocus(Qt::OtherFocusReason);
  const Field before = focused_field();
  const bool stands =
      field.key != before.key ? face_.geometry.has(field.key) : field.band >= 1 && is_field(field);
  if (!stands) return false;
  focus_ = field;
  if (focused_field() == before) return false;
  if (held_ && held_->by != 0) let_go();
  show_focus();
  return true;
}

void PianoKeyboard::show_focus() {
  const auto now = hasFocus() ? std::optional(focused_field()) : std::nullopt;
  for (const auto& changed : {std::exchange(face_.focused, now), now}) {
    if (changed && face_.geometry.has(changed->key)) update_pixels(picture_.marks_place(*changed));
  }
}

void PianoKeyboard::keyPressEvent(QKeyEvent* event) {
  if (!take_key(*event)) event->ignore();
}

void PianoKeyboard::keyReleaseEvent(QKeyEvent* event) {
  if (!take_key(*event)) event->ignore();
}

void PianoKeyboard::focusInEvent(QFocusEvent*) {
  show_focus();
  // The fields on the way were told as news; who asks for the name now gets this one.
  QAccessibleEvent renamed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

void PianoKeyboard::focusOutEvent(QFocusEvent*) {
  if (held_ && held_->by != 0) let_go();
  show_focus();
}

bool PianoKeyboard::event(QEvent* event) {
  if (event->type() == QEvent::WindowDeactivate) let_go();
  if (event->type() == QEvent::ScreenChangeInternal) lay_out();
  return QWidget::event(event);
}

void PianoKeyboard::resizeEvent(QResizeEvent*) {
  lay_out();
}

void PianoKeyboard::lay_out() {
  face_.ratio = devicePixelRatioF();
  // Where a logical pixel is no whole number of the screen's, the keyboard begins at the first of
  // these that is all its own.
  const int cut = face_.ratio == std::floor(face_.ratio) ? 0 : 1;
  const auto pixels = [&](int logical) {
    return std::max(1, static_cast<int>(std::floor(logical * face_.ratio)) - cut);
  };
  face_.geometry = KeyboardGeometry(face_.geometry.keys(), pixels(width()), pixels(height()));
  texts_changed_ = true;
  const KeyRange& keys = face_.geometry.keys();
  for (int number = keys.lowest; number <= keys.highest; ++number) {
    const Box box = face_.geometry.key(number);
    key(number).setGeometry(QRectF(QPointF(box.left, box.top) / face_.ratio,
                                   QPointF(box.right, box.bottom) / face_.ratio)
                                .toAlignedRect()
                                .adjusted(0, 0, cut, cut));
  }
  update();
}

QPointF PianoKeyboard::corner() const {
  const QPointF origin = QPointF(mapTo(window(), QPoint())) * face_.ratio;
  return QPointF(std::ceil(origin.x()), std::ceil(origin.y())) - origin;
}

QPointF PianoKeyboard::logical(const QPointF& pixel) const {
  return (pixel + corner()) / face_.ratio;
}

std::optional<KeyPlace> PianoKeyboard::place_at(const QPointF& at) const {
  const QPointF pixel = at * face_.ratio - corner();
  return face_.geometry.at(pixel.x(), pixel.y());
}

void PianoKeyboard::update_pixels(const QRect& pixels) {
  update(QRectF(logical(pixels.topLeft()), QSizeF(pixels.size()) / face_.ratio).toAlignedRect());
}

void PianoKeyboard::update_key(int key) {
  if (!face_.geometry.has(key)) return;
  const Box box = face_.geometry.key(key);
  update_pixels({box.left, box.top, box.width(), box.height()});
}

void PianoKeyboard::paintEvent(QPaintEvent* event) {
  if (std::exchange(texts_changed_, false)) picture_.lay_out();
  QPainter painter(this);
  const QPointF zero = logical({});
  painter.translate(zero);
  painter.scale(1 / face_.ratio, 1 / face_.ratio);
  const QRectF part = QRectF(event->rect()).translated(-zero);
  picture_.paint(painter,
                 QRectF(part.topLeft() * face_.ratio, part.size() * face_.ratio).toAlignedRect());
}

}  // namespace tonarix
