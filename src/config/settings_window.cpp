#include "config/settings_window.h"

#include <algorithm>

#include "base/filled_text.h"
#include "base/module_texts.h"
#include "config/einst_dat_save.h"
#include "config/test_listing.h"
#include "settings/saved_settings.h"

namespace tonarix {

namespace {

constexpr TextKey kLowestTones[] = {681_text, 682_text, 683_text, 684_text};
constexpr TextKey kHighestTones[] = {694_text, 695_text, 696_text, 697_text};

}  // namespace

SettingsWindow::SettingsWindow(const SettingsContext& context, const SettingsLayout& layout)
    : Window(context.common, layout.name),
      SettingsControls(static_cast<Window&>(*this)),
      context_(context),
      layout_(layout),
      choices_(context.settings),
      frames_(*this, layout.frames),
      levels_(context_, layout.kind, *this, choices_, frames_,
              [this](const std::string& text) { tell(text); }),
      marks_(*this, context.settings),
      start_(scheduler(), [this] { handle("start_timer.", [this] { start_up(); }); }),
      testtimer_(scheduler(), [this] {
        testtimer_.disable();
        click(cmdOk);
      }) {
  cmdOptionRead.visible = cmdOptionSave.visible = false;
  for (Control* button : {&cmdHilfe, &cmdOptionRead, &cmdOptionSave, &cmdZurueck, &cmdOk}) {
    button->container = &aktionsbox;
  }
  on(cmdHilfe, "cmdHilfe_click.", [this] { context_.send_keys("{F1}"); });
  on(cmdOptionRead, "cmdOptionRead_click.", [this] { read_test(); });
  on(cmdOptionSave, "cmdOptionSave_click.", [this] { list_test(); });
  on(cmdZurueck, "cmdZurueck_click.", [this] { go_back(); });
  on(cmdOk, "cmdOK_click.", [this] { accept(); });
  on(popExamToggle, "popExamToggle_click.", [this] { marks_.toggle(); });
  offer({Choice::Uebungsmodus, training_Combo, [this] { levels_.level_chosen(); }});
  offer({Choice::prfnr, prfnr_Comb, [this] { levels_.exam_chosen(); }});
  offer({Choice::abfrage, abfrage});
  offer({Choice::tongeschl, tongeschl});
  offer({Choice::E_Oktav, E_Oktav, [this] { fill_ranges(); }});
  offer({Choice::Combo_tonraum, Combo_tonraum});
  // Wide intervals need four octaves.
  offer({Choice::ivg, ivg, [this] {
           for (const int narrow : {0, 1}) E_Oktav[narrow].enabled = settings().ivg == 0;
         }});
  start_.enable();
}

void SettingsWindow::offer(Choices::Row row) {
  const Choices::Row& added = choices_.add(std::move(row));
  const Choice choice = added.choice;
  const std::string tag = added.control().name() + "_click.";
  for (OptionControl& option : added.options) {
    frames_.place(choice, option);
    on(option, tag, [this, choice, value = static_cast<std::int16_t>(*option.index())] {
      choices_.set(choice, value);
    });
  }
  if (!added.list) return;
  frames_.place(choice, *added.list);
  on(*added.list, tag, [this, choice] { choices_.take_entry(choice); });
}

void SettingsWindow::on(Control& control, std::string tag, std::function<void()> handler) {
  events_[&control] = {std::move(tag), std::move(handler)};
}

void SettingsWindow::close_requested() {
  handle("cmdZurueck_click.", [this] { go_back(); });
}

void SettingsWindow::click(Control& control) {
  const auto event = events_.find(&control);
  if (takes_input(control) && event != events_.end()) {
    status.text = levels_.standing_line();
    handle(event->second.tag, event->second.handler);
  }
}

void SettingsWindow::choose(ListControl& list, int entry) {
  if (!takes_input(list) || entry < 0 || entry >= static_cast<int>(list.items.size())) return;
  list.selected = entry;
  click(list);
}

void SettingsWindow::open_list(const ListControl& list) {
  if (&list != &training_Combo || !takes_input(list)) return;
  handle("training_Combo_click.", [this] { levels_.look_again(); });
}

void SettingsWindow::slide(SliderControl& slider, int value) {
  if (!takes_input(slider)) return;
  slider.value = std::clamp(value, slider.minimum, slider.maximum);
  click(slider);
}

void SettingsWindow::frame_menu(int frame) {
  if (!takes_input()) return;
  status.text = levels_.standing_line();
  marks_.open_menu(frame);
  changed();
}

void SettingsWindow::close_menu() {
  marks_.close_menu();
  changed();
}

void SettingsWindow::training_finished() {
  levels_.training_finished();
  changed();
}

void SettingsWindow::training_saved() {
  levels_.training_saved();
  changed();
}

void SettingsWindow::show_again() {
  cmdOk.enabled = true;
  levels_.look_again();
  show();
}

std::string SettingsWindow::exercise_caption() const {
  return word(exercise_row(settings()).caption);
}

void SettingsWindow::start_up() {
  caption = context_.tables.theory_kind(static_cast<int>(settings().Theoriewahl)) + word(700_text) +
            word(exercise_row(settings()).title);
  set_captions();
  cmdOptionRead.visible = cmdOptionSave.visible = settings().supervisor;
  context_.statistics.init_arr(3.0F, 42.0F);
  context_.best.init_arr(42);
  prepare();
  set_defaults(settings(), layout_.kind);
  if (settings().ueb_typ == ExerciseKind::write) E_Oktav[3].visible = false;
  choices_.start();
  levels_.begin();
  started_ = true;
}

void SettingsWindow::set_captions() {
  cmdHilfe.text = word(text::settings_help);
  cmdOptionRead.text = word(text::read_test);
  cmdOptionSave.text = word(text::save_settings);
  cmdZurueck.text = word(640_text);
  cmdOk.text = word(432_text);
  popExamToggle.text = word(438_text);
  for (const int narrow : {0, 1}) E_Oktav[narrow].why = word(text::needs_small_intervals);
  for (const int wide : {1, 2}) ivg[wide].why = word(text::needs_four_octaves);
  choices_.set_captions(common().texts);
  for (const FrameRow& row : frames_.rows()) {
    if (row.frame != kNoFrame) geinst_lb[row.frame].text = word(row.title);
  }
}

void SettingsWindow::list_test() {
  const std::optional<TextKey> place = context_.put_listing(TestListing::write(
      *this, {context_.server.application().executable, exercise_caption(), caption}));
  const int groups = TestListing::listed_groups(*this);
  const TextKey told = !place        ? text::listing_not_written
                       : groups == 0 ? text::no_group_listed
                       : groups == 1 ? text::one_group_listed
                                     : text::groups_listed;
  status.text = filled(word(told), {std::to_string(groups), place ? word(*place) : ""});
  announce(status.text);
}

void SettingsWindow::read_test() {
  const std::set<Control*> locked =
      TestListing::read(*this, TestListing::fixed_values(),
                        {[this](OptionControl& option) { click(option); },
                         [this](ListControl& list, int entry) { choose(list, entry); }});
  for (Control* frame : locked) frame->why = word(text::locked_by_read_test);
  const TextKey told = locked.empty()       ? text::no_value_read
                       : locked.size() == 1 ? text::one_group_read
                                            : text::groups_read;
  status.text = filled(word(told), {std::to_string(locked.size())});
  announce(status.text);
}

void SettingsWindow::fill_ranges() {
  const std::int16_t width = settings().E_Oktav;
  ivg[1].enabled = ivg[2].enabled = width >= 2;
  Combo_tonraum.clear();
  const int entries = range_entries(width, settings().ueb_typ);
  for (int i = 0; i < entries; ++i) {
    const auto low = static_cast<std::size_t>(i);
    Combo_tonraum.add(word(kLowestTones[low]) + " " + word(702_text) + " " +
                      word(kHighestTones[low + static_cast<std::size_t>(width)]));
  }
  choices_.set(Choice::Combo_tonraum, entries > 1 ? 1 : 0);
}

void SettingsWindow::add_pair(PairList& pairs, Choice choice) const {
  const std::string value = choices_.shown(choice);
  pairs.add(choice_words(choice).label,
            choice == Choice::frequenz ? frequency_value(value) : value);
}

void SettingsWindow::accept() {
  cmdOk.enabled = false;
  context_.ProtokollNeu();
  if (settings().Uebungsmodus == Level::test) choices_.set(Choice::abfrage, 1);
  PairList pairs;
  for (const Choice choice : layout_.pairs) {
    // A choice without a control of this window is told by its number.
    if (!choices_.find(choice) || choices_.visible(choice)) add_pair(pairs, choice);
  }
  settings().EinstDatSave = pairs.finish();
  if (settings().Uebungsmodus == Level::training) {
    settings().EinstSicherung = build_EinstSicherung(settings(), layout_.kind);
  }
  cmdOk.enabled = true;
  hide();
  context_.open_exercise(*this);
}

void SettingsWindow::go_back() {
  if (!begin_leaving()) return;
  start_.disable();
  testtimer_.disable();
  try {
    levels_.leave();
    give_back();
    stop_sound();
  } catch (...) {
    context_.errors.log("cmdZurueck_click.", std::current_exception());
  }
  waits().close();
  context_.show_selection();
  common().windows.unload(*this);
}

bool SettingsWindow::ends_window(std::string_view tag) const {
  return (tag == "start_timer." && !started_) || (tag == "cmdOK_click." && !visible);
}

void SettingsWindow::failed(std::string_view tag, std::exception_ptr error) {
  cmdOk.enabled = true;
  context_.errors.report(tag, error, [this, ends = ends_window(tag), here = alive()] {
    if (ends && !here.expired()) go_back();
  });
}

}  // namespace tonarix
