#pragma once

#include <QWidget>
#include <vector>

#include "base/windows/widgets.h"

namespace tonarix {

/// An answer button, with the key that presses it in grey at its edge.
class AnswerButton final : public Button {
 public:
  using Button::Button;
  /// What is printed on the key for the answer at this place, from 0: 1 to 9, 0, then F2 to F12.
  static QString key_name(int place);
  /// The place whose key this is, -1 for any other key.
  static int place_of_key(int key);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The answers in a fixed grid, row by row. Each button keeps its place, also while others are
/// hidden; only a window too narrow for the columns gets fewer of them.
class AnswerGrid final : public QWidget {
 public:
  /// At most this many columns.
  AnswerGrid(int columns, QWidget* parent);
  void add(AnswerButton& button);
  const std::vector<AnswerButton*>& buttons() const { return buttons_; }
  /// The shown buttons in reading order.
  std::vector<AnswerButton*> shown() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void arrange();
  QSize cell() const;
  int columns_for(int width) const;
  int rows_for(int columns) const;

  int columns_;
  std::vector<AnswerButton*> buttons_;
};

}  // namespace tonarix
