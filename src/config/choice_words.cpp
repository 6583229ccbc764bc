#include "config/choice_words.h"

#include <algorithm>

#include "base/runtime_error.h"

namespace tonarix {

namespace {

constexpr TextKey none{};
constexpr Caption text(TextKey key) {
  return {"", key};
}

// clang-format off
constexpr ChoiceWords kWords[] = {
    // choice               label            group        columns follows list name  captions
    {Choice::Uebungsmodus,  "Übungsmodus",   "",                    2, true,  1050_text, {}},
    {Choice::prfnr,         "Nr.:",          "",                    1, true,  1089_text, {}},
    {Choice::abfrage,       "Abfolge",       "Abfolge",             2, false, none,
     {text(1065_text), text(1066_text)}},
    {Choice::tongeschl,     "Tongeschlecht", "Tongeschlecht",       1, false, none,
     {text(1062_text), text(1063_text), text(1064_text)}},
    {Choice::E_Oktav,       "Tonraum",       "Tonraum",             2, false, none,
     {{{"2 ", 1072_text}, {"3 ", 1072_text}, {"4 ", 1072_text}, {"5 ", 1072_text}}}},
    {Choice::Combo_tonraum, "Oktavbereich",  "Tonraum",             1, true,  1086_text, {}},
    {Choice::ivg,           "Iv-Größe",      "Intervall-Größe",     1, false, none,
     {{{"", 1071_text}, {"1 - 2 ", 1072_text}, {"", 1073_text}}}},
    {Choice::ton_st_wahl,   "Stufen",        "Stufen",              1, false, none,
     {text(1078_text), text(1079_text)}},
    {Choice::stufe_wahl,    "Stufe Ton 2",   "Stufen",              1, true,  1090_text, {}},
    {Choice::Tonart,        "Tonart",        "Tonart",              2, false, none,
     {text(1067_text), text(1068_text)}},
    {Choice::grd_ton,       "Grdton zus.",   "Grundton",            1, false, none,
     {text(1069_text), text(1070_text)}},
    {Choice::invzahl,       "Iv-Anzahl",     "Intervall-Anzahl",    2, false, none,
     {{{"2", none}, {"3", none}, {"4", none}, {"5", none}}}},
    {Choice::frequenz,      "Frequenz",      "Frequenz",            1, false, none,
     {text(1074_text), text(1075_text)}},
    {Choice::stimm_g,       "Stimmung",      "Stimmung",            1, false, none,
     {text(546_text), text(458_text), text(401_text)}},
    {Choice::abfr_iv,       "Iv-Bestimmung", "Intervall-Bestimmung", 1, false, none,
     {text(1076_text), text(1077_text)}},
    {Choice::tempo,         "Tempo",         "Tempo",               1, false, 1060_text, {}},
    {Choice::kanal,         "",              "",                    1, true,  1088_text, {}},
    {Choice::patch,         "Klangfarbe",    "Klangfarbe",          1, true,  1087_text, {}},
    {Choice::transpo,       "",              "",                    1, true,  none,      {}},
    {Choice::trans_dfg,     "",              "",                    1, false, 1091_text, {}},
    {Choice::trans_iv,      "",              "",                    1, true,  1092_text, {}},
};
// clang-format on

}  // namespace

const ChoiceWords& choice_words(Choice choice) {
  const auto* found = std::ranges::find(kWords, choice, &ChoiceWords::choice);
  if (found == std::end(kWords)) throw RuntimeError::index_out_of_range("choice_words");
  return *found;
}

}  // namespace tonarix
