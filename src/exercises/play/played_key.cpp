#include "exercises/play/played_key.h"

#include <cstdlib>

#include "base/arithmetic.h"
#include "exercises/play/key_range.h"
#include "music/interval.h"
#include "settings/offered_intervals.h"

namespace tonarix {

KeyVerdict judge_key(const Field& played, Tone asked, Tone before, std::int16_t tasteBasis) {
  const int right_key = key_of(asked.chr, tasteBasis);
  const bool spelled = played.band == band_of(asked.qz);
  if (played.key == right_key) return spelled ? KeyVerdict::right : KeyVerdict::octave_right;
  const int way = Sgn(note_of(played.key, tasteBasis) - before.chr);
  const bool same_tone = pitch_class_of_key(played.key) == pitch_class_of_key(right_key);
  if (spelled && same_tone && way == Sgn(asked.chr - before.chr)) return KeyVerdict::tone_right;
  return KeyVerdict::wrong;
}

std::int16_t played_interval(Tone played, Tone before, const Settings& settings, const Key& key) {
  const int way = Sgn(played.chr - before.chr);
  if (way == 0) return 0;
  if (settings.abfr_iv == Naming::from_keynote) {
    const auto row = skala_row(key, played.qz);
    return row ? to_int16((*row + 1) * way) : std::int16_t{0};
  }
  const std::int16_t code = direct_code(way, played.qz, before.qz);
  const auto codes = offered_codes(settings, key);
  const auto size = static_cast<std::size_t>(std::abs(code));
  return size < codes.size() && codes.test(size) ? code : std::int16_t{0};
}

}  // namespace tonarix
