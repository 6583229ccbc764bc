#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "base/controls.h"
#include "base/texts.h"
#include "config/choice_words.h"

namespace tonarix {

/// The choices that one window offers, a row each, over the fields where they are kept.
class Choices {
 public:
  using Rule = std::function<void()>;
  /// A choice by its options or by its list; `rule` is what hangs on it, run whenever it has been
  /// set.
  struct Row {
    template <int First, int Last>
    Row(Choice offered, ControlArray<OptionControl, First, Last>& controls, Rule then = {})
        : choice(offered), options(controls.begin(), controls.end()), rule(std::move(then)) {}
    Row(Choice offered, ListControl& control, Rule then = {})
        : choice(offered), list(&control), rule(std::move(then)) {}
    const Control& control() const { return list ? static_cast<Control&>(*list) : options.front(); }

    Choice choice;
    std::span<OptionControl> options;
    ListControl* list = nullptr;
    Rule rule;
  };

  explicit Choices(Settings& settings) : settings_(settings) {}

  const Row& add(Row row);
  void set_rule(Choice choice, Rule rule);
  /// The row of a choice, nullptr where the window has no control for it.
  const Row* find(Choice choice) const;

  /// Stores the value, shows it and runs what hangs on it; without a control it is only stored.
  void set(Choice choice, std::int16_t value);
  /// The user has chosen an entry of its list.
  void take_entry(Choice choice);
  /// Shows the value in force.
  void show(Choice choice);
  /// Sets each choice that doesn't follow from another to its value in force.
  void start();
  void set_captions(const Texts& texts);

  /// True when the window has a control for it and neither that nor its frame is hidden.
  bool visible(Choice choice) const;
  /// Caption or entry, as the window shows it; the number where it has no control.
  std::string shown(Choice choice) const;

 private:
  Row* row_of(Choice choice);

  Settings& settings_;
  std::vector<Row> rows_;
};

}  // namespace tonarix
