#include "base/windows/widget_maker.h"

#include <QButtonGroup>

namespace tonarix {

WidgetMaker::WidgetMaker(const Texts& texts)
    : texts_(texts), bindings_(texts), content_(new QWidget) {}

Button* WidgetMaker::button(const Control& control, Bindings::Handler pressed, Binding look) {
  auto* made = new Button(content_);
  bindings_.bind(*made, control, std::move(pressed), look);
  return made;
}

Label* WidgetMaker::label(const Control& control, TextRole role, Binding look) {
  auto* made = new Label(role, content_);
  bindings_.bind(*made, control, look);
  return made;
}

Label* WidgetMaker::text(const QString& words, TextRole role) {
  auto* made = new Label(role, content_);
  made->setText(words);
  return made;
}

ListBox* WidgetMaker::list(const ListControl& control, Bindings::NumberHandler chosen,
                           Binding look) {
  auto* made = new ListBox(content_);
  bindings_.bind(*made, control, std::move(chosen), look);
  return made;
}

Slider* WidgetMaker::slider(const SliderControl& control, Bindings::NumberHandler moved,
                            Binding look) {
  auto* made = new Slider(content_);
  bindings_.bind(*made, control, std::move(moved), look);
  return made;
}

Card* WidgetMaker::card(const Control* frame, const Control* title) {
  auto* made = new Card(content_);
  bindings_.bind(*made, frame, title);
  return made;
}

QButtonGroup* WidgetMaker::group() {
  return new QButtonGroup(content_);
}

Option* WidgetMaker::option(const OptionControl& control, QButtonGroup& group,
                            Bindings::Handler chosen, Binding look) {
  auto* made = new Option(content_);
  bindings_.bind(*made, control, group, std::move(chosen), look);
  return made;
}

}  // namespace tonarix
