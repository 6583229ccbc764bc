#pragma once

#include <bitset>
#include <cstdint>
#include <optional>

#include "music/key.h"
#include "settings/settings.h"

namespace tonarix {

/// Why a drawn row is drawn again.
enum class Refusal : std::uint8_t {
  no_name,        ///< a tone has no written name or lies outside the named octaves
  not_leading,    ///< an interval value does not lead from its tone to the next
  no_button,      ///< an interval that no answer button names
  tone_repeated,  ///< a tone equals the one two before it
  out_of_range,   ///< a tone lies outside the chosen range
};
inline constexpr int kRefusals = 5;

/// What keeps a finished row from being asked, or nothing. The repairs of a row keep most rows
/// within reach but now and then leave one that nobody could answer rightly or that goes beyond the
/// chosen range. `codes` are the |codes| on the answer buttons. The range is looked at last, and
/// not at all with `range_may_give_way`.
std::optional<Refusal> refusal_of(const Settings& settings, const Key& key, const TaskRow& row,
                                  const std::bitset<22>& codes, bool range_may_give_way);

}  // namespace tonarix
