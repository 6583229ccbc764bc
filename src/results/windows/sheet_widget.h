#pragma once

#include <QWidget>

#include "results/sheet_picture.h"

namespace tonarix {

/// The sheet on the screen: the picture of the page, in colour. It grows with its window and can
/// shrink to four fifths of its natural size.
class SheetWidget final : public QWidget {
 public:
  explicit SheetWidget(QWidget* parent);
  /// `spoken` is the same in words, a line each.
  void set_picture(SheetPicture picture, const QString& name, const QString& spoken);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  SheetPicture picture_;
};

}  // namespace tonarix
