#pragma once

#include <QBoxLayout>
#include <QWidget>
#include <vector>

#include "base/windows/bindings.h"

namespace tonarix {

/// Makes the widgets of a window inside its content and binds each to its control; a layout gives
/// it its place. Create them in reading order: that is the tab order too.
class WidgetMaker {
 protected:
  explicit WidgetMaker(const Texts& texts);

  QWidget& content() const { return *content_; }
  Bindings& bindings() { return bindings_; }
  const Texts& texts() const { return texts_; }
  /// A text of the catalogue that no control carries.
  QString word(TextKey key) const { return to_qstring(texts_.Wort(key)); }

  Button* button(const Control& control, Bindings::Handler pressed, Binding look = {});
  Label* label(const Control& control, TextRole role, Binding look = {});
  /// A text that stays.
  Label* text(const QString& words, TextRole role);
  ListBox* list(const ListControl& control, Bindings::NumberHandler chosen, Binding look = {});
  Slider* slider(const SliderControl& control, Bindings::NumberHandler moved, Binding look = {});
  Card* card(const Control* frame, const Control* title);
  QButtonGroup* group();
  Option* option(const OptionControl& control, QButtonGroup& group, Bindings::Handler chosen,
                 Binding look = {});
  /// A row or column of options that exclude each other; the handler gets the option's index.
  template <int First, int Last>
  std::vector<Option*> options(const ControlArray<OptionControl, First, Last>& controls,
                               QBoxLayout& into, const Bindings::NumberHandler& chosen,
                               Binding look = {}) {
    std::vector<Option*> made;
    QButtonGroup* together = group();
    for (const OptionControl& control : controls) {
      const int index = *control.index();
      made.push_back(option(
          control, *together, [chosen, index] { chosen(index); }, look));
      into.addWidget(made.back());
    }
    return made;
  }

 private:
  const Texts& texts_;
  Bindings bindings_;
  QWidget* content_;  ///< belongs to the window that shows it
};

}  // namespace tonarix
