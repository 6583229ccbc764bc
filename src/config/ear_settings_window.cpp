#include "config/ear_settings_window.h"

#include "music/degrees.h"
#include "sound/instruments.h"
#include "sound/sound_check.h"

namespace tonarix {

namespace {

constexpr Colour kTempoOpen = blue_green_red(0xFF0000);
constexpr int kStartVolume = 100;

}  // namespace

EarSettingsWindow::EarSettingsWindow(const SettingsContext& context, std::string name,
                                     SettingsKind kind, const Names& names)
    : SettingsWindow(context, std::move(name), kind),
      ton_st_wahl(*this, "ton_st_wahl"),
      degree_list(*this, names.degree_list),
      Tonart(*this, "Tonart"),
      grd_ton(*this, "grd_ton"),
      invzahl(*this, "invzahl"),
      frequenz(*this, "frequenz"),
      stimm_g(*this, "stimm_g"),
      temp_Combo(*this, "temp_Combo"),
      Channel_Combo(*this, "Channel_Combo"),
      patch_list(*this, names.patch_list),
      HSliderVolume(*this, "HSliderVolume"),
      lb14(*this, "lb14"),
      klang_contr(*this, "klang_contr"),
      patches_(names.patches) {
  degree_list.visible = false;
  const auto choice = [this](Choice which) {
    return [this, which](std::int16_t index) { set(which, index); };
  };
  on_each(ton_st_wahl, "ton_st_wahl_click.", choice(Choice::ton_st_wahl));
  on_each(Tonart, "Tonart_click.", choice(Choice::Tonart));
  on_each(grd_ton, "grd_ton_click.", choice(Choice::grd_ton));
  on_each(invzahl, "invzahl_click.", choice(Choice::invzahl));
  on_each(frequenz, "frequenz_click.", choice(Choice::frequenz));
  on_each(stimm_g, "stimm_g_click.", choice(Choice::stimm_g));
  const auto entry = [this](ListControl& list, Choice which) {
    on(list, list.name() + "_click.",
       [this, &list, which] { set(which, static_cast<std::int16_t>(list.selected)); });
  };
  entry(degree_list, Choice::stufe_wahl);
  entry(temp_Combo, Choice::tempo);
  on(Channel_Combo, "Channel_Combo_click.", [this] { Channel_Combo_change(); });
  on(patch_list, patch_list.name() + "_click.", [this] { patch_change(); });
  on(HSliderVolume, "HSliderVolume_change.", [this] { volume_change(); });
  on(klang_contr, "klang_contr_click.", [this] { run("klang_contr_click.", klang_contr_click()); });
}

void EarSettingsWindow::set_captions() {
  SettingsWindow::set_captions();
  captions(ton_st_wahl, {1078_text, 1079_text});
  captions(Tonart, {1067_text, 1068_text});
  captions(grd_ton, {1069_text, 1070_text});
  for (OptionControl& option : invzahl) option.text = std::to_string(*option.index() + 1);
  captions(frequenz, {1074_text, 1075_text});
  captions(stimm_g, {546_text, 458_text, 401_text});
  klang_contr.text = word(1081_text);
  lb14[0].text = word(1084_text);
  HSliderVolume.accessible_name = word(1084_text);
  degree_list.accessible_name = word(1090_text);
  temp_Combo.accessible_name = word(1060_text);
  Channel_Combo.accessible_name = word(1088_text);
  patch_list.accessible_name = word(1087_text);
}

void EarSettingsWindow::fill_lists() {
  for (const std::string_view program : general_midi_programs) patch_list.add(std::string(program));
  for (const std::string_view tempo : kTempi) temp_Combo.add(std::string(tempo));
  for (const Choice choice : {Choice::tempo, Choice::Tonart, Choice::frequenz, Choice::stimm_g,
                              Choice::ton_st_wahl, Choice::invzahl}) {
    set(choice, choice_value(settings(), choice));
  }
  HSliderVolume.value = kStartVolume;
  volume_change();
}

void EarSettingsWindow::send_sounds() {
  settings().patch_ar = patches_;
  set(Choice::grd_ton, settings().grd_ton);
  with_sound([this] { context().midi.send_patches(settings().patch_ar); });
}

void EarSettingsWindow::set(Choice choice, std::int16_t value) {
  switch (choice) {
    case Choice::tempo:
      set_choice(settings(), choice, value);
      temp_Combo.selected = value;
      break;
    case Choice::Tonart:
      set_choice(settings(), choice, value);
      select_option(Tonart, value);
      break;
    case Choice::frequenz:
      set_choice(settings(), choice, value);
      select_option(frequenz, value);
      break;
    case Choice::stimm_g:
      set_choice(settings(), choice, value);
      select_option(stimm_g, value);
      break;
    case Choice::grd_ton:
      grd_ton_click(value);
      break;
    case Choice::invzahl:
      invzahl_click(value);
      break;
    case Choice::ton_st_wahl:
      ton_st_wahl_click(value);
      break;
    case Choice::stufe_wahl:
      set_choice(settings(), choice, value);
      degree_list.selected = value;
      break;
    default:
      SettingsWindow::set(choice, value);
  }
}

void EarSettingsWindow::ton_st_wahl_click(std::int16_t index) {
  set_choice(settings(), Choice::ton_st_wahl, index);
  select_option(ton_st_wahl, index);
  const bool all = index == 0;
  for (int more = 2; more <= 4; ++more) invzahl[more].enabled = all;
  for (OptionControl& option : tongeschl) {
    option.enabled = all || *option.index() == settings().tongeschl;
  }
  if (!all) fill_degrees();
  degree_list.visible = !all;
}

void EarSettingsWindow::fill_degrees() {
  const IntervalNames& names = context().interval_names;
  degree_list.clear();
  degree_list.add(names.long_name(0) + "/" + context().tables.stufe_kurz[1]);
  for (const Degree& degree : degrees_above_keynote(settings().tongeschl)) {
    degree_list.add(names.long_name(degree.code));
  }
  set(Choice::stufe_wahl, 0);
}

void EarSettingsWindow::invzahl_click(std::int16_t index) {
  set_choice(settings(), Choice::invzahl, index);
  select_option(invzahl, index);
  ton_st_wahl[1].enabled = index == 1;
}

void EarSettingsWindow::after_tongeschl() {
  ton_st_wahl[1].enabled = settings().invzahl == 1;
}

void EarSettingsWindow::grd_ton_click(std::int16_t index) {
  set_choice(settings(), Choice::grd_ton, index);
  select_option(grd_ton, index);
  Channel_Combo.clear();
  Channel_Combo.add(word(341_text));
  if (index == 0) Channel_Combo.add(word(641_text));
  Channel_Combo.selected = index == 0 ? 1 : 0;
  Channel_Combo_change();
}

void EarSettingsWindow::lock_tempo(bool locked) {
  temp_Combo.enabled = !locked;
  temp_Combo.fore = locked ? signal::locked : kTempoOpen;
}

void EarSettingsWindow::Channel_Combo_change() {
  settings().kanal = static_cast<std::int16_t>(Channel_Combo.selected);
  patch_list.selected = settings().patch_ar.at(static_cast<std::size_t>(settings().kanal));
}

void EarSettingsWindow::patch_change() {
  choose_patch(context().midi, settings().patch_ar, settings().kanal,
               static_cast<std::int16_t>(patch_list.selected));
}

void EarSettingsWindow::volume_change() {
  Midi& midi = context().midi;
  midi.midi_lautstaerke = static_cast<std::int16_t>(HSliderVolume.value);
  midi.voice_volumes.at(static_cast<std::size_t>(midi.voice)) = midi.midi_lautstaerke;
  lb14[1].text = std::to_string(HSliderVolume.value);
}

Sequence EarSettingsWindow::klang_contr_click() {
  Midi& midi = context().midi;
  if (!has_sound()) {
    throw RuntimeError(RuntimeError::kDeviceError, word(1094_text), "klang_contr");
  }
  klang_contr.enabled = cmdOk.enabled = false;
  midi.MidiReset();
  co_await Delay(50);
  if (closing()) co_return;
  midi.send_patches(settings().patch_ar);
  co_await midi.MidiLeiser(waits());
  if (closing()) co_return;
  SoundCheck check;
  check.tonraum_min = settings().tonraum_min;
  check.tonraum_max = settings().tonraum_max;
  check.invzahl = settings().invzahl;
  check.stimm_g = settings().stimm_g;
  check.grd_ton = settings().grd_ton;
  check.beat_ms = settings().tempo_ms.at(static_cast<std::size_t>(settings().tempo));
  queue_sound_check(midi, check);
  co_await Delay(100);
  if (closing()) co_return;
  co_await midi.MidiStart(waits());
}

Sequence EarSettingsWindow::queue_ended() {
  co_await Delay(100);
  if (closing()) co_return;
  klang_contr.enabled = cmdOk.enabled = true;
}

void EarSettingsWindow::sound_failed() {
  klang_contr.enabled = true;
}

}  // namespace tonarix
