#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/colour.h"
#include "base/runtime_error.h"

namespace tonarix {

class Window;

/// The state of one control of a window, under its given name. It belongs to the window for life.
class Control {
 public:
  Control(Window& window, std::string name, std::optional<int> index = std::nullopt);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// The given name; `object_name` has the index behind it where the control is one of an array:
  /// "st_int_3".
  const std::string& name() const { return name_; }
  std::optional<int> index() const { return index_; }
  std::string object_name() const;
  /// True when it and every frame around it is shown and enabled.
  bool open() const { return visible && enabled && (!container || container->open()); }
  const Window& window() const { return window_; }

  bool visible = true;
  bool enabled = true;
  std::string text;              ///< caption, UTF-8
  std::string accessible_name;   ///< for a screen reader; empty: the caption serves
  std::string why;               ///< why it is not open, for a tooltip and a screen reader
  std::string tag;               ///< group title of an option, mark of a frame
  Control* container = nullptr;  ///< the frame that holds it
  std::optional<Colour> back;
  std::optional<Colour> fore;

 private:
  const Window& window_;
  std::string name_;
  std::optional<int> index_;
};

/// Why the user can't act on it: the reason of a frame that is not open, or else its own; empty
/// where it is open or none is given.
std::string why_not_open(const Control& control);

/// One of a group of options; at most one of an array is set.
class OptionControl final : public Control {
 public:
  using Control::Control;
  bool value = false;
};

/// A drop-down list with one selected entry, -1 for none.
class ListControl final : public Control {
 public:
  static constexpr int kPlainEntry = -999;  ///< item data of an entry that stands for its own index
  struct Item {
    std::string text;
    int item_data = kPlainEntry;
    bool gap = false;  ///< only fills a place: the arrow keys pass over it
  };
  using Control::Control;

  void add(std::string item_text, int item_data = kPlainEntry) {
    items.push_back({std::move(item_text), item_data});
  }
  void clear() {
    items.clear();
    selected = -1;
  }
  /// Text of the selected entry, empty when none is selected.
  std::string selected_text() const;

  std::vector<Item> items;
  int selected = -1;
};

/// A slider over whole numbers.
class SliderControl final : public Control {
 public:
  using Control::Control;
  int minimum = 0;
  int maximum = 127;
  int value = 0;
};

/// Controls of one name with consecutive indices First to Last; any other index is RuntimeError 9.
template <typename Kind, int First, int Last>
class ControlArray {
 public:
  static constexpr int first = First;
  static constexpr int last = Last;

  ControlArray(Window& window, const std::string& name)
      : ControlArray(window, name, std::make_integer_sequence<int, Last - First + 1>{}) {}

  Kind& operator[](int index) { return controls_.at(position(index)); }
  const Kind& operator[](int index) const { return controls_.at(position(index)); }
  auto begin() { return controls_.begin(); }
  auto end() { return controls_.end(); }
  auto begin() const { return controls_.begin(); }
  auto end() const { return controls_.end(); }

 private:
  template <int... Offsets>
  ControlArray(Window& window, const std::string& name, std::integer_sequence<int, Offsets...>)
      : controls_{{Kind(window, name, First + Offsets)...}} {}

  static std::size_t position(int index) {
    if (index < First || index > Last) throw RuntimeError::index_out_of_range("ControlArray");
    return static_cast<std::size_t>(index - First);
  }

  std::array<Kind, Last - First + 1> controls_;
};

/// Sets the option with the index and clears its fellows.
template <int First, int Last>
void select_option(ControlArray<OptionControl, First, Last>& options, int index) {
  OptionControl& chosen = options[index];
  for (OptionControl& option : options) option.value = &option == &chosen;
}

}  // namespace tonarix
