#pragma once

#include <QWidget>

#include "results/sheet_picture.h"

namespace tonarix {

/// The sheet on the screen: the picture of the page, in colour. It grows with its window.
class SheetWidget final : public QWidget {
 public:
  explicit SheetWidget(QWidget* parent);
  /// Shrinks no further than to `smallest`, 1 for its natural size.
  void set_picture(SheetPicture picture, double smallest);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  SheetPicture picture_;
  double smallest_ = 1;
};

}  // namespace tonarix
