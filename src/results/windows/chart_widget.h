#pragma once

#include <QWidget>

#include "results/chart.h"

namespace tonarix {

/// Bars per interval in the sheet's order. Where the table has two columns the rising intervals
/// point to the left and the falling to the right of their names, as the columns stand.
class ChartWidget final : public QWidget {
 public:
  explicit ChartWidget(QWidget* parent);
  void set_chart(Chart chart, std::array<QString, 2> directions, const QString& name);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  double label_width() const;
  QRectF bar_room(int column, double top, double height) const;

  Chart chart_;
  std::array<QString, 2> directions_;
};

}  // namespace tonarix
