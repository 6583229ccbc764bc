#include "config/choice_words.h"

#include <algorithm>

#include "base/module_texts.h"
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
    {Choice::Uebungsmodus,  "Übungsmodus",   "",                    2, true,  text::level_title, {}},
    {Choice::prfnr,         "Nr.:",          "",                    1, true,  text::exam_number, {}},
    {Choice::abfrage,       "Abfolge",       "Abfolge",             2, false, none,
     {text(text::order_manual), text(text::order_automatic)}},
    {Choice::tongeschl,     "Tongeschlecht", "Tongeschlecht",       1, false, none,
     {text(text::major), text(text::minor), text(text::major_and_minor)}},
    {Choice::E_Oktav,       "Tonraum",       "Tonraum",             2, false, none,
     {{{"2 ", text::octaves}, {"3 ", text::octaves}, {"4 ", text::octaves}, {"5 ", text::octaves}}}},
    {Choice::Combo_tonraum, "Oktavbereich",  "Tonraum",             1, true,  text::octave_range, {}},
    {Choice::ivg,           "Iv-Größe",      "Intervall-Größe",     1, false, none,
     {{{"", text::up_to_one_octave}, {"1 - 2 ", text::octaves}, {"", text::mixed_sizes}}}},
    {Choice::ton_st_wahl,   "Stufen",        "Stufen",              1, false, none,
     {text(text::all_degrees), text(text::one_degree)}},
    {Choice::stufe_wahl,    "Stufe Ton 2",   "Stufen",              1, true,  text::degree_of_tone_2, {}},
    {Choice::Tonart,        "Tonart",        "Tonart",              2, false, none,
     {text(text::key_stays), text(text::key_changes)}},
    {Choice::grd_ton,       "Grdton zus.",   "Grundton",            1, false, none,
     {text(text::keynote_yes), text(text::keynote_no)}},
    {Choice::invzahl,       "Iv-Anzahl",     "Intervall-Anzahl",    2, false, none,
     {{{"2", none}, {"3", none}, {"4", none}, {"5", none}}}},
    {Choice::frequenz,      "Frequenz",      "Frequenz",            1, false, none,
     {text(text::frequency_fixed), text(text::frequency_variable)}},
    {Choice::stimm_g,       "Stimmung",      "Stimmung",            1, false, none,
     {text(546_text), text(458_text), text(401_text)}},
    {Choice::abfr_iv,       "Iv-Bestimmung", "Intervall-Bestimmung", 1, false, none,
     {text(text::named_from_keynote), text(text::named_from_tone_before)}},
    {Choice::aufg,          "Aufgabe",       "Aufgabe",             1, false, none,
     {text(text::imitate_tone), text(160_text)}},
    {Choice::genau,         "Genauigkeit",   "Genauigkeit",         1, false, text::accuracy_title, {}},
    {Choice::tempo,         "Tempo",         "Tempo",               1, false, text::tempo_title, {}},
    {Choice::kanal,         "",              "",                    1, true,  text::voice, {}},
    {Choice::patch,         "Klangfarbe",    "Klangfarbe",          1, true,  text::instrument, {}},
    {Choice::transpo,       "",              "",                    1, true,  none,      {}},
    {Choice::trans_dfg,     "",              "",                    1, false, text::transposition_direction, {}},
    {Choice::trans_iv,      "",              "",                    1, true,  text::transposition_interval, {}},
};
// clang-format on

}  // namespace

const ChoiceWords& choice_words(Choice choice) {
  const auto* found = std::ranges::find(kWords, choice, &ChoiceWords::choice);
  if (found == std::end(kWords)) throw RuntimeError::index_out_of_range("choice_words");
  return *found;
}

}  // namespace tonarix
