#pragma once

#include <QPainter>
#include <QRect>
#include <optional>

#include "exercises/play/windows/name_rows.h"

namespace tonarix {

/// Draws a keyboard. Lengths are pixels of the screen from the keyboard's upper left corner.
class KeyboardPicture {
 public:
  explicit KeyboardPicture(const KeyboardFace& face) : face_(face) {}

  /// Chooses the sizes of the names anew, after a change of geometry or texts.
  void lay_out() { rows_ = NameRows(face_); }
  /// Draws what lies within `part`.
  void paint(QPainter& painter, const QRect& part) const;

  /// What the name of a field covers; empty where none is printed.
  QRectF name_place(const Field& field) const;
  /// The label that tells the name of a field without room for it, while it is under the pointer or
  /// focused. It lies above its field, for want of room below, and within the keyboard.
  std::optional<QRect> label_place(const Field& field) const;
  /// All that may change when the marks of a field come or go.
  QRect marks_place(const Field& field) const;

 private:
  int pixels(double logical) const;
  void TasteCaption(QPainter& painter, const Field& field) const;
  void draw_white(QPainter& painter, int key) const;
  void draw_black(QPainter& painter, int key) const;
  void draw_hatch(QPainter& painter, int key) const;
  void draw_finished_tone(QPainter& painter) const;
  void draw_hover(QPainter& painter) const;
  void draw_focus(QPainter& painter) const;
  void draw_labels(QPainter& painter) const;
  QColor surface(int key) const;
  QColor ink(const Field& field) const;

  const KeyboardFace& face_;
  NameRows rows_;
};

}  // namespace tonarix
