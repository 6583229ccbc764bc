#pragma once

#include "base/windows/window_view.h"
#include "results/result_window.h"

namespace tonarix {

class ChartWidget;
class SheetWidget;

/// The result sheet on the screen: the page in colour, beside it the chart, below the ways on.
class ResultView final : public WindowView {
 public:
  ResultView(ResultWindow& window, const Texts& texts);

 protected:
  void applied() override;

 private:
  ResultWindow& window_;
  SheetWidget* sheet_;
  ChartWidget* chart_;
  Card* chart_card_;
  bool shown_ = false;
};

}  // namespace tonarix
