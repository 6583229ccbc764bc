#pragma once

#include <QString>
#include <array>
#include <optional>

#include "exercises/play/keyboard_geometry.h"

namespace tonarix {

inline constexpr int kPianoKeys = 80;

/// What stands on the fields of a key and what they are called, by band from the lowest; empty for
/// a field that stands for nothing.
struct KeyTexts {
  std::array<QString, kBands> captions;
  std::array<QString, kBands> spoken;
  friend bool operator==(const KeyTexts&, const KeyTexts&) = default;
};

struct KeyState {
  bool open = false;      ///< may be pressed, as all keys may or none
  bool locked = false;    ///< was wrong and takes no press for this tone
  bool sounding = false;  ///< is coloured
  friend bool operator==(const KeyState&, const KeyState&) = default;
};

/// All that a drawn keyboard shows. Lengths are pixels of the screen.
struct KeyboardFace {
  KeyboardGeometry geometry{{12, 36}, 460, 150};
  double ratio = 1;  ///< pixels of the screen to a logical one
  std::array<KeyTexts, kPianoKeys> texts;
  std::array<KeyState, kPianoKeys> states;
  std::optional<Field> finished_tone;
  std::optional<Field> tasteMark;  ///< under the pointer
  std::optional<Field> focused;    ///< while the keyboard has the focus

  const KeyTexts& texts_of(int key) const { return texts.at(static_cast<std::size_t>(key)); }
  const KeyState& state_of(int key) const { return states.at(static_cast<std::size_t>(key)); }
  bool takes_press(int key) const { return state_of(key).open && !state_of(key).locked; }
  const QString& caption(const Field& field) const {
    return texts_of(field.key).captions.at(static_cast<std::size_t>(field.band - 1));
  }
};

}  // namespace tonarix
