#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/texts.h"
#include "base/window.h"
#include "base/windows/list_box.h"
#include "base/windows/widgets.h"

class QButtonGroup;

namespace tonarix {

/// How a bound widget behaves beside what its control says.
struct Binding {
  bool keep_place = false;  ///< leaves its place empty while hidden, so that nothing jumps
  bool mnemonic = true;     ///< gets a letter for Alt; off for answer buttons, which have numbers
  bool signs = false;       ///< a label on the colours of right and wrong gets a check or a cross
};

QString to_qstring(const std::string& text);

/// Joins the widgets of one window to the states of its controls. Each bound widget takes the
/// control's name as its object name. `apply` brings visible, enabled, caption, colours, value and
/// accessible name into the widgets and touches only what has changed; while a control is not open
/// its reason is tooltip and accessible description. What the user does reaches the handler when
/// the control is open, what `apply` does never. After a handler the state is applied again, so a
/// choice that the logic refused does not stay on the screen.
class Bindings {
 public:
  using Handler = std::function<void()>;
  using NumberHandler = std::function<void(int)>;

  explicit Bindings(const Texts& texts) : texts_(texts) {}
  Bindings(const Bindings&) = delete;
  Bindings& operator=(const Bindings&) = delete;

  /// The handlers below run on a press, a choice by the user or a move of the slider.
  void bind(Button& button, const Control& control, Handler pressed, Binding look = {});
  void bind(Label& label, const Control& control, Binding look = {});
  /// An option of `group`; the options of one group exclude each other.
  void bind(Option& option, const OptionControl& control, QButtonGroup& group, Handler chosen,
            Binding look = {});
  /// The handler gets the index of the entry.
  void bind(ListBox& list, const ListControl& control, NumberHandler chosen, Binding look = {});
  void bind(Slider& slider, const SliderControl& control, NumberHandler moved, Binding look = {});
  /// The back colour is the card's surface. A frame that is disabled or light red is marked
  /// "locked", one that carries a tag is marked as part of an exam. The title names the options
  /// inside for a screen reader. Either may be null.
  void bind(Card& card, const Control* frame, const Control* title);
  /// A drawn widget of its own kind: visible, enabled and name as above; `refresh` runs with each
  /// `apply` and finds out itself what has changed.
  void bind(QWidget& widget, const Control& control, Handler refresh, Binding look = {});

  /// Reads the state of all controls again.
  void apply();
  /// The logic is about to go: nothing is read or forwarded from here on.
  void close() { live_ = false; }
  bool live() const { return live_; }

 private:
  struct Shown {
    std::optional<bool> visible, enabled;
    std::optional<std::string> text, accessible_name, group;
    std::string why;
    std::optional<Colour> back, fore;
    bool coloured = false;
  };
  struct Joint {
    const Control* control;
    QWidget* widget;
    Binding look;
    Shown shown;
    std::function<void(const QString&)> set_caption;  ///< null where there is none
    std::function<void(std::optional<QColor> back, std::optional<QColor> fore)> set_colours;
    Handler refresh;           ///< value, items, surface
    Button* button = nullptr;  ///< where the widget is one
    bool takes_mnemonic = false;
    bool is_option = false;
  };

  Joint& join(QWidget& widget, const Control& control, Binding look);
  void apply(Joint& joint);
  void apply_captions(Joint& joint);
  void apply_name(Joint& joint);
  static void apply_reason(Joint& joint);
  std::string group_of(const Joint& joint) const;
  void assign_mnemonics();
  bool admits(const QWidget& widget, const Control& control, bool button) const;
  void forward(const QWidget& widget, const Control& control, const Handler& handler,
               bool button = false);

  const Texts& texts_;
  std::deque<Joint> joints_;
  std::map<const Control*, const Control*> titles_;  ///< by frame
  bool live_ = true;
  bool captions_changed_ = false;
  bool applying_ = false;
  QWidget* parked_ = nullptr;  ///< lost the focus when it was disabled; gets it back
};

}  // namespace tonarix
