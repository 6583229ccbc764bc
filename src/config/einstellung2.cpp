#include "config/einstellung2.h"

#include "base/module_texts.h"
#include "config/einst_dat_save.h"
#include "settings/accuracy.h"
#include "sound/instruments.h"

namespace tonarix {

namespace {

using enum Choice;

// clang-format off
constexpr FrameRow kFrames[] = {
    // frame title                   holds                      locked          while open     row, column, columns
    {10,     text::level_title,      {Uebungsmodus, prfnr},     Lock::never,    signal::open,  0, 0, 2},
    {7,      text::order_title,      {abfrage},                 Lock::exam,     signal::open,  0, 2},
    {0,      text::key_title,        {Tonart},                  Lock::training, signal::open,  0, 3},
    {5,      text::mode_title,       {tongeschl},               Lock::exam,     signal::open,  1, 0},
    {4,      text::task_title,       {aufg},                    Lock::exam,     signal::open,  1, 1},
    {3,      text::size_title,       {ivg},                     Lock::training, signal::open,  1, 2},
    {1,      text::range_title,      {E_Oktav, Combo_tonraum},  Lock::training, signal::open,  1, 3},
    {6,      text::accuracy_title,   {genau},                   Lock::exam,     signal::open,  2, 0},
    {8,      556_text,               {ton_st_wahl, stufe_wahl}, Lock::exam,     signal::open,  2, 1},
    {9,      text::keynote_title,    {grd_ton},                 Lock::training, signal::open,  2, 2},
    {11,     text::frequency_title,  {frequenz},                Lock::training, signal::open,  2, 3},
    {13,     635_text,               {stimm_g},                 Lock::training, signal::open,  3, 0},
    {12,     text::tempo_title,      {tempo},                   Lock::exam,     signal::sound, 3, 1},
    {2,      text::sound_title,      {kanal, patch},            Lock::training, signal::sound, 3, 2, 2},
};
// clang-format on
constexpr Choice kPairs[] = {
    Uebungsmodus, prfnr,   patch,         tempo,       frequenz,   abfrage,
    ivg,          E_Oktav, Combo_tonraum, stimm_g,     grd_ton,    tongeschl,
    Tonart,       aufg,    genau,         ton_st_wahl, stufe_wahl,
};

}  // namespace

Einstellung2::Einstellung2(const SettingsContext& context)
    : EarSettingsWindow(context, {SettingsKind::einstellung2, "einstellung2", kFrames, kPairs},
                        {"Stuf_wahl", "Combo2Patch", kPatchesForForming, kFollowsForForming}),
      abfr_iv_before_(settings().abfr_iv) {
  offer({Choice::aufg, aufg});
  offer({Choice::genau, genau_combo, [this] { accuracy_chosen(); }});
}

void Einstellung2::prepare() {
  EarSettingsWindow::prepare();
  for (const std::string& accuracy : context().tables.accuracies) genau_combo.add(accuracy);
}

void Einstellung2::accuracy_chosen() {
  const std::string means = accuracy_words(settings().genau, common().texts);
  const bool news = !genau_note.text.empty() && genau_note.text != means;
  genau_note.text = means;
  genau_combo.accessible_name = word(text::accuracy_title) + ", " + means;
  if (news) announce(means);
}

// Each voice tells its own instrument.
void Einstellung2::add_pair(PairList& pairs, Choice choice) const {
  if (choice != Choice::patch) return EarSettingsWindow::add_pair(pairs, choice);
  pairs.add("Klangfarben: ", std::to_string(Channel_Combo.items.size()));
  for (std::size_t voice = 0; voice < Channel_Combo.items.size(); ++voice) {
    const std::int16_t program = settings().patch_ar.at(voice);
    pairs.add(Channel_Combo.items[voice].text,
              patch_list.items.at(static_cast<std::size_t>(program)).text);
  }
}

void Einstellung2::give_back() {
  settings().abfr_iv = abfr_iv_before_;
}

}  // namespace tonarix
