#include "host/language.h"

#include <algorithm>
#include <exception>

namespace tonarix {

void Language::SprachInit() {
  try {
    rows_ = libraries_.create_list()->languages();
    SprachListeDa_ = true;
  } catch (const std::exception&) {
    rows_.clear();
    SprachListeDa_ = false;
  }
}

void Language::SprachWahl(const std::string& name) {
  SprachObjekt_.reset();
  if (!SprachListeDa_) return;
  const auto row = std::find_if(rows_.begin(), rows_.end(),
                                [&](const LanguageRow& known) { return known.name == name; });
  if (row == rows_.end()) return;
  try {
    SprachObjekt_ = libraries_.create_language("tonarixlang." + row->suffix);
  } catch (const std::exception&) {
    SprachObjekt_.reset();
  }
}

std::string Language::Wort(TextKey nr) const {
  try {
    if (SprachObjekt_) return SprachObjekt_->Wort(std::to_string(nr.number) + "s");
  } catch (const std::exception&) {
    return "VOID";
  }
  return "VOID";
}

}  // namespace tonarix
