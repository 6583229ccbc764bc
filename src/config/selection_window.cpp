#include "config/selection_window.h"

#include <algorithm>

#include "base/module_texts.h"
#include "settings/settings_tables.h"

namespace tonarix {

namespace {

constexpr int kWideScreen = 1000;  // pixels

}  // namespace

SelectionWindow::SelectionWindow(SelectionContext context)
    : Window(context.common, "grd_einst"),
      context_(std::move(context)),
      start_(scheduler(), [this] { run("start_timer.", start_up()); }) {
  for (Control* button : {&cmdHilfe, &cmdEnde, &cmdOk}) button->container = &PicAktion;
  for (OptionControl& option : Theoriewahl) option.enabled = false;
  for (OptionControl& option : ueb_typ) option.enabled = false;
  cmdOk.enabled = false;
}

void SelectionWindow::load() {
  const Server::Status status = context_.server.ServerInit("vemo06");
  settings().supervisor = context_.server.supervisor();
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
  co_await ask(waits(), common().dialogs, box);
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
  caption = context_.tables.theory_kinds[0] + word(700_text) + word(text::module_subject);
  version.text = word(699_text) + " " + context_.server.application().version();
  choose_exercise(1);
  settings().tempo_ms = tempo_beats();
  settings().klein_bildschirm = context_.screen_width >= kWideScreen;
  choose_theory(static_cast<int>(settings().Theoriewahl));
  if (context_.started) context_.started();
  if (all_well) co_return;
  // Only now is there a language to say it in.
  const Message box = context_.errors.message();
  co_await ask(waits(), common().dialogs, box);
}

void SelectionWindow::set_captions() {
  grdeinst_lb.text = word(586_text);
  for (const ExerciseRow& row : kExercises) {
    OptionControl& option = ueb_typ[static_cast<int>(row.kind)];
    option.text = word(row.caption);
    option.tag = grdeinst_lb.text;
    option.why = word(text::not_available_yet);
  }
  cmdOk.text = word(432_text);
  cmdEnde.text = word(223_text);
  cmdHilfe.text = word(text::selection_help);
  Theoriewahl[0].text = word(724_text);
  Theoriewahl[1].text = word(725_text);
  for (OptionControl& study : Theoriewahl) study.why = word(text::not_available_yet);
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
  settings().Theoriewahl = static_cast<Study>(index);
  ueb_typ[2].visible = ueb_typ[3].visible = index == 0;
  if (index == 1 && !ueb_typ[1].value && !ueb_typ[4].value) choose_exercise(1);
  offer_exercises();
}

void SelectionWindow::choose_exercise(int index) {
  select_option(ueb_typ, index);
  settings().ueb_typ = static_cast<ExerciseKind>(index);
}

void SelectionWindow::offer_exercises() {
  const auto available = [this](Study study, int kind) {
    const ExerciseRow* row = find_exercise(study, static_cast<ExerciseKind>(kind));
    return row != nullptr && (!context_.available || context_.available(*row));
  };
  for (OptionControl& option : ueb_typ) {
    option.enabled = available(settings().Theoriewahl, *option.index());
  }
  for (OptionControl& option : Theoriewahl) {
    const auto study = static_cast<Study>(*option.index());
    option.enabled = std::ranges::any_of(kExercises, [&](const ExerciseRow& row) {
      return row.study == study && available(study, static_cast<int>(row.kind));
    });
  }

  // An exercise that is not there yet never stays chosen while another is.
  const auto chosen = [this]() -> OptionControl& {
    return ueb_typ[static_cast<int>(settings().ueb_typ)];
  };
  if (!chosen().open()) {
    const auto other = std::find_if(ueb_typ.begin(), ueb_typ.end(),
                                    [](const OptionControl& one) { return one.open(); });
    if (other != ueb_typ.end()) choose_exercise(*other->index());
  }
  cmdOk.enabled = chosen().open();
}

void SelectionWindow::cmdOk_click() {
  press(cmdOk, "cmdOK_click.", [this] { return begin(); });
}

Sequence SelectionWindow::begin() {
  cmdOk.enabled = false;
  std::exception_ptr error;
  try {
    context_.server.ServerLogMess(
        std::to_string(static_cast<int>(settings().ueb_typ)) + "; uebungs_typ=" +
        std::to_string(static_cast<int>(settings().Theoriewahl)) + "; Theorietyp =");
  } catch (...) {
    error = std::current_exception();
  }
  const Message box = context_.errors.message();
  if (error) {
    context_.errors.log("cmdOK_click.", error);
    co_await ask(waits(), common().dialogs, box);
  }
  hide();
  offer_exercises();
  error = nullptr;
  try {
    context_.open_settings(exercise_row(settings()).settings);
  } catch (...) {
    error = std::current_exception();
  }
  if (!error) co_return;
  context_.errors.log("cmdOK_click.", error);
  co_await ask(waits(), common().dialogs, box);
  co_await leave();
}

void SelectionWindow::cmdEnde_click() {
  press(cmdEnde, "cmdEnde_click.", [this] { return leave(); });
}

void SelectionWindow::close_requested() {
  run("cmdEnde_click.", leave());
}

Sequence SelectionWindow::leave() {
  if (!begin_leaving()) co_return;
  start_.disable();
  std::exception_ptr error;
  try {
    context_.server.ServerMenue(common().windows);
  } catch (...) {
    error = std::current_exception();
  }
  if (error) {
    context_.errors.log("cmdEnde_click.", error);
    const Message box = context_.errors.message();
    co_await ask(waits(), common().dialogs, box);
  }
  const std::function<void()> quit = context_.quit;
  common().windows.unload(*this);
  quit();
}

void SelectionWindow::cmdHilfe_click() {
  press(cmdHilfe, "cmdHilfe_click.", [this] { context_.show_help(); });
}

void SelectionWindow::failed(std::string_view tag, std::exception_ptr error) {
  context_.errors.report(tag, error);
}

}  // namespace tonarix
