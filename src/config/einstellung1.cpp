#include "config/einstellung1.h"

#include "base/module_texts.h"
#include "sound/instruments.h"

namespace tonarix {

namespace {

using enum Choice;

// The three frames that say what is asked (4, 6, 8) are locked as one. Intervals are named only
// where they are asked for, rows transposed only where they are written: so the two share a place.
// clang-format off
constexpr FrameRow kFrames[] = {
    // frame  title                   holds                      locked          while open     row, column, columns
    {10,       text::level_title,      {Uebungsmodus, prfnr},     Lock::never,    signal::open,  0, 0, 2},
    {7,        text::order_title,      {abfrage},                 Lock::exam,     signal::open,  0, 2},
    {0,        text::key_title,        {Tonart},                  Lock::training, signal::open,  0, 3},
    {5,        text::mode_title,       {tongeschl},               Lock::exam,     signal::open,  1, 0},
    {4,        text::count_title,      {invzahl},                 Lock::exam,     signal::open,  1, 1},
    {3,        text::size_title,       {ivg},                     Lock::training, signal::open,  1, 2},
    {1,        text::range_title,      {E_Oktav, Combo_tonraum},  Lock::training, signal::open,  1, 3},
    {6,        text::naming_title,     {abfr_iv},                 Lock::exam,     signal::open,  2, 0},
    {kNoFrame, 345_text,               {trans_dfg, trans_iv},     Lock::never,    signal::open,  2, 0},
    {8,        556_text,               {ton_st_wahl, stufe_wahl}, Lock::exam,     signal::open,  2, 1},
    {9,        text::keynote_title,    {grd_ton},                 Lock::training, signal::open,  2, 2},
    {11,       text::frequency_title,  {frequenz},                Lock::training, signal::open,  2, 3},
    {13,       635_text,               {stimm_g},                 Lock::training, signal::open,  3, 0},
    {12,       text::tempo_title,      {tempo},                   Lock::exam,     signal::sound, 3, 1},
    {2,        text::sound_title,      {kanal, patch},            Lock::training, signal::sound, 3, 2, 2},
};
// clang-format on
constexpr Choice kPairs[] = {
    Uebungsmodus,  prfnr,   patch,   tempo,     frequenz, abfrage, invzahl,     ivg,        E_Oktav,
    Combo_tonraum, stimm_g, grd_ton, tongeschl, Tonart,   abfr_iv, ton_st_wahl, stufe_wahl,
};

}  // namespace

Einstellung1::Einstellung1(const SettingsContext& context)
    : EarSettingsWindow(context, {SettingsKind::einstellung1, "einstellung1", kFrames, kPairs},
                        {"StufWahlCmb", "Combo1Patch", kPatchesForRows, kFollowsForRows}) {
  offer({Choice::invzahl, invzahl, [this] { allow_degree(); }});
  offer({Choice::abfr_iv, abfr_iv});
  offer({Choice::transpo, transpo_cmb});
  offer({Choice::trans_dfg, CmbTrans, [this] { trans_dfg(); }});
  offer({Choice::trans_iv, CmbTransIv});
  const FrameRow& naming = *frames().holding(Choice::abfr_iv);
  const bool names_intervals = settings().ueb_typ == ExerciseKind::determine;
  const bool writes = settings().ueb_typ == ExerciseKind::write;
  grdeinst[naming.frame].visible = geinst_lb[naming.frame].visible = names_intervals;
  HinweisMeldung.visible = CmbTrans.visible = writes;
  transpo_cmb.visible = CmbTransIv.visible = false;
}

void Einstellung1::set_captions() {
  EarSettingsWindow::set_captions();
  for (OptionControl& number : invzahl) number.why = word(text::needs_all_degrees);
  HinweisMeldung.text = word(832_text);
}

void Einstellung1::prepare() {
  EarSettingsWindow::prepare();
  const std::string transposition = word(345_text) + word(700_text);
  CmbTrans.add(word(421_text));
  CmbTrans.add(transposition + word(623_text));
  CmbTrans.add(transposition + word(413_text));
}

void Einstellung1::trans_dfg() {
  const std::int16_t direction = settings().trans_dfg;
  CmbTransIv.visible = CmbTrans.visible && direction > 0;
  if (direction == 0) return;
  CmbTransIv.clear();
  for (int code = 0; code < kNamedIntervals; ++code) {
    CmbTransIv.add((direction == 1 ? "+" : "-") +
                       context().interval_names.long_name(static_cast<IntervalCode>(code)),
                   code);
  }
  offered().set(Choice::trans_iv, 0);
}

}  // namespace tonarix
