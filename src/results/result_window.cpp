#include "results/result_window.h"
#include "base/module_texts.h"
#include "results/percentage.h"

namespace tonarix {

namespace {

constexpr std::string_view kHeadTag = "LbGrdEinst.";
constexpr std::string_view kTableTag = "LbEinst.";

}  // namespace

ResultWindow::ResultWindow(const ResultContext& context, std::function<void()> closed)
    : Window(context.common, "testergebnis"),
      context_(context),
      closed_(std::move(closed)),
      start_(scheduler(), [this] { start_timer(); }),
      testtimer_(scheduler(), [this] { leave(); }) {
  for (Control* button : {&cmdHilfe, &cmdPrint, &cmdOk}) button->container = &PicSchalt;
  cmdOk.text = word(625_text);
  cmdPrint.text = word(1_text);
  cmdHilfe.text = word(text::sheet_help);
  cmdPrint.enabled = false;
  start_.enable();
}

void ResultWindow::start_timer() {
  content_.caption =
      word(text::sheet_caption) + word(700_text) + level_text(context_.settings.EinstDatSave);
  caption = content_.caption;
  handle(kHeadTag, [this] { LbGrdEinst(); });
  if (cmdOk.tag.empty()) handle(kTableTag, [this] { LbEinst(); });
}

void ResultWindow::LbGrdEinst() {
  HeadFacts facts;
  facts.now = context_.clock.now();
  facts.computer_user = context_.computer_user;
  facts.user = context_.server.ServerLogin();
  facts.user_known = context_.server.user_known();
  content_.head_title = head_title(context_.settings, common().texts);
  content_.head = head_lines(facts, context_.settings, common().texts);
}

void ResultWindow::LbEinst() {
  content_.settings_title = word(text::sheet_settings);
  content_.settings = setting_lines(context_.settings.EinstDatSave, common().texts);
  if (content_.settings.size() > kSettingRows) content_.settings.resize(kSettingRows);
  content_.results_title = word(text::sheet_results);
  content_.directions = {word(132_text), word(83_text)};
  content_.work = work_words(context_.work, common().texts);
  content_.counts_lead = context_.settings.Uebungsmodus == Level::free;
  content_.total_label = word(275_text);
  content_.table =
      result_table(context_.settings, context_.statistics, context_.interval_names, common().texts);
  chart_ = result_chart(content_.table, content_.directions, common().texts);
  cmdPrint.enabled = true;
  filled_ = true;
  const std::string total =
      content_.total_label + " " + spoken_percentage(content_.table.total.text, common().texts);
  const std::string counts = content_.work.line(", ");
  announce(content_.counts_lead ? counts : total);
  announce(content_.counts_lead ? total : counts);
}

void ResultWindow::cmdPrint_click() {
  press(cmdPrint, "cmdPrint_click.", [this] {
    PicSchalt.enabled = cmdPrint.enabled = false;
    const SheetPicture page = sheet_picture(content_, SheetGround::paper);
    context_.printer.print(page, [this, here = alive()](const PrintResult& result) {
      if (!here.expired()) printed(result);
    });
  });
}

void ResultWindow::printed(const PrintResult& result) {
  PicSchalt.enabled = cmdPrint.enabled = true;
  if (!result.log_line.empty()) {
    context_.errors.log("cmdPrint_click.",
                        std::make_exception_ptr(
                            RuntimeError(RuntimeError::kPathError, result.log_line, "cmdPrint")));
  }
  if (result.end == PrintResult::End::failed) {
    const Message told{caption, word(text::sheet_not_printed) + "\n" + result.reason,
                       MessageStyle::warning, "", ""};
    common().dialogs.show(told, [](Reply) {});
  }
  changed();
}

void ResultWindow::cmdHilfe_click() {
  press(cmdHilfe, "cmdHilfe_click.", [this] {
    if (context_.show_help) context_.show_help();
  });
}

void ResultWindow::cmdOk_click() {
  if (takes_input(cmdOk)) leave();
}

void ResultWindow::failed(std::string_view tag, std::exception_ptr error) {
  const bool while_filling = tag == kHeadTag || tag == kTableTag;
  if (while_filling) {
    cmdOk.tag = "ERROR";
  } else {
    PicSchalt.enabled = cmdPrint.enabled = true;
  }
  context_.errors.report(tag, error, [this, while_filling, here = alive()] {
    if (while_filling && !here.expired()) testtimer_.enable();
  });
}

void ResultWindow::leave() {
  if (!begin_leaving()) return;
  start_.disable();
  testtimer_.disable();
  const std::function<void()> closed = closed_;
  common().windows.unload(*this);
  if (closed) closed();
}

}  // namespace tonarix
