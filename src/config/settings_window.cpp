#include "config/settings_window.h"

#include <algorithm>

#include "config/einst_dat_save.h"
#include "config/test_listing.h"

namespace tonarix {

namespace {

constexpr TextKey kLowestTones[] = {681_text, 682_text, 683_text, 684_text};
constexpr TextKey kHighestTones[] = {694_text, 695_text, 696_text, 697_text};

}  // namespace

SettingsWindow::SettingsWindow(const SettingsContext& context, std::string name, SettingsKind kind)
    : Window(context.common, std::move(name)),
      grdeinst(*this, "grdeinst"),
      geinst_lb(*this, "geinst_lb"),
      aktionsbox(*this, "aktionsbox"),
      cmdHilfe(*this, "cmdHilfe"),
      cmdOptionRead(*this, "cmdOptionRead"),
      cmdOptionSave(*this, "cmdOptionSave"),
      cmdZurueck(*this, "cmdZurueck"),
      cmdOk(*this, "cmdOk"),
      training_Combo(*this, "training_Combo"),
      prfnr_Comb(*this, "prfnr_Comb"),
      abfrage(*this, "abfrage"),
      tongeschl(*this, "tongeschl"),
      E_Oktav(*this, "E_Oktav"),
      Combo_tonraum(*this, "Combo_tonraum"),
      ivg(*this, "ivg"),
      popPruefung(*this, "popPruefung"),
      popExamToggle(*this, "popExamToggle"),
      MIDI(context.devices),
      testtimer(scheduler(),
                [this] {
                  testtimer.disable();
                  click(cmdOk);
                }),
      context_(context),
      kind_(kind),
      start_(scheduler(), [this] { handle("start_timer.", [this] { start_up(); }); }) {
  cmdOptionRead.visible = cmdOptionSave.visible = false;
  prfnr_Comb.visible = popPruefung.visible = false;
  for (Control* button : {&cmdHilfe, &cmdOptionRead, &cmdOptionSave, &cmdZurueck, &cmdOk}) {
    button->container = &aktionsbox;
  }
  MIDI.on_queue_empty = [this] {
    if (common().windows.newest() == this) {
      run("MIDI_QueueEmpty.", queue_ended());
    } else {
      context_.midi_event.SendQueueEmpty();
    }
  };
  on(cmdHilfe, "cmdHilfe_click.", [this] { context_.send_keys("{F1}"); });
  on(cmdOptionRead, "cmdOptionRead_click.", [this] { read_test(); });
  on(cmdOptionSave, "cmdOptionSave_click.", [this] { list_test(); });
  on(cmdZurueck, "cmdZurueck_click.", [this] { go_back(); });
  on(cmdOk, "cmdOK_click.", [this] { accept(); });
  on(training_Combo, "training_Combo_click.", [this] { training_Combo_change(); });
  on(prfnr_Comb, "prfnr_Comb_click.", [this] { prfnr_Comb_change(); });
  on_each(abfrage, "abfrage_click.", [this](std::int16_t i) { set(Choice::abfrage, i); });
  on_each(tongeschl, "tongeschl_click.", [this](std::int16_t i) { set(Choice::tongeschl, i); });
  on_each(E_Oktav, "E_Oktav_click.", [this](std::int16_t i) { set(Choice::E_Oktav, i); });
  on_each(ivg, "ivg_click.", [this](std::int16_t i) { set(Choice::ivg, i); });
  on(Combo_tonraum, "Combo_tonraum_click.",
     [this] { set(Choice::Combo_tonraum, static_cast<std::int16_t>(Combo_tonraum.selected)); });
  on(popExamToggle, "popExamToggle_click.", [this] { toggle_mark(); });
  start_.enable();
}

SettingsWindow::~SettingsWindow() {
  MIDI.on_queue_empty = nullptr;
  context_.midi.detach(MIDI);
}

void SettingsWindow::place(Control& control, int frame, std::string_view tag) {
  control.container = &grdeinst[frame];
  control.tag = tag;
}

void SettingsWindow::on(Control& control, std::string tag, std::function<void()> handler) {
  events_[&control] = {std::move(tag), std::move(handler)};
}

void SettingsWindow::title_bar_close() {
  handle("cmdZurueck_click.", [this] { go_back(); });
}

void SettingsWindow::click(Control& control) {
  const bool reachable = control.open() && (!control.container || control.container->open());
  const auto event = events_.find(&control);
  if (reachable && event != events_.end()) handle(event->second.tag, event->second.handler);
}

void SettingsWindow::choose(ListControl& list, int entry) {
  const bool reachable = list.open() && (!list.container || list.container->open());
  if (!reachable || entry < 0 || entry >= static_cast<int>(list.items.size())) return;
  list.selected = entry;
  click(list);
}

void SettingsWindow::slide(SliderControl& slider, int value) {
  if (!slider.open() || (slider.container && !slider.container->open())) return;
  slider.value = std::clamp(value, slider.minimum, slider.maximum);
  click(slider);
}

void SettingsWindow::start_up() {
  caption = context_.tables.theory_kind(static_cast<int>(settings().Theoriewahl)) + word(700_text) +
            word(exercise_row(settings()).title);
  set_captions();
  cmdOptionRead.visible = cmdOptionSave.visible = settings().supervisor;
  context_.statistics.init_arr(3.0F, 42.0F);
  context_.best.init_arr(42);
  attach_midi();
  set_defaults(settings(), kind_);
  if (settings().ueb_typ == ExerciseKind::write) E_Oktav[3].visible = false;
  fill_lists();
  set(Choice::abfrage, settings().abfrage);
  set(Choice::tongeschl, settings().tongeschl);
  set(Choice::E_Oktav, 0);
  set(Choice::ivg, settings().ivg);
  fill_levels(saved_training_offered(context_.server, settings()));
  training_Combo.selected = static_cast<int>(Level::free);
  training_Combo_change();
  send_sounds();
  for (int number = 1; number <= 5; ++number) {
    prfnr_Comb.add(word(426_text) + " " + std::to_string(number));
  }
  prfnr_Comb.selected = 0;
  prfnr_Comb_change();
  fill_transposition();
  started_ = true;
}

void SettingsWindow::set_captions() {
  cmdHilfe.text = word(1080_text);
  cmdOptionRead.text = word(1082_text);
  cmdOptionSave.text = word(1083_text);
  cmdZurueck.text = word(640_text);
  cmdOk.text = word(432_text);
  popExamToggle.text = word(438_text);
  captions(abfrage, {1065_text, 1066_text});
  captions(tongeschl, {1062_text, 1063_text, 1064_text});
  for (OptionControl& option : E_Oktav) {
    option.text = std::to_string(*option.index() + 2) + " " + word(1072_text);
  }
  ivg[0].text = word(1071_text);
  ivg[1].text = "1 - 2 " + word(1072_text);
  ivg[2].text = word(1073_text);
  training_Combo.accessible_name = word(1050_text);
  prfnr_Comb.accessible_name = word(1089_text);
  Combo_tonraum.accessible_name = word(1086_text);
}

std::string SettingsWindow::exercise_caption() const {
  return word(exercise_row(settings()).caption);
}

void SettingsWindow::set(Choice choice, std::int16_t value) {
  switch (choice) {
    case Choice::abfrage:
      set_choice(settings(), choice, value);
      select_option(abfrage, value);
      break;
    case Choice::tongeschl:
      set_choice(settings(), choice, value);
      select_option(tongeschl, value);
      after_tongeschl();
      break;
    case Choice::E_Oktav:
      E_Oktav_click(value);
      break;
    case Choice::ivg:
      ivg_click(value);
      break;
    case Choice::Combo_tonraum:
      Combo_tonraum.selected = value;
      set_choice(settings(), choice, value);
      break;
    default:
      set_choice(settings(), choice, value);
  }
}

void SettingsWindow::E_Oktav_click(std::int16_t index) {
  set_choice(settings(), Choice::E_Oktav, index);
  select_option(E_Oktav, index);
  ivg[1].enabled = ivg[2].enabled = index >= 2;
  Combo_tonraum.clear();
  const int entries = range_entries(index, settings().ueb_typ);
  for (int i = 0; i < entries; ++i) {
    const auto low = static_cast<std::size_t>(i);
    Combo_tonraum.add(word(kLowestTones[low]) + " " + word(702_text) + " " +
                      word(kHighestTones[low + static_cast<std::size_t>(index)]));
  }
  set(Choice::Combo_tonraum, entries > 1 ? 1 : 0);
}

void SettingsWindow::ivg_click(std::int16_t index) {
  set_choice(settings(), Choice::ivg, index);
  select_option(ivg, index);
  E_Oktav[0].enabled = E_Oktav[1].enabled = index == 0;
}

void SettingsWindow::add_level_pairs(PairList& pairs) const {
  pairs.add("Übungsmodus", training_Combo.selected_text());
  if (settings().Uebungsmodus == Level::exam) pairs.add("Nr.:", prfnr_Comb.selected_text());
}

void SettingsWindow::accept() {
  cmdOk.enabled = false;
  context_.ProtokollNeu();
  if (settings().Uebungsmodus == Level::test) set(Choice::abfrage, 1);
  settings().EinstDatSave = build_EinstDatSave();
  if (settings().Uebungsmodus == Level::training) {
    settings().EinstSicherung = build_EinstSicherung(settings(), kind_);
  }
  cmdOk.enabled = true;
  hide();
  context_.open_exercise(*this);
}

void SettingsWindow::go_back() {
  if (schliessen_) return;
  start_.disable();
  testtimer.disable();
  schliessen_ = true;
  try {
    context_.midi.MidiReset();
  } catch (...) {
    context_.errors.log("cmdZurueck_click.", std::current_exception());
  }
  waits().close();
  context_.show_selection();
  common().windows.unload(*this);
}

void SettingsWindow::show_again() {
  cmdOk.enabled = true;
  show();
}

void SettingsWindow::failed(std::string_view tag, std::exception_ptr error) {
  cmdOk.enabled = true;
  sound_failed();
  const bool start = tag == "start_timer.";
  const bool opening = tag == "cmdOK_click." && !visible;
  if (!start && !opening && is_device_failure(error)) {
    tell_device_failure(tag, error);
    return;
  }
  const auto done = [this, start, opening, here = alive()] {
    if (!here.expired() && (opening || (start && !started_))) go_back();
  };
  context_.errors.report(tag, error, done);
}

}  // namespace tonarix
