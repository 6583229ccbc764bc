#include "results/windows/result_view.h"

#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "base/module_texts.h"
#include "results/windows/chart_widget.h"
#include "results/windows/sheet_widget.h"

namespace tonarix {

namespace {
constexpr double kSmallestBeside = 0.75;  // scale of the sheet with the chart at its side
constexpr double kSmallestBelow = 0.9;    // with the chart below, where height costs nothing
}  // namespace

ResultView::ResultView(ResultWindow& window, const Texts& words)
    : WindowView(window, words), window_(window) {
  parts_ = new QHBoxLayout(&content());
  parts_->setContentsMargins(theme::edge, theme::edge, theme::edge, theme::inside);
  parts_->setSpacing(theme::between);
  sheet_ = new SheetWidget(&content());
  parts_->addWidget(sheet_, 3);
  chart_card_ = card(nullptr, nullptr);
  chart_ = new ChartWidget(chart_card_);
  chart_card_->title().setText(to_qstring(window.chart_title()));
  chart_card_->body().addWidget(chart_);
  parts_->addWidget(chart_card_, 1);

  actions().addStretch();
  Button* help_button = button(window.cmdHilfe, [&window] { window.cmdHilfe_click(); });
  Button* print_button = button(window.cmdPrint, [&window] { window.cmdPrint_click(); });
  Button* ok = button(window.cmdOk, [&window] { window.cmdOk_click(); });
  for (Button* action : {help_button, print_button, ok}) actions().addWidget(action);
  way_on({ok});
  way_back({ok});
  help(help_button);
  key(QKeySequence::Print, *print_button);
}

void ResultView::applied() {
  if (!fitted_.isEmpty() || !window_.filled()) return;
  const SheetContent& content = window_.content();
  sheet_->setAccessibleName(word(text::sheet_name));
  sheet_->setAccessibleDescription(to_qstring(spoken_sheet(content, texts())));
  chart_->set_chart(window_.chart(),
                    {to_qstring(content.directions[0]), to_qstring(content.directions[1])},
                    to_qstring(window_.chart_title()));
  lay_out();
}

void ResultView::fit() {
  if (!fitted_.isEmpty() && fitted_ != size()) lay_out();
}

void ResultView::lay_out() {
  fitted_ = size();
  const SheetContent& content = window_.content();
  const double room =
      width() - 2 * theme::edge - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  SheetPicture picture = sheet_picture(content, SheetGround::screen);
  const double beside = theme::between + chart_card_->minimumSizeHint().width();
  if (picture.width * kSmallestBeside + beside <= room) {
    parts_->setDirection(QBoxLayout::LeftToRight);
    sheet_->set_picture(std::move(picture), kSmallestBeside);
    return;
  }
  if (picture.width * kSmallestBelow > room) {
    picture = sheet_picture(content, SheetGround::screen, SheetShape::tall);
  }
  const double scale = std::clamp(room / picture.width, kSmallestBelow, 1.0);
  parts_->setDirection(QBoxLayout::TopToBottom);
  sheet_->set_picture(std::move(picture), scale);
}

}  // namespace tonarix
