#pragma once

#include <QWidget>
#include <vector>

namespace tonarix {

/// One place for widgets of which at most one shows: as large as the largest, so that nothing moves
/// when they change over.
class Place final : public QWidget {
 public:
  explicit Place(QWidget* parent);
  void add(QWidget& widget, Qt::Alignment alignment = {});
};

/// A line of things to press: one group on the left, one on the right. Where the window is too
/// narrow for both it breaks into further lines instead of cutting anything off.
class ActionLine final : public QWidget {
 public:
  explicit ActionLine(QWidget* parent);
  void add_left(QWidget& widget) { add(left_, widget); }
  void add_right(QWidget& widget) { add(right_, widget); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void add(std::vector<QWidget*>& group, QWidget& widget);
  void arrange();
  static int width_of(const QWidget& widget);
  int width_of(const std::vector<QWidget*>& group) const;

  std::vector<QWidget*> left_;
  std::vector<QWidget*> right_;
};

}  // namespace tonarix
