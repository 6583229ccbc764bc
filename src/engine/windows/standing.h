#pragma once

#include <QWidget>

#include "base/windows/widgets.h"

namespace tonarix {

/// How far a training is from solved (0 %) and from too difficult (100 %): what its two ends mean,
/// a bar and its number. The part that the last task won or lost stays marked.
class PercentBar final : public QWidget {
 public:
  struct Words {
    QString percent;  ///< "%1 %"
    QString solved;
    QString too_difficult;
  };

  PercentBar(Words words, QWidget* parent);
  void set_percent(int percent);
  /// "37 %", empty at the solved end: there the word says it, and no 0 is taken for a failure.
  QString number() const { return percent_ > 0 ? words_.percent.arg(percent_) : QString(); }

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void draw_bar(QPainter& painter) const;

  Words words_;
  int percent_ = -1;
  int before_ = -1;
};

/// The end of a training on a surface of its colour, with its sign.
class EndPanel final : public Label {
 public:
  EndPanel(Sign sign, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tonarix
