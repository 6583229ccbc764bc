#include "host/selection_window.h"

#include <algorithm>

namespace tonarix {

namespace {

constexpr int kWideScreen = 1000;  // pixels
constexpr std::array kExerciseCaptions{154_text, 160_text, 496_text, 690_text};

}  // namespace

SelectionWindow::SelectionWindow(SelectionContext context)
    : Window(context.scheduler, "grd_einst"),
      context_(std::move(context)),
      start_(scheduler(), [this] { run("start_timer.", start_up()); }) {
  for (Control* button : {&cmdHilfe, &cmdEnde, &cmdOk}) button->container = &PicAktion;
  for (OptionControl& option : Theoriewahl) option.enabled = false;
  for (OptionControl& option : ueb_typ) option.enabled = false;
  cmdOk.enabled = false;
}

void SelectionWindow::load() {
  const Server::Status status = context_.server.ServerInit("vemo06");
  context_.fields.supervisor = context_.server.supervisor();
  if (status.running) {
    start_.enable();
  } else {
    hide();
    run("load.", refuse(status.number));
  }
}

Sequence SelectionWindow::refuse(int status) {
  const Message box{context_.server.application().title, "Status " + std::to_string(status),
                    MessageStyle::plain, "", ""};
  co_await ask(waits(), context_.dialogs, box);
  context_.quit();
}

Sequence SelectionWindow::start_up() {
  bool all_well = true;
  const auto step = [&](const auto& work) {
    try {
      work();
    } catch (...) {
      all_well = false;
      context_.errors.log("start_timer.", std::current_exception());
    }
  };
  std::string name = "Deutsch";
  step([&] { context_.language.SprachInit(); });
  step([&] { name = context_.server.ServerLang(); });
  step([&] { context_.language.SprachWahl(name); });
  step([&] { context_.tables.load(context_.language); });
  step([&] { set_captions(); });
  step([&] { context_.server.ServerLogin(); });
  step([&] {
    if (context_.join_companion) context_.join_companion(context_.server.ServerObject());
  });
  caption = context_.tables.theory_kinds[0] + context_.language.Wort(700_text) +
            context_.language.Wort(1003_text);
  version.text = context_.language.Wort(699_text) + " " + context_.server.application().version();
  choose_exercise(1);
  context_.fields.tempo_ms = context_.tempo_beats;
  context_.fields.klein_bildschirm = context_.screen_width >= kWideScreen;
  choose_theory(context_.fields.Theoriewahl);
  if (all_well) co_return;
  // Only now is there a language to say it in.
  const Message box = context_.errors.message();
  co_await ask(waits(), context_.dialogs, box);
}

void SelectionWindow::set_captions() {
  const Texts& texts = context_.language;
  grdeinst_lb.text = texts.Wort(586_text);
  for (int i = 1; i <= 4; ++i) {
    ueb_typ[i].text = texts.Wort(kExerciseCaptions[static_cast<std::size_t>(i - 1)]);
    ueb_typ[i].tag = grdeinst_lb.text;
  }
  cmdOk.text = texts.Wort(432_text);
  cmdEnde.text = texts.Wort(223_text);
  cmdHilfe.text = texts.Wort(1001_text);
  Theoriewahl[0].text = texts.Wort(724_text);
  Theoriewahl[1].text = texts.Wort(725_text);
}

void SelectionWindow::Theoriewahl_click(int index) {
  press(Theoriewahl[index], "Theoriewahl_click.", [this, index] { choose_theory(index); });
}

void SelectionWindow::ueb_typ_click(int index) {
  press(ueb_typ[index], "ueb_typ_click.", [this, index] {
    choose_exercise(index);
    offer_exercises();
  });
}

void SelectionWindow::choose_theory(int index) {
  select_option(Theoriewahl, index);
  context_.fields.Theoriewahl = static_cast<std::int16_t>(index);
  ueb_typ[2].visible = ueb_typ[3].visible = index == 0;
  if (index == 1 && !ueb_typ[1].value && !ueb_typ[4].value) choose_exercise(1);
  offer_exercises();
}

void SelectionWindow::choose_exercise(int index) {
  select_option(ueb_typ, index);
  context_.fields.ueb_typ = static_cast<std::int16_t>(index);
}

void SelectionWindow::offer_exercises() {
  const auto available = [this](int study, int exercise) {
    return !context_.available || context_.available(study, exercise);
  };
  const auto offer = [this](OptionControl& option, bool offered) {
    option.enabled = offered;
    option.accessible_name = offered ? "" : option.text + ", " + context_.language.Wort(1002_text);
  };
  const int study = context_.fields.Theoriewahl;
  for (int i = 1; i <= 4; ++i) offer(ueb_typ[i], available(study, i));
  offer(Theoriewahl[0], available(0, 1) || available(0, 2) || available(0, 3) || available(0, 4));
  offer(Theoriewahl[1], available(1, 1) || available(1, 4));

  // An exercise that is not there yet never stays chosen while another is.
  if (!ueb_typ[context_.fields.ueb_typ].open()) {
    const auto other = std::find_if(ueb_typ.begin(), ueb_typ.end(),
                                    [](const OptionControl& one) { return one.open(); });
    if (other != ueb_typ.end()) choose_exercise(*other->index());
  }
  cmdOk.enabled = ueb_typ[context_.fields.ueb_typ].open();
}

SettingsWindowKind SelectionWindow::wanted_settings() const {
  if (context_.fields.Theoriewahl == 1) return SettingsWindowKind::einstellung1b;
  return context_.fields.ueb_typ == 2 ? SettingsWindowKind::einstellung2
                                      : SettingsWindowKind::einstellung1;
}

void SelectionWindow::cmdOk_click() {
  press(cmdOk, "cmdOK_click.", [this] { return begin(); });
}

Sequence SelectionWindow::begin() {
  cmdOk.enabled = false;
  std::exception_ptr error;
  try {
    context_.server.ServerLogMess(std::to_string(context_.fields.ueb_typ) + "; uebungs_typ=" +
                                  std::to_string(context_.fields.Theoriewahl) + "; Theorietyp =");
  } catch (...) {
    error = std::current_exception();
  }
  const Message box = context_.errors.message();
  if (error) {
    context_.errors.log("cmdOK_click.", error);
    co_await ask(waits(), context_.dialogs, box);
  }
  hide();
  offer_exercises();
  error = nullptr;
  try {
    context_.open_settings(wanted_settings());
  } catch (...) {
    error = std::current_exception();
  }
  if (!error) co_return;
  context_.errors.log("cmdOK_click.", error);
  co_await ask(waits(), context_.dialogs, box);
  co_await leave();
}

void SelectionWindow::cmdEnde_click() {
  press(cmdEnde, "cmdEnde_click.", [this] { return leave(); });
}

void SelectionWindow::title_bar_close() {
  run("cmdEnde_click.", leave());
}

Sequence SelectionWindow::leave() {
  if (leaving_) co_return;
  leaving_ = true;
  start_.disable();
  std::exception_ptr error;
  try {
    context_.server.ServerMenue(context_.windows);
  } catch (...) {
    error = std::current_exception();
  }
  if (error) {
    context_.errors.log("cmdEnde_click.", error);
    const Message box = context_.errors.message();
    co_await ask(waits(), context_.dialogs, box);
  }
  const std::function<void()> quit = context_.quit;
  context_.windows.unload(*this);
  quit();
}

void SelectionWindow::cmdHilfe_click() {
  press(cmdHilfe, "cmdHilfe_click.", [this] { context_.show_help(); });
}

const std::string& SelectionWindow::chosen_theory() const {
  return Theoriewahl[context_.fields.Theoriewahl].text;
}

const std::string& SelectionWindow::chosen_exercise() const {
  return ueb_typ[context_.fields.ueb_typ].text;
}

void SelectionWindow::failed(std::string_view tag, std::exception_ptr error) {
  context_.errors.report(tag, error);
}

}  // namespace tonarix
