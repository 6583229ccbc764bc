#include "host/text_tables.h"

#include <cstddef>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr std::array kTheoryKinds{287_text, 221_text, 224_text};
constexpr std::array kLevels{136_text, 564_text, 565_text, 550_text, 438_text};
constexpr std::array kAccuracies{478_text, 424_text, 400_text, 319_text, 476_text};
constexpr std::array kStufeKurz{437_text, 433_text, 446_text, 439_text,
                                481_text, 486_text, 488_text, 549_text};

template <std::size_t Size>
std::array<std::string, Size> words(const Texts& texts, const std::array<TextKey, Size>& keys) {
  std::array<std::string, Size> result;
  for (std::size_t i = 0; i < Size; ++i) result[i] = texts.Wort(keys[i]);
  return result;
}

}  // namespace

void TextTables::load(const Texts& texts) {
  theory_kinds = words(texts, kTheoryKinds);
  levels = words(texts, kLevels);
  accuracies = words(texts, kAccuracies);
  stufe_kurz = words(texts, kStufeKurz);
}

const std::string& TextTables::theory_kind(int Theoriewahl) const {
  if (Theoriewahl < 0 || Theoriewahl > 1) throw RuntimeError::index_out_of_range("theory_kind");
  return theory_kinds[static_cast<std::size_t>(Theoriewahl + 1)];
}

}  // namespace tonarix
