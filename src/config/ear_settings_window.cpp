#include "config/ear_settings_window.h"

#include "base/module_texts.h"
#include "music/degrees.h"
#include "sound/instruments.h"

namespace tonarix {

namespace {

constexpr int kStartVolume = 100;

}  // namespace

EarSettingsWindow::EarSettingsWindow(const SettingsContext& context, const SettingsLayout& layout,
                                     const Voices& voices)
    : SettingsWindow(context, layout),
      ton_st_wahl(*this, "ton_st_wahl"),
      degree_list(*this, voices.degree_list),
      Tonart(*this, "Tonart"),
      grd_ton(*this, "grd_ton"),
      frequenz(*this, "frequenz"),
      stimm_g(*this, "stimm_g"),
      temp_Combo(*this, "temp_Combo"),
      Channel_Combo(*this, "Channel_Combo"),
      patch_list(*this, voices.patch_list),
      HSliderVolume(*this, "HSliderVolume"),
      lb14(*this, "lb14"),
      klang_contr(*this, "klang_contr"),
      MIDI(context.devices),
      sound_(this->context(), MIDI, waits(), [this](const std::string& text) { tell(text); }),
      voices_(voices) {
  degree_list.visible = false;
  MIDI.on_queue_empty = [this] {
    if (common().windows.newest() == this) {
      run("MIDI_QueueEmpty.", queue_ended());
    } else {
      this->context().midi_event.SendQueueEmpty();
    }
  };
  offered().set_rule(Choice::tongeschl, [this] { allow_degree(); });
  offer({Choice::tempo, temp_Combo});
  offer({Choice::Tonart, Tonart});
  offer({Choice::frequenz, frequenz});
  offer({Choice::stimm_g, stimm_g});
  offer({Choice::ton_st_wahl, ton_st_wahl, [this] { degrees_chosen(); }});
  offer({Choice::stufe_wahl, degree_list});
  offer({Choice::grd_ton, grd_ton, [this] { fill_voices(); }});
  offer({Choice::kanal, Channel_Combo, [this] { offered().show(Choice::patch); }});
  offer({Choice::patch, patch_list, [this] { patch_chosen(); }});
  on(HSliderVolume, "HSliderVolume_change.", [this] { volume_chosen(); });
  on(klang_contr, "klang_contr_click.", [this] {
    klang_contr.enabled = cmdOk.enabled = false;
    run("klang_contr_click.", sound_.check());
  });
}

EarSettingsWindow::~EarSettingsWindow() {
  MIDI.on_queue_empty = nullptr;
  context().midi.detach(MIDI);
}

void EarSettingsWindow::set_captions() {
  SettingsWindow::set_captions();
  if (const FrameRow* degrees = frames().holding(Choice::ton_st_wahl)) {
    geinst_lb[degrees->frame].text = word(556_text) + " 2: " + word(508_text) + "(n)";
  }
  ton_st_wahl[1].why = word(text::needs_one_interval);
  for (OptionControl& mode : tongeschl) mode.why = word(text::needs_all_degrees);
  klang_contr.text = word(text::sound_check);
  lb14[0].text = HSliderVolume.accessible_name = word(text::volume);
}

void EarSettingsWindow::prepare() {
  sound_.attach();
  for (const std::string_view program : general_midi_programs) patch_list.add(std::string(program));
  for (const std::string_view tempo : kTempi) temp_Combo.add(std::string(tempo));
  settings().patch_ar = voices_.patches;
  sound_.send_patches();
  HSliderVolume.value = kStartVolume;
  volume_chosen();
}

void EarSettingsWindow::degrees_chosen() {
  const bool all = settings().ton_st_wahl == 0;
  if (const Choices::Row* numbers = offered().find(Choice::invzahl)) {
    for (OptionControl& more : numbers->options.subspan(1)) more.enabled = all;
  }
  for (OptionControl& option : tongeschl) {
    option.enabled = all || option.index() == settings().tongeschl;
  }
  degree_list.visible = !all;
  if (all) return;
  const IntervalNames& names = context().interval_names;
  degree_list.clear();
  degree_list.add(names.long_name(IntervalCode{0}) + "/" + context().tables.stufe_kurz[1]);
  for (const Degree& degree : degrees_above_keynote(settings().tongeschl)) {
    degree_list.add(names.long_name(degree.code));
  }
  offered().set(Choice::stufe_wahl, 0);
}

void EarSettingsWindow::allow_degree() {
  ton_st_wahl[1].enabled = settings().invzahl == 1;
}

void EarSettingsWindow::fill_voices() {
  const bool keynote = settings().grd_ton == 0;
  Channel_Combo.clear();
  Channel_Combo.add(word(341_text));
  if (keynote) Channel_Combo.add(word(641_text));
  offered().set(Choice::kanal, keynote ? 1 : 0);
}

void EarSettingsWindow::patch_chosen() {
  choose_patch(context().midi, settings().patch_ar, settings().kanal,
               choice_value(settings(), Choice::patch), voices_.follows);
}

void EarSettingsWindow::volume_chosen() {
  sound_.set_volume(HSliderVolume.value);
  lb14[1].text = std::to_string(HSliderVolume.value);
}

Sequence EarSettingsWindow::queue_ended() {
  co_await Delay(100);
  if (waits().closed()) co_return;
  klang_contr.enabled = cmdOk.enabled = true;
}

void EarSettingsWindow::stop_sound() {
  context().midi.MidiReset();
}

void EarSettingsWindow::failed(std::string_view tag, std::exception_ptr error) {
  klang_contr.enabled = true;
  if (ends_window(tag) || !is_device_failure(error)) {
    SettingsWindow::failed(tag, error);
    return;
  }
  cmdOk.enabled = true;
  sound_.tell_failure(tag, error);
}

}  // namespace tonarix
