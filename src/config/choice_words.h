#pragma once

#include <array>
#include <string_view>

#include "base/module_texts.h"
#include "base/text_key.h"
#include "settings/settings_tables.h"

namespace tonarix {

/// A text of the catalogue behind a literal: {"1 - 2 ", text::octaves}. Without a key only the
/// literal.
struct Caption {
  std::string_view before;
  TextKey key;
};

/// What a choice is called, in whatever window it is offered.
struct ChoiceWords {
  Choice choice;
  std::string_view label;  ///< in `EinstDatSave`
  std::string_view group;  ///< the group's title in the supervisor's listing
  int columns;             ///< options side by side; of a list its share of the line
  bool follows;            ///< at the start it stands where another choice or the level puts it
  TextKey list_name;       ///< of its list, for a screen reader
  std::array<Caption, 4> captions;  ///< of its options, by their order
};
/// RuntimeError 9 for a choice that has no control in any window.
const ChoiceWords& choice_words(Choice choice);

}  // namespace tonarix
