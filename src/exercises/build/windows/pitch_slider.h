#pragma once

#include <optional>

#include "base/windows/widgets.h"

namespace tonarix {

/// The slider that forms a tone, from low on the left to high on the right. It follows the hand at
/// once and tells its value to nobody: the student is to hear it. Its marks part the width, not the
/// range. Arrow keys and each notch of the wheel move it one step, page keys five.
class PitchSlider final : public Slider {
 public:
  /// From either edge of the widget to the end of the handle's way, in logical pixels.
  static constexpr int kEnd = 24;

  explicit PitchSlider(QWidget* parent = nullptr);
  /// Colour of the bar.
  void set_ground(const QColor& ground);
  /// Where the middle of the handle stands, in logical pixels from the left edge.
  double handle_x() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;
  void sliderChange(SliderChange change) override;

 private:
  double way() const;
  void move_handle(double x);
  void draw_ticks(QPainter& painter) const;
  void draw_handle(QPainter& painter, double x) const;

  QColor ground_;
  std::optional<double> grip_;  ///< from the handle's middle to the hand while it is held
  double drawn_x_ = 0;
  int wheel_rest_ = 0;  ///< of a notch, in eighths of a degree
};

}  // namespace tonarix
