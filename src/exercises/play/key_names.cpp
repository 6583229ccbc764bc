#include "exercises/play/key_names.h"

#include "base/module_texts.h"

namespace tonarix {
namespace {

// What is printed for each place on the line of fifths.
constexpr std::array<TextKey, kNamedTones> kKeyNames{{
    1360_text, 1361_text, 1362_text, 1363_text, 1364_text, 1365_text, 1366_text,  // Fbb to Bbb
    1367_text, 1368_text, 1369_text, 1370_text, 1371_text, 1372_text, 1373_text,  // Fb to Bb
    1374_text, 1375_text, 1376_text, 1377_text, 1378_text, 1379_text, 1380_text,  // F to B
    1381_text, 1382_text, 1383_text, 1384_text, 1385_text, 1386_text, 1387_text,  // F# to B#
    1388_text, 1389_text, 1390_text, 1391_text, 1392_text, 1393_text, 1394_text,  // F## to B##
}};

constexpr std::array kOctaves{text::octave_subcontra,  text::octave_contra,   text::octave_great,
                              text::octave_small,      text::octave_one_line, text::octave_two_line,
                              text::octave_three_line, text::octave_four_line};
constexpr std::array kBandWords{text::lower_field, text::middle_field, text::upper_field};

constexpr int kGreatOctave = 3;
constexpr std::size_t kGreatC = 12;
constexpr int kC = 15;  // on the line of fifths
constexpr std::string_view kUpperCase = "-2";
constexpr std::string_view kPlain = "-1";

}  // namespace

KeyNames::KeyNames(const Texts& texts, const ToneNames& tone_names) : tone_names_(tone_names) {
  for (int qz = 0; qz < kNamedTones; ++qz) {
    namenTab_.at(static_cast<std::size_t>(pitch_class(qz)))
        .at(static_cast<std::size_t>(band_of(qz) - 1)) =
        texts.Wort(kKeyNames[static_cast<std::size_t>(qz)]);
  }
  namenTab_[kGreatC][0] = tone_names.upper(kC);
  for (std::size_t i = 0; i < kOctaves.size(); ++i) octaves_[i + 1] = texts.Wort(kOctaves[i]);
  for (std::size_t i = 0; i < kBandWords.size(); ++i) bands_[i] = texts.Wort(kBandWords[i]);
}

std::string KeyNames::caption(const Field& field, int note) const {
  if (!spelling(field)) return {};
  const auto pitch = static_cast<std::size_t>(pitch_class_of_key(field.key));
  const std::string& name = namenTab_[pitch][static_cast<std::size_t>(field.band - 1)];
  if (pitch != 0 || field.band != 1) return name;
  const std::string& mark = tone_names_.octave_mark(note / 12);
  if (mark == kUpperCase) return namenTab_[kGreatC][0];
  return mark == kPlain ? name : name + mark;
}

std::string KeyNames::written(Tone tone) const {
  const int octave = written_octave(tone);
  const std::string& mark = tone_names_.octave_mark(octave);
  const bool printed = mark != kUpperCase && mark != kPlain;
  return (octave <= kGreatOctave ? tone_names_.upper(tone.qz) : tone_names_.lower(tone.qz)) +
         (printed ? mark : std::string());
}

std::string KeyNames::spoken(Tone tone) const {
  return tone_names_.lower(tone.qz) + ", " +
         octaves_.at(static_cast<std::size_t>(written_octave(tone)));
}

const std::string& KeyNames::band(int band) const {
  return bands_.at(static_cast<std::size_t>(band - 1));
}

}  // namespace tonarix
