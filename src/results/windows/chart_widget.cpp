#include "results/windows/chart_widget.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "base/windows/style.h"
#include "base/windows/theme.h"

namespace tonarix {

namespace {

constexpr int kLine = 18;
constexpr int kSmallestLine = 13;
constexpr int kHead = 18;
constexpr int kMostLines = 19;
constexpr int kWidth = 200;
constexpr int kSmallestWidth = 168;
constexpr double kGap = 6;

QFont small_font() {
  return theme::font(TextRole::note);
}

}  // namespace

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("chart"));
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartWidget::set_chart(Chart chart, std::array<QString, 2> directions, const QString& name) {
  chart_ = std::move(chart);
  directions_ = std::move(directions);
  setAccessibleName(name);
  setAccessibleDescription(QString::fromStdString(chart_.text));
  updateGeometry();
  update();
}

QSize ChartWidget::sizeHint() const {
  return {kWidth, kHead + kMostLines * kLine};
}

QSize ChartWidget::minimumSizeHint() const {
  return {kSmallestWidth, kHead + std::max(chart_.lines, 1) * kSmallestLine};
}

double ChartWidget::label_width() const {
  const QFontMetricsF metrics(small_font());
  double widest = 0;
  for (const Bar& bar : chart_.bars) {
    widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdString(bar.label)));
  }
  return widest;
}

QRectF ChartWidget::bar_room(int column, double top, double height) const {
  const double label = label_width() + 2 * kGap;
  if (!chart_.two_sided) return {label, top, width() - label - 1, height};
  const double side = (width() - label) / 2;
  return column == 0 ? QRectF(1, top, side - 1, height)
                     : QRectF(side + label, top, side - 1, height);
}

void ChartWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(small_font());
  if (chart_.bars.empty()) {
    painter.setPen(theme::colour(theme::note));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     QString::fromStdString(chart_.text));
    return;
  }
  const double line =
      std::min<double>(kLine + 4, double(height() - kHead) / std::max(chart_.lines, 1));
  if (chart_.two_sided) {
    painter.setPen(theme::colour(theme::note));
    const QRectF left = bar_room(0, 0, kHead), right = bar_room(1, 0, kHead);
    const QFontMetricsF metrics(small_font());
    painter.drawText(left, Qt::AlignRight | Qt::AlignTop,
                     metrics.elidedText(directions_[0], Qt::ElideRight, left.width()));
    painter.drawText(right, Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(directions_[1], Qt::ElideRight, right.width()));
  }
  const QColor edge = theme::colour(theme::hairline).darker(130);
  const double label_left = chart_.two_sided ? bar_room(0, 0, 1).right() : 0;
  for (const Bar& bar : chart_.bars) {
    const double top = kHead + bar.line * line;
    QRectF box = bar_room(bar.column, top + 2, line - 4);
    painter.setPen(QPen(theme::colour(theme::hairline), 1));
    const double base = chart_.two_sided && bar.column == 0 ? box.right() : box.left();
    painter.drawLine(QPointF(base, top), QPointF(base, top + line));
    const double length = box.width() * bar.length;
    if (chart_.two_sided && bar.column == 0) {
      box.setLeft(box.right() - length);
    } else {
      box.setWidth(length);
    }
    if (length > 0) draw_surface(painter, box, theme::colour(bar.colour), edge, 2);
    painter.setPen(theme::colour(theme::ink));
    painter.drawText(QRectF(label_left, top, label_width() + 2 * kGap, line), Qt::AlignCenter,
                     QString::fromStdString(bar.label));
  }
}

}  // namespace tonarix
