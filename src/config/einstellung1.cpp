#include "config/einstellung1.h"

#include "config/einst_dat_save.h"
#include "sound/instruments.h"

namespace tonarix {

namespace {

/// The frames and what stands in them. The three that say what is asked (4, 6, 8) are locked as
/// one.
enum Frame : int {
  kTonart = 0,
  kTonraum = 1,
  kKlang = 2,
  kIvGroesse = 3,
  kIvAnzahl = 4,
  kTongeschlecht = 5,
  kIvBestimmung = 6,
  kAbfolge = 7,
  kStufen = 8,
  kGrundton = 9,
  kUebungsmodus = 10,
  kFrequenz = 11,
  kTempo = 12,
  kStimmung = 13,
};

constexpr int kExamLocks[] = {kTongeschlecht, kIvAnzahl, kIvBestimmung, kStufen, kAbfolge, kTempo};

}  // namespace

Einstellung1::Einstellung1(const SettingsContext& context)
    : EarSettingsWindow(context, "einstellung1", SettingsKind::einstellung1,
                        {"StufWahlCmb", "Combo1Patch", kPatchesForRows}),
      abfr_iv(*this, "abfr_iv"),
      HinweisMeldung(*this, "HinweisMeldung"),
      transpo_cmb(*this, "transpo_cmb"),
      CmbTrans(*this, "CmbTrans"),
      CmbTransIv(*this, "CmbTransIv") {
  place(Tonart, kTonart, "Tonart");
  place(E_Oktav, kTonraum, "Tonraum");
  place(Combo_tonraum, kTonraum, "Tonraum");
  place(Channel_Combo, kKlang, "");
  place(patch_list, kKlang, "Klangfarbe");
  place(ivg, kIvGroesse, "Intervall-Größe");
  place(invzahl, kIvAnzahl, "Intervall-Anzahl");
  place(tongeschl, kTongeschlecht, "Tongeschlecht");
  place(abfr_iv, kIvBestimmung, "Intervall-Bestimmung");
  place(abfrage, kAbfolge, "Abfolge");
  place(ton_st_wahl, kStufen, "Stufen");
  place(degree_list, kStufen, "Stufen");
  place(grd_ton, kGrundton, "Grundton");
  place(training_Combo, kUebungsmodus, "");
  place(prfnr_Comb, kUebungsmodus, "");
  place(frequenz, kFrequenz, "Frequenz");
  place(temp_Combo, kTempo, "Tempo");
  place(stimm_g, kStimmung, "Stimmung");
  on_each(abfr_iv, "abfr_iv_click.", [this](std::int16_t i) { set(Choice::abfr_iv, i); });
  on(transpo_cmb, "transpo_cmb_click.",
     [this] { settings().transpo = static_cast<std::int16_t>(transpo_cmb.selected); });
  on(CmbTrans, "CmbTrans_click.", [this] { trans_dfg(); });
  const bool names_intervals = settings().ueb_typ == ExerciseKind::determine;
  const bool writes = settings().ueb_typ == ExerciseKind::write;
  grdeinst[kIvBestimmung].visible = geinst_lb[kIvBestimmung].visible = names_intervals;
  HinweisMeldung.visible = CmbTrans.visible = writes;
  transpo_cmb.visible = CmbTransIv.visible = false;
}

void Einstellung1::set_captions() {
  EarSettingsWindow::set_captions();
  captions(abfr_iv, {1076_text, 1077_text});
  CmbTrans.accessible_name = word(1091_text);
  CmbTransIv.accessible_name = word(1092_text);
  title(kTonart, word(1058_text));
  title(kTonraum, word(1053_text));
  title(kKlang, word(1061_text));
  title(kIvGroesse, word(1054_text));
  title(kIvAnzahl, word(1055_text));
  title(kTongeschlecht, word(1051_text));
  title(kIvBestimmung, word(1056_text));
  title(kAbfolge, word(1052_text));
  title(kStufen, word(556_text) + " 2: " + word(508_text) + "(n)");
  title(kGrundton, word(1057_text));
  title(kUebungsmodus, word(1050_text));
  title(kFrequenz, word(1059_text));
  title(kTempo, word(1060_text));
  title(kStimmung, word(635_text));
}

void Einstellung1::fill_lists() {
  EarSettingsWindow::fill_lists();
  set(Choice::abfr_iv, choice_value(settings(), Choice::abfr_iv));
}

void Einstellung1::fill_transposition() {
  const std::string transposition = word(345_text) + word(700_text);
  CmbTrans.add(word(421_text));
  CmbTrans.add(transposition + word(623_text));
  CmbTrans.add(transposition + word(413_text));
  CmbTrans.selected = 0;
  trans_dfg();
  HinweisMeldung.text = word(832_text);
}

void Einstellung1::trans_dfg() {
  CmbTransIv.visible = CmbTrans.visible && CmbTrans.selected > 0;
  if (CmbTrans.selected < 1) return;
  CmbTransIv.clear();
  for (int code = 0; code < kNamedIntervals; ++code) {
    CmbTransIv.add((CmbTrans.selected == 1 ? "+" : "-") + context().interval_names.long_name(code),
                   code);
  }
  CmbTransIv.selected = 0;
}

void Einstellung1::set(Choice choice, std::int16_t value) {
  if (choice != Choice::abfr_iv) {
    EarSettingsWindow::set(choice, value);
    return;
  }
  set_choice(settings(), choice, value);
  select_option(abfr_iv, value);
}

std::span<const SettingsWindow::LockRow> Einstellung1::level_locks() const {
  static constexpr LockRow kLocks[] = {
      {kTongeschlecht, signal::open}, {kIvAnzahl, signal::open},  {kIvBestimmung, signal::open},
      {kStufen, signal::open},        {kTonraum, signal::open},   {kFrequenz, signal::open},
      {kGrundton, signal::open},      {kAbfolge, signal::open},   {kTonart, signal::open},
      {kStimmung, signal::open},      {kIvGroesse, signal::open}, {kTempo, signal::sound},
      {kKlang, signal::sound},
  };
  return kLocks;
}

std::span<const int> Einstellung1::exam_locks() const {
  return kExamLocks;
}

std::vector<std::string> Einstellung1::build_EinstDatSave() const {
  const Settings& now = settings();
  PairList pairs;
  add_level_pairs(pairs);
  pairs.add("Klangfarbe", patch_list.selected_text());
  pairs.add("Tempo", temp_Combo.selected_text());
  pairs.add("Frequenz", frequency_value(chosen(frequenz, now.frequenz)));
  pairs.add("Abfolge", chosen(abfrage, now.abfrage));
  pairs.add("Iv-Anzahl", chosen(invzahl, now.invzahl));
  pairs.add("Iv-Größe", chosen(ivg, now.ivg));
  pairs.add("Tonraum", chosen(E_Oktav, now.E_Oktav));
  pairs.add("Oktavbereich", Combo_tonraum.selected_text());
  pairs.add("Stimmung", chosen(stimm_g, now.stimm_g));
  pairs.add("Grdton zus.", chosen(grd_ton, now.grd_ton));
  pairs.add("Tongeschlecht", chosen(tongeschl, now.tongeschl));
  pairs.add("Tonart", chosen(Tonart, now.Tonart));
  if (grdeinst[kIvBestimmung].visible)
    pairs.add("Iv-Bestimmung", chosen(abfr_iv, static_cast<int>(now.abfr_iv)));
  pairs.add("Stufen", chosen(ton_st_wahl, now.ton_st_wahl));
  if (now.ton_st_wahl == 1) pairs.add("Stufe Ton 2", degree_list.selected_text());
  return pairs.finish();
}

}  // namespace tonarix
