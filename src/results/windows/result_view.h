#pragma once

#include "base/windows/window_view.h"
#include "results/result_window.h"

namespace tonarix {

class ChartWidget;
class SheetWidget;

/// The result sheet on the screen: the page in colour, beside it the chart, below the ways on. In a
/// narrow window the chart goes below the sheet, and the parts of the sheet stand below each other,
/// so that no row needs scrolling to the side.
class ResultView final : public WindowView {
 public:
  ResultView(ResultWindow& window, const Texts& texts);

 protected:
  void applied() override;
  void fit() override;

 private:
  void lay_out();

  ResultWindow& window_;
  QBoxLayout* parts_;
  SheetWidget* sheet_;
  ChartWidget* chart_;
  Card* chart_card_;
  QSize fitted_;  ///< size of the window for which the parts were laid out
};

}  // namespace tonarix
