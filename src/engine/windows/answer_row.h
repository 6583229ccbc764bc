#pragma once

#include <QWidget>
#include <array>

#include "base/windows/widgets.h"

namespace tonarix {

/// The answer to one interval: an empty frame until there is one, with a strong edge while it is
/// asked.
class AnswerField final : public Label {
 public:
  explicit AnswerField(QWidget* parent);
  /// `tries` left to answer it, shown as quiet dots.
  void set_current(bool current, int tries);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool current_ = false;
  int tries_ = 0;
};

/// The number of the interval that is asked, with a pointer.
class NumberMark final : public QWidget {
 public:
  using QWidget::QWidget;
  void set_text(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
};

/// A tone that sounds now: a filled circle, no name.
class SoundingMark final : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The tone row: a place for each tone and between them the answer fields. It breaks into lines
/// where the window is too narrow.
class AnswerRow final : public QWidget {
 public:
  static constexpr int kFields = 5;

  AnswerRow(bool sounds, QWidget* parent);

  /// A small heading above the place of the first tone.
  void set_lead(Label& lead);
  /// Numbers that stand above the fields that are not asked now.
  void set_number(int field, const QString& number);
  /// Shown fields, the one that is asked, -1 for none, and how many tries it has left.
  void show_state(int fields, int current, int tries);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  std::array<AnswerField*, kFields> fields{};
  std::array<NumberMark*, kFields> marks{};
  std::array<SoundingMark*, kFields + 1> sounding{};

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void arrange();
  QPoint place_of(int tone) const;
  int columns() const;
  int field_width() const;

  bool sounds_;
  int count_ = kFields;
  int current_ = -1;
  Label* lead_ = nullptr;
  std::array<QString, kFields> numbers_;
};

}  // namespace tonarix
