#include "base/windows/bindings.h"

#include <QApplication>
#include <QButtonGroup>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "base/module_texts.h"
#include "base/windows/accessibility.h"
#include "base/windows/mnemonics.h"

namespace tonarix {
namespace {

std::optional<QColor> to_qcolor(const std::optional<Colour>& colour) {
  if (!colour) return std::nullopt;
  return theme::colour(*colour);
}

/// Blanks that pad numbers to one width on the left become as wide as a digit, which is two blanks
/// in the font; blanks on the right go.
QString entry_text(const std::string& text) {
  const QString entry = to_qstring(text);
  qsizetype blanks = 0;
  while (blanks < entry.size() && entry[blanks] == QLatin1Char(' ')) ++blanks;
  return QString(blanks, QLatin1Char(' ')) + entry.left(blanks) + entry.trimmed();
}

void set_entries(ListBox& list, const ListControl& control) {
  bool same = list.count() == static_cast<int>(control.items.size());
  for (int i = 0; same && i < list.count(); ++i) {
    same = list.itemData(i).toByteArray().toStdString() ==
           control.items[static_cast<std::size_t>(i)].text;
  }
  if (same) return;
  list.clear();
  for (const ListControl::Item& item : control.items) {
    list.addItem(entry_text(item.text), QByteArray::fromStdString(item.text));
    list.setItemData(list.count() - 1, item.gap, ListBox::gap_role);
  }
}

/// A light colour is no ink on white: it becomes the surface instead.
void set_list_colours(ListBox& list, const std::optional<QColor>& back,
                      const std::optional<QColor>& fore) {
  QPalette palette;
  std::optional<QColor> surface = back;
  if (fore && theme::ink_on(*fore) != QColor(Qt::white)) {
    surface = fore;
  } else if (fore) {
    palette.setColor(QPalette::Active, QPalette::ButtonText, *fore);
    palette.setColor(QPalette::Inactive, QPalette::ButtonText, *fore);
  }
  palette.setColor(QPalette::Button, surface.value_or(theme::colour(theme::card)));
  if (surface) palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x6B, 0x38, 0x38));
  list.setPalette(palette);
}

Label::Sign sign_of(const Control& control) {
  if (control.back == signal::right || control.fore == signal::right) return Label::Sign::right;
  if (control.back == signal::wrong || control.fore == signal::wrong) return Label::Sign::wrong;
  return Label::Sign::none;
}

}  // namespace

QString to_qstring(const std::string& text) {
  return QString::fromStdString(text);
}

Bindings::Joint& Bindings::join(QWidget& widget, const Control& control, Binding look) {
  widget.setObjectName(to_qstring(control.object_name()));
  if (look.keep_place) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
  }
  joints_.push_back({&control, &widget, look, {}, {}, {}, {}, nullptr, false, false});
  return joints_.back();
}

void Bindings::bind(Button& button, const Control& control, Handler pressed, Binding look) {
  Joint& joint = join(button, control, look);
  joint.set_caption = [&button](const QString& caption) { button.setText(caption); };
  joint.set_colours = [&button](auto back, auto fore) { button.set_colours(back, fore); };
  joint.takes_mnemonic = look.mnemonic;
  joint.button = &button;
  QObject::connect(&button, &QPushButton::clicked, &button,
                   [this, &button, &control, pressed = std::move(pressed)] {
                     forward(button, control, pressed, true);
                   });
}

void Bindings::bind(Label& label, const Control& control, Binding look) {
  Joint& joint = join(label, control, look);
  joint.set_caption = [&label](const QString& caption) { label.setText(caption); };
  joint.set_colours = [&label, &control, signs = look.signs](auto back, auto fore) {
    label.set_colours(back, fore);
    if (signs) label.set_sign(sign_of(control));
  };
}

void Bindings::bind(Option& option, const OptionControl& control, QButtonGroup& group,
                    Handler chosen, Binding look) {
  group.addButton(&option);
  Joint& joint = join(option, control, look);
  joint.is_option = true;
  joint.set_caption = [&option](const QString& caption) { option.setText(caption); };
  joint.refresh = [this, &option, &control, &group] {
    if (option.isChecked() == control.value) return;
    const QScopedValueRollback applying(applying_, true);
    // The group would refuse to leave itself without a chosen option.
    group.setExclusive(false);
    option.setChecked(control.value);
    group.setExclusive(true);
  };
  // A screen reader's action toggles without a click.
  QObject::connect(&option, &QRadioButton::toggled, &option,
                   [this, &option, &control, chosen = std::move(chosen)](bool on) {
                     if (on && !applying_) forward(option, control, chosen);
                   });
}

void Bindings::bind(ListBox& list, const ListControl& control, NumberHandler chosen, Binding look) {
  Joint& joint = join(list, control, look);
  joint.refresh = [&list, &control] {
    const QSignalBlocker quiet(list);
    set_entries(list, control);
    if (list.currentIndex() != control.selected) list.setCurrentIndex(control.selected);
  };
  joint.set_colours = [&list](auto back, auto fore) { set_list_colours(list, back, fore); };
  list.may_open = [this, &list, &control] { return live_ && admits(list, control, false); };
  QObject::connect(&list, &QComboBox::activated, &list,
                   [this, &list, &control, chosen = std::move(chosen)](int index) {
                     if (index != control.selected) {
                       forward(list, control, [&chosen, index] { chosen(index); });
                     }
                     list.told();
                   });
  // A second click on an entry would hit what lies below it.
  list.on_closed = [this, &control] {
    if (live_) control.window().guard.uncovered(control.window().now());
  };
}

void Bindings::bind(Slider& slider, const SliderControl& control, NumberHandler moved,
                    Binding look) {
  Joint& joint = join(slider, control, look);
  joint.refresh = [&slider, &control] {
    const QSignalBlocker quiet(slider);
    slider.setRange(control.minimum, control.maximum);
    slider.setValue(control.value);
  };
  QObject::connect(&slider, &QSlider::valueChanged, &slider,
                   [this, &slider, &control, moved = std::move(moved)](int value) {
                     forward(slider, control, [&moved, value] { moved(value); });
                   });
}

void Bindings::bind(Card& card, const Control* frame, const Control* title) {
  if (title) {
    Joint& joint = join(card.title(), *title, {});
    joint.takes_mnemonic = true;
    joint.set_caption = [&card](const QString& caption) { card.title().setText(caption); };
  }
  if (!frame) return;
  if (title) titles_[frame] = title;
  Joint& joint = join(card, *frame, {});
  joint.set_colours = [&card](auto back, auto) { card.set_surface(back); };
  joint.refresh = [this, &card, frame, title, shown = std::optional<QString>()]() mutable {
    const bool locked = !frame->enabled || frame->back == signal::locked;
    QStringList marks;
    if (locked) marks << to_qstring(texts_.Wort(text::locked));
    if (!frame->tag.empty()) marks << to_qstring(texts_.Wort(438_text));
    const QString mark = marks.join(QLatin1String(", "));
    if (shown != mark) card.set_mark(mark, locked);
    shown = mark;
    if (!title) return;
    const QString name = to_qstring(title->text);
    set_accessible_name(card, mark.isEmpty() ? name : name + QLatin1String(", ") + mark);
  };
}

void Bindings::bind(QWidget& widget, const Control& control, Handler refresh, Binding look) {
  join(widget, control, look).refresh = std::move(refresh);
}

bool Bindings::admits(const QWidget& widget, const Control& control, bool button) const {
  // A box in front holds back the pointer and the keys by itself, a screen reader's action not.
  const QWidget* front = QApplication::activeModalWidget();
  if (front && front != widget.window()) return false;
  const Window& window = control.window();
  if (!window.takes_input(control)) return false;
  return button ? window.guard.admits(&control, window.now()) : window.guard.settled(window.now());
}

void Bindings::forward(const QWidget& widget, const Control& control, const Handler& handler,
                       bool button) {
  if (!live_) return;
  if (admits(widget, control, button)) handler();
  apply();
}

void Bindings::apply() {
  if (!live_) return;
  for (Joint& joint : joints_) apply(joint);
  if (captions_changed_) assign_mnemonics();
  if (parked_ && parked_->isEnabled() && parked_->isVisible()) {
    const QWidget* focus = parked_->window()->focusWidget();
    if (!focus || focus == parked_->window()) parked_->setFocus(Qt::OtherFocusReason);
    parked_ = nullptr;
  }
}

void Bindings::apply(Joint& joint) {
  const Control& control = *joint.control;
  Shown& shown = joint.shown;
  const bool frame = dynamic_cast<Card*>(joint.widget) != nullptr;
  const bool enabled =
      frame || (control.enabled && (!control.container || control.container->open()));
  if (shown.enabled != enabled || shown.visible != control.visible) {
    if ((!enabled || !control.visible) && joint.widget == joint.widget->window()->focusWidget()) {
      // Left alone the focus would jump to a neighbour, and the next stroke press it. A button
      // keeps it although it is closed; where that can't be, it comes back later.
      if (control.visible && joint.button) {
        joint.button->close_in_place();
      } else {
        parked_ = joint.widget;
        joint.widget->window()->setFocus(Qt::OtherFocusReason);
      }
    }
    if (joint.button) {
      joint.button->set_open(enabled);
    } else if (shown.enabled != enabled) {
      joint.widget->setEnabled(enabled);
    }
    if (shown.visible != control.visible) {
      joint.widget->setVisible(control.visible);
      captions_changed_ |= joint.takes_mnemonic;
    }
    shown.enabled = enabled;
    shown.visible = control.visible;
  }
  apply_captions(joint);
  apply_reason(joint);
  if (joint.set_colours &&
      (!shown.coloured || shown.back != control.back || shown.fore != control.fore)) {
    joint.set_colours(to_qcolor(control.back), to_qcolor(control.fore));
    shown.coloured = true;
    shown.back = control.back;
    shown.fore = control.fore;
  }
  if (joint.refresh) joint.refresh();
}

void Bindings::apply_captions(Joint& joint) {
  const Control& control = *joint.control;
  Shown& shown = joint.shown;
  const bool same_text = shown.text == control.text;
  const std::string group = group_of(joint);
  if (same_text && shown.accessible_name == control.accessible_name && shown.group == group) return;
  shown.text = control.text;
  shown.accessible_name = control.accessible_name;
  shown.group = group;
  if (!same_text && joint.set_caption) {
    if (joint.takes_mnemonic) {
      captions_changed_ = true;
    } else {
      const bool label = dynamic_cast<QLabel*>(joint.widget) != nullptr;
      joint.set_caption(label ? to_qstring(control.text) : plain_caption(to_qstring(control.text)));
    }
  }
  apply_name(joint);
}

void Bindings::apply_name(Joint& joint) {
  const Control& control = *joint.control;
  QString name =
      to_qstring(control.accessible_name.empty() ? control.text : control.accessible_name);
  // "ja" says nothing to who cannot see the title above it.
  if (!joint.shown.group->empty()) {
    name = to_qstring(*joint.shown.group + texts_.Wort(700_text)) + name;
  } else if (joint.set_caption && control.accessible_name.empty()) {
    name.clear();  // the caption serves
  }
  if (auto* list = dynamic_cast<ListBox*>(joint.widget)) {
    list->set_name(name);
  } else {
    set_accessible_name(*joint.widget, name);
  }
}

void Bindings::apply_reason(Joint& joint) {
  std::string why = why_not_open(*joint.control);
  if (joint.shown.why == why) return;
  joint.shown.why = std::move(why);
  const QString reason = to_qstring(joint.shown.why);
  joint.widget->setToolTip(reason);
  if (auto* option = dynamic_cast<Option*>(joint.widget)) {
    option->set_reason(reason);
  } else {
    joint.widget->setAccessibleDescription(reason);
  }
}

std::string Bindings::group_of(const Joint& joint) const {
  if (!joint.is_option) return {};
  const auto title = titles_.find(joint.control->container);
  return title == titles_.end() ? std::string() : title->second->text;
}

void Bindings::assign_mnemonics() {
  captions_changed_ = false;
  QSet<QChar> taken;
  for (const bool buttons : {true, false}) {
    for (Joint& joint : joints_) {
      if (!joint.takes_mnemonic || !joint.control->visible) continue;
      if ((dynamic_cast<Button*>(joint.widget) != nullptr) != buttons) continue;
      joint.set_caption(caption_with_mnemonic(to_qstring(joint.control->text), taken));
    }
  }
}

}  // namespace tonarix
