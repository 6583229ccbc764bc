#include "results/windows/sheet_widget.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "results/windows/sheet_painter.h"

namespace tonarix {

namespace {
constexpr QSize kLongest{794, 560};  // the longest sheet, asked for before it is filled
}  // namespace

SheetWidget::SheetWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("sheet"));
  setFocusPolicy(Qt::TabFocus);  // so that a screen reader comes by
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SheetWidget::set_picture(SheetPicture picture, double smallest) {
  picture_ = std::move(picture);
  smallest_ = smallest;
  updateGeometry();
  update();
}

QSize SheetWidget::sizeHint() const {
  return kLongest;
}

QSize SheetWidget::minimumSizeHint() const {
  return (QSizeF(picture_.width, picture_.height) * smallest_).toSize();
}

void SheetWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double needed = picture_.height > 0 ? picture_.width / picture_.height * height() : 0;
  paint_sheet(painter, picture_, QRectF(0, 0, std::min<double>(needed, width()), height()));
}

}  // namespace tonarix
