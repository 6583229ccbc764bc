#pragma once

#include "base/windows/window_view.h"
#include "config/selection_window.h"

namespace tonarix {

/// The first window on the screen: what to practise.
class SelectionView final : public WindowView {
 public:
  SelectionView(SelectionWindow& window, const Texts& texts);

 protected:
  void applied() override;
  void fit() override;

 private:
  void explain();

  QVBoxLayout* rows_;
  QHBoxLayout* groups_;
  Label* question_;
  Label* subject_;
  Label* area_;
  std::vector<Option*> areas_;
  std::vector<Option*> exercises_;
};

}  // namespace tonarix
