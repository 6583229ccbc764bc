#include "music/tones.h"

#include "base/runtime_error.h"

namespace tonarix {
namespace {

// The texts of one tone's name: lower case from the small octave upward, upper case below.
struct ToneNameKeys {
  TextKey lower;
  TextKey upper;
};

constexpr std::array<ToneNameKeys, kNamedTones> kToneNameKeys{{
    // lower, upper
    {236_text, 664_text},  // Fbb
    {182_text, 652_text},  // Cbb
    {269_text, 667_text},  // Gbb
    {192_text, 657_text},  // Dbb
    {76_text, 649_text},   // Abb
    {220_text, 660_text},  // Ebb
    {316_text, 655_text},  // Bbb
    {234_text, 235_text},  // Fb
    {181_text, 180_text},  // Cb
    {267_text, 268_text},  // Gb
    {190_text, 191_text},  // Db
    {74_text, 75_text},    // Ab
    {218_text, 219_text},  // Eb
    {144_text, 145_text},  // Bb
    {226_text, 227_text},  // F
    {164_text, 165_text},  // C
    {245_text, 244_text},  // G
    {183_text, 184_text},  // D
    {68_text, 69_text},    // A
    {211_text, 212_text},  // E
    {304_text, 303_text},  // B
    {228_text, 229_text},  // F#
    {173_text, 174_text},  // C#
    {251_text, 252_text},  // G#
    {185_text, 186_text},  // D#
    {70_text, 71_text},    // A#
    {213_text, 214_text},  // E#
    {306_text, 305_text},  // B#
    {230_text, 663_text},  // F##
    {175_text, 651_text},  // C##
    {253_text, 666_text},  // G##
    {187_text, 656_text},  // D##
    {72_text, 648_text},   // A##
    {215_text, 659_text},  // E##
    {307_text, 654_text},  // B##
}};

// The great and the small octave (3 and 4) are written without theirs.
constexpr std::array<TextKey, kHighestOctaveMark> kOctaveMarkKeys{
    13_text, 20_text, 21_text, 14_text, 15_text, 16_text, 17_text, 18_text};

constexpr bool all_names_have_their_own_key() {
  std::array<int, 2 * kNamedTones> keys{};
  for (std::size_t qz = 0; qz < kToneNameKeys.size(); ++qz) {
    keys[2 * qz] = kToneNameKeys[qz].lower.number;
    keys[2 * qz + 1] = kToneNameKeys[qz].upper.number;
  }
  for (std::size_t one = 0; one < keys.size(); ++one) {
    for (std::size_t other = 0; other < one; ++other) {
      if (keys[one] == keys[other]) return false;
    }
  }
  return true;
}
static_assert(all_names_have_their_own_key());

}  // namespace

ToneNames::ToneNames(const Texts& texts) {
  for (std::size_t qz = 0; qz < names_.size(); ++qz) {
    names_[qz] = {texts.Wort(kToneNameKeys[qz].lower), texts.Wort(kToneNameKeys[qz].upper)};
  }
  for (std::size_t mark = 0; mark < kOctaveMarkKeys.size(); ++mark) {
    octave_marks_[mark + 1] = texts.Wort(kOctaveMarkKeys[mark]);
  }
}

std::string ToneNames::name(Tone tone) const {
  const int octave = written_octave(tone);
  if (!has_name(tone.qz) || octave < 0 || octave > kHighestOctaveMark) {
    throw RuntimeError::index_out_of_range("ErmStatStrTon");
  }
  const Name& name = names_[static_cast<std::size_t>(tone.qz)];
  const std::string& mark = octave_marks_[static_cast<std::size_t>(octave)];
  if (octave < 3) return mark + name.upper;
  if (octave == 3) return name.upper;
  if (octave == 4) return name.lower;
  return mark + name.lower;
}

std::string ToneNames::ErmStatStrTon(int index, std::span<const Tone> row) const {
  if (index < 0 || static_cast<std::size_t>(index) >= row.size()) {
    throw RuntimeError::index_out_of_range("ErmStatStrTon");
  }
  return name(row[static_cast<std::size_t>(index)]);
}

}  // namespace tonarix
