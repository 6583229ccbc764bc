#pragma once

#include <string>

#include "base/windows/bindings.h"
#include "exercises/play/key_names.h"
#include "exercises/play/windows/piano_keyboard.h"
#include "host/language.h"
#include "host/local/catalogue_folder.h"

namespace tonarix {

/// A piano keyboard with the names of a real catalogue, all its keys open.
struct PianoBed {
  /// `catalogues` is the folder of the compiled catalogues. Key 12 sounds `tasteBasis`.
  PianoBed(const std::string& catalogues, const std::string& suffix, std::int16_t tasteBasis = 36)
      : language(catalogue_folder(catalogues)), basis(tasteBasis) {
    language.SprachInit();
    language.SprachWahl(suffix);
  }
  void show(const KeyRange& keys) {
    const ToneNames tone_names(language);
    const KeyNames names(language, tone_names);
    piano.set_keys(keys);
    for (int key = keys.lowest; key <= keys.highest; ++key) {
      KeyTexts texts;
      for (int band = 1; band <= kBands; ++band) {
        const Field field{key, band};
        const auto qz = spelling(field);
        if (!qz) continue;
        const auto at = static_cast<std::size_t>(band - 1);
        texts.captions.at(at) = to_qstring(names.caption(field, note_of(key, basis)));
        texts.spoken.at(at) = to_qstring(tone_names.lower(*qz) + ", " + names.band(band));
      }
      piano.set_texts(key, texts);
      piano.set_state(key, {true, false, false});
    }
  }

  Language language;
  std::int16_t basis;
  PianoKeyboard piano;
};

/// The keys of a range of 2 to 5 octaves as it lies in a key, -5 to +6 half tones off.
inline KeyRange piano_keys(int octaves, int offset) {
  KeyRange keys{12 + offset, 12 + offset + 12 * octaves};
  if (is_black(keys.lowest)) --keys.lowest;
  if (is_black(keys.highest)) ++keys.highest;
  return keys;
}

}  // namespace tonarix
