#pragma once

#include <cstdint>

#include "music/key.h"
#include "music/naming.h"

namespace tonarix {

/// What a late answer costs: 0 up to the limit, then one, plus a tenth for each two tenths of a
/// second beyond. `dauer` and `grenze` in tenths of a second.
float ZeitStrafe(float dauer, std::int16_t grenze);

/// Free time of an answer in tenths of a second: naming from the keynote is the quicker task.
constexpr std::int16_t zeit_grenze_of(Naming abfr_iv) {
  return abfr_iv == Naming::from_keynote ? 20 : 25;
}

/// Answer time in tenths of a second from the span in seconds.
float answer_tenths(double seconds);

/// The interval value that a wrong answer stands for. It has the direction of the interval asked,
/// but beside a chosen degree each size exists in one direction only where its complement takes the
/// other: then the member of the box with this size counts, the one in the direction asked first.
std::int16_t signed_wrong_answer(const Key& key, Naming abfr_iv, std::int16_t ton_st_wahl,
                                 std::int16_t stufe_wahl, std::int16_t code, std::int16_t asked);

}  // namespace tonarix
