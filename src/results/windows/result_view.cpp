#include "results/windows/result_view.h"

#include <QVBoxLayout>

#include "results/windows/chart_widget.h"
#include "results/windows/sheet_widget.h"

namespace tonarix {

ResultView::ResultView(ResultWindow& window, const Texts& words)
    : WindowView(window, words), window_(window) {
  auto* row = new QHBoxLayout(&content());
  row->setContentsMargins(theme::edge, theme::edge, theme::edge, theme::inside);
  row->setSpacing(theme::between);
  sheet_ = new SheetWidget(&content());
  row->addWidget(sheet_, 3);
  chart_card_ = card(nullptr, nullptr);
  chart_ = new ChartWidget(chart_card_);
  chart_card_->title().setText(to_qstring(window.chart_title()));
  chart_card_->body().addWidget(chart_);
  row->addWidget(chart_card_, 1);

  actions().addStretch();
  Button* help_button = button(window.cmdHilfe, [&window] { window.cmdHilfe_click(); });
  Button* print_button = button(window.cmdPrint, [&window] { window.cmdPrint_click(); });
  Button* ok = button(window.cmdOk, [&window] { window.cmdOk_click(); });
  for (Button* action : {help_button, print_button, ok}) actions().addWidget(action);
  way_on({ok});
  help(help_button);
  key(QKeySequence::Print, *print_button);
}

void ResultView::applied() {
  if (shown_ || !window_.filled()) return;
  shown_ = true;
  const SheetContent& content = window_.content();
  const SheetPicture picture = sheet_picture(content, SheetGround::screen);
  sheet_->set_picture(picture, word(1211_text), to_qstring(spoken_sheet(content)));
  chart_->set_chart(window_.chart(),
                    {to_qstring(content.directions[0]), to_qstring(content.directions[1])},
                    to_qstring(window_.chart_title()));
}

}  // namespace tonarix
