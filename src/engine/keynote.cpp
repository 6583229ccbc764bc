#include "engine/keynote.h"

#include "base/arithmetic.h"
#include "sound/tuning.h"

namespace tonarix {

namespace {

constexpr std::int16_t kDurMoll = 2;
constexpr std::size_t kMinorThirdRow = 3;
constexpr std::size_t kMajorThirdRow = 4;

std::size_t third_row(const Key& key, Tone just_answered, std::int16_t& terz_typ, Chance& chance) {
  auto third = static_cast<Third>(terz_typ);
  if (third == Third::both) {
    if (just_answered.qz == key.skala[kMinorThirdRow].qz) third = Third::minor;
    if (just_answered.qz == key.skala[kMajorThirdRow].qz) third = Third::major;
  }
  if (third == Third::none || third == Third::both) {
    third = static_cast<Third>(draw(chance, 2) + 1);
  }
  terz_typ = static_cast<std::int16_t>(third);
  return third == Third::minor ? kMinorThirdRow : kMajorThirdRow;
}

}  // namespace

KeynoteChord keynote_chord(const Settings& settings, const Key& key, Tone just_answered,
                           std::int16_t& terz_typ, Chance& chance) {
  const bool dur_moll = settings.tongeschl == kDurMoll;
  const std::size_t third = dur_moll ? third_row(key, just_answered, terz_typ, chance) : 2;
  const std::array<std::size_t, 4> rows{static_cast<std::size_t>(key.anz_stufen), 0, third,
                                        dur_moll ? std::size_t{6} : std::size_t{4}};
  KeynoteChord GrdAkk;
  for (std::size_t n = 0; n < rows.size(); ++n) {
    Tone tone = key.skala[rows[n]];
    tone.chr = to_int16(tone.chr + grdton_lage2(settings, key));
    GrdAkk[n] = {tone.chr, tuning_deviation(tone, settings.stimm_g, key.qz_transpos)};
  }
  return GrdAkk;
}

}  // namespace tonarix
