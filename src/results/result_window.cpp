#include "results/result_window.h"

namespace tonarix {

namespace {

constexpr std::string_view kHeadTag = "LbGrdEinst.";
constexpr std::string_view kTableTag = "LbEinst.";

void show_field(Control& control, const ResultField& field) {
  control.text = field.text;
  control.back = field.back;
}

template <typename Labels, typename Values>
void show_line(Labels& labels, Values& values, int index, const SheetLine& line) {
  labels[index].text = line.label;
  values[index].text = line.value;
  labels[index].visible = values[index].visible = line.visible;
}

}  // namespace

ResultWindow::ResultWindow(const ResultContext& context, std::function<void()> closed)
    : Window(context.common, "testergebnis"),
      context_(context),
      closed_(std::move(closed)),
      start_(scheduler(), [this] { start_timer(); }),
      testtimer_(scheduler(), [this] { leave(); }) {
  for (Control* control : controls()) {
    if (control->index() && *control->index() > 0) control->visible = false;
  }
  for (Control* button : {&cmdHilfe, &cmdPrint, &cmdOk}) button->container = &PicSchalt;
  cmdOk.text = word(625_text);
  cmdPrint.text = word(1_text);
  cmdHilfe.text = word(1203_text);
  cmdPrint.enabled = false;
  start_.enable();
}

void ResultWindow::start_timer() {
  content_.caption = word(1200_text) + word(700_text) + level_text(context_.settings.EinstDatSave);
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
  grd_einst_head.text = content_.head_title;
  for (int i = 0; i <= 5; ++i) {
    show_line(g_einst_lab, g_einst_inh, i, content_.head[static_cast<std::size_t>(i)]);
  }
}

void ResultWindow::LbEinst() {
  content_.settings_title = einst_head.text = word(1201_text);
  content_.settings = setting_lines(context_.settings.EinstDatSave, common().texts);
  if (content_.settings.size() > kSettingRows) content_.settings.resize(kSettingRows);
  for (std::size_t i = 0; i < content_.settings.size(); ++i) {
    show_line(einst_lab, einst_Inh, static_cast<int>(i) + 1, content_.settings[i]);
  }

  content_.results_title = erg_head.text = word(1202_text);
  content_.directions = {word(132_text), word(83_text)};
  content_.total_label = Lab_ergeb[0].text = word(275_text);
  content_.table =
      result_table(context_.settings, context_.statistics, context_.interval_names, common().texts);
  for (int column = 0; column <= 1; ++column) {
    Lab_richtung[column].text = content_.directions[static_cast<std::size_t>(column)];
    Lab_richtung[column].visible = content_.table.by_interval;
  }
  for (const ResultRow& row : content_.table.rows) show_row(row);
  show_field(ergebnis[0], content_.table.total);
  chart_ = result_chart(content_.table, content_.directions, common().texts);
  cmdPrint.enabled = true;
  filled_ = true;
}

void ResultWindow::show_row(const ResultRow& row) {
  Control& label = Lab_ergeb[row.control];
  Control& field = ergebnis[row.control];
  label.text = row.label;
  show_field(field, row.field);
  field.accessible_name = row.label;
  label.visible = field.visible = true;
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
  if (result.end == PrintResult::End::failed) {
    const Message told{caption, word(1204_text) + "\n" + result.reason, MessageStyle::warning, "",
                       ""};
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
  if (cmdOk.open()) leave();
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
  if (left_) return;
  left_ = true;
  start_.disable();
  testtimer_.disable();
  const std::function<void()> closed = closed_;
  common().windows.unload(*this);
  if (closed) closed();
}

}  // namespace tonarix
