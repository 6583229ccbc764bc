#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <optional>

#include "exercises/play/windows/keyboard_picture.h"

class QKeyEvent;

namespace tonarix {

class PianoKeyboard;

/// One key as a control of its own. It is drawn by its keyboard, on whose other keys it lies.
class PianoKey final : public QWidget {
 public:
  PianoKey(PianoKeyboard& keyboard, int number);
  int number() const { return number_; }

 protected:
  bool event(QEvent* event) override;

 private:
  PianoKeyboard& keyboard_;
  int number_;
};

/// A piano on the screen, as large as the room it gets. Each key is divided into bands; key and
/// band are the field that is pressed.
///
/// A press is told before anything is painted, and the key counts as held until the mouse button or
/// the keyboard's key is let go, the pointer leaves it, the window loses the focus or the key is
/// hidden. A key that is closed or locked while it is held, for example by the answer that it gave,
/// stays held: its tone is heard as long as the student holds it.
///
/// The keyboard takes the focus by Tab, a mouse click leaves it where it is. Left and Right lead to
/// the next key, Up and Down to the next band, Page Up and Page Down an octave further, Home and
/// End to the ends; Return and Space hold the focused field down. A keyboard that is to stay
/// focused must not be disabled: close its keys.
class PianoKeyboard final : public QWidget {
 public:
  explicit PianoKeyboard(QWidget* parent = nullptr);
  ~PianoKeyboard() override;

  // Whoever goes before the keyboard does takes these away: a held key is let go when its window
  // hides.
  /// A key is pressed in a band, or above its bands.
  std::function<void(int key, std::optional<int> band)> on_pressed;
  /// The key that was pressed is let go.
  std::function<void()> on_released;
  /// Keys have led the focus to a field, called so, or could not lead it further or play it.
  std::function<void(const QString& spoken)> on_field_focused;

  /// A key, 0 to 79.
  PianoKey& key(int number) { return *keys_.at(static_cast<std::size_t>(number)); }
  /// All keys by rising pitch, none any more while the keyboard goes.
  const std::array<PianoKey*, kPianoKeys>& keys() const { return keys_; }
  /// Shows these keys, both ends white; the rest is hidden. The focused field stays where it is as
  /// far as the keys reach; at first it is the c in or next above the middle.
  void set_keys(const KeyRange& keys);
  // These paint only what changes.
  void set_texts(int key, const KeyTexts& texts);
  void set_state(int key, const KeyState& state);
  /// The field where the student goes on from; none before the first tone.
  void set_finished_tone(const std::optional<Field>& field);
  /// The word that is told behind the name of a locked field.
  void set_locked_word(const QString& word);

  /// The field that the computer keyboard plays.
  Field focused_field() const;
  /// What a screen reader calls a field, and while it is focused the keyboard.
  QString spoken(const Field& field) const;
  /// Whether the keys take presses.
  bool open() const { return isEnabled() && face_.state_of(focused_field().key).open; }
  /// Presses the focused field and lets it go; while the keys are open.
  void click();
  /// Takes a press or release of a key of the computer keyboard, also for a window whose focus is
  /// elsewhere; one that moves brings the focus here. False for a key that means nothing here:
  /// Return and Space while the keys are closed, any with Shift, Ctrl or Alt.
  bool take_key(const QKeyEvent& event);

  const KeyboardGeometry& geometry() const { return face_.geometry; }
  const KeyboardPicture& picture() const { return picture_; }
  /// The point of the widget, in logical pixels, at a pixel of the keyboard.
  QPointF logical(const QPointF& pixel) const;

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override { return {430, 150}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  friend class PianoKey;
  struct Held {
    int key;
    int by;  ///< Qt::Key, 0 for the mouse
  };

  void mouse_pressed(const QPointF& at);
  void pointer_at(const std::optional<QPointF>& at);
  void mouse_released();
  void press(const KeyPlace& place, int by);
  void let_go();
  bool takes_press(int key) const;
  bool play(const QKeyEvent& event);
  void press_focused(int by);
  void tell_focus() const;
  std::optional<Field> goal(int key) const;
  bool focus_field(const Field& field);
  void show_focus();
  void tell_names(int key);
  void lay_out();
  void update_pixels(const QRect& pixels);
  void update_key(int key);
  QPointF corner() const;
  std::optional<KeyPlace> place_at(const QPointF& at) const;

  KeyboardFace face_;
  KeyboardPicture picture_{face_};
  std::array<PianoKey*, kPianoKeys> keys_{};
  std::optional<Field> focus_;  ///< its band may be one that the key lacks
  std::optional<Held> held_;
  QString locked_word_;
  bool texts_changed_ = true;
};

}  // namespace tonarix
