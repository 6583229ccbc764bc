#include "sound/tuning.h"

#include "base/arithmetic.h"
#include "base/runtime_error.h"

namespace tonarix {

namespace {

/// The remainder has the sign of the number, so that a negative number finds no place.
template <std::size_t Size>
std::int16_t entry(const std::array<std::int16_t, Size>& table, int number, int modulus) {
  const int index = number % modulus;
  if (index < 0) throw RuntimeError::index_out_of_range("tuning_deviation");
  return table[static_cast<std::size_t>(index)];
}

}  // namespace

std::int16_t tuning_deviation(const Tone& tone, std::int16_t stimm_g, std::int16_t qz_transpos) {
  if (stimm_g == 1) return entry(rein_abw, tone.qz - qz_transpos, 10);
  if (stimm_g == 2) return entry(kirnberger_abw, tone.chr, 12);
  return 0;
}

std::int16_t played_deviation(const Tone& tone, std::int16_t stimm_g, std::int16_t qz_transpos) {
  constexpr int kFirstOfKey = 10;  // D flat to B of a key on C
  constexpr int kLastOfKey = 20;
  constexpr int kUntouched = 18;            // its A
  constexpr double kFifth = 1.955 / 3.125;  // steps that a pure fifth is wider
  const int place = tone.qz - qz_transpos;
  const bool of_key = place >= kFirstOfKey && place <= kLastOfKey;
  if (stimm_g != 1 || of_key) return tuning_deviation(tone, stimm_g, qz_transpos);
  return round_to_int16(Round((place - kUntouched) * kFifth));
}

std::int16_t draw_freq_abw(std::int16_t frequenz, Chance& chance) {
  if (frequenz != 1) return 0;
  const int sign = draw_sign(chance);
  return static_cast<std::int16_t>(sign * draw(chance, 17));
}

}  // namespace tonarix
