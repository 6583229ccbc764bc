#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <optional>

#include "base/windows/theme.h"

class QVBoxLayout;
class QHBoxLayout;

namespace tonarix {

/// A button. It takes the keyboard's focus by Tab only, so that a mouse click leaves it where it
/// is. One that is closed while it has the focus keeps it: who works by keys stays where they were.
class Button : public QPushButton {
 public:
  explicit Button(QWidget* parent = nullptr);
  /// The one action that goes on is drawn in the accent colour.
  void set_primary(bool primary);
  bool primary() const { return primary_; }
  void set_colours(std::optional<QColor> back, std::optional<QColor> fore);
  const std::optional<QColor>& back() const { return back_; }
  /// Colour of the caption while enabled.
  QColor ink() const;
  /// Opens it, or closes it and lets the focus go.
  void set_open(bool open);
  /// The next `set_open(false)` leaves it the focus.
  void close_in_place() { keeps_focus_ = true; }
  /// True when a press can count.
  bool open() const { return isEnabled() && !closed_; }
  /// The key that presses it, as it is printed on it: "3"; empty for none.
  void set_key(const QString& key, const QString& spoken);
  const QString& key() const { return key_; }
  const QString& spoken_key() const { return spoken_key_; }

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool closed_ = false;
  bool keeps_focus_ = false;
  QString key_;
  QString spoken_key_;  ///< "key 3"
  bool primary_ = false;
  std::optional<QColor> back_;
  std::optional<QColor> fore_;
};

/// One of a group of options, with an explaining line below its caption where it has one. While it
/// is not open it shows its tooltip, and a right click or the wheel is meant for its group.
class Option : public QRadioButton {
 public:
  explicit Option(QWidget* parent = nullptr);
  void set_note(const QString& note);
  /// Why it is not open, told to a screen reader before the note; empty while it is open.
  void set_reason(const QString& reason);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent*) override;
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
  bool event(QEvent* event) override;

 private:
  int note_indent() const;
  void describe();
  QString note_;
  QString reason_;
};

/// A slider over whole numbers; the wheel passes it by.
class Slider : public QSlider {
 public:
  explicit Slider(QWidget* parent = nullptr);
  /// Whether a screen reader is told the value. Once, before anybody asks for it.
  void set_value_spoken(bool spoken) { value_spoken_ = spoken; }
  bool value_spoken() const { return value_spoken_; }

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool value_spoken_ = true;
};

/// A text, plain or on a coloured surface with a sign that reads without colour.
class Label : public QLabel {
 public:
  enum class Sign { none, right, wrong };

  explicit Label(TextRole role, QWidget* parent = nullptr);
  void set_colours(std::optional<QColor> back, std::optional<QColor> fore);
  /// A check or a cross before the text.
  void set_sign(Sign sign);
  Sign sign() const { return sign_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  TextRole role_;
  std::optional<QColor> back_;
  Sign sign_ = Sign::none;
};

/// A group on a white or coloured surface: a title, a mark in the corner ("locked"), a body.
class Card : public QFrame {
 public:
  explicit Card(QWidget* parent = nullptr);

  /// Where the group's things go.
  QVBoxLayout& body() { return *body_; }
  /// Line of the title; more may stand at its end.
  QHBoxLayout& head() { return *head_; }
  /// Shows a title; its letter for Alt leads to the group's current control.
  Label& title();
  /// What the group is called: its title, else the first text that shows in it.
  QString title_text() const;
  void set_surface(std::optional<QColor> back);
  /// Mark in the corner; empty for none. `locked` draws a padlock before it.
  void set_mark(const QString& mark, bool locked);
  bool locked() const { return locked_; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QVBoxLayout* body_;
  QHBoxLayout* head_;
  Label* title_ = nullptr;
  Label* mark_ = nullptr;
  std::optional<QColor> back_;
  bool locked_ = false;
};

}  // namespace tonarix
