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
  const auto row = std::find_if(rows_.begin(), rows_.end(),
                                [&](const LanguageRow& known) { return known.name == name; });
  try {
    if (row != rows_.end()) {
      SprachObjekt_ = libraries_.create_language("tonarixlang." + row->suffix);
    }
  } catch (const std::exception&) {
    SprachObjekt_.reset();
  }
  if (on_chosen) on_chosen();
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
