#include "config/windows/settings_view.h"

#include <QButtonGroup>
#include <QMenu>
#include <algorithm>
#include <numeric>

namespace tonarix {
namespace {

constexpr int kGap = 10;          // between frames
constexpr int kFrameWidth = 232;  // at least, where there is room for four

}  // namespace

SettingsView::SettingsView(SettingsWindow& window, const Texts& texts)
    : WindowView(window, texts), settings_window_(window), grid_(new QGridLayout(&content())) {
  grid_->setContentsMargins(theme::edge, theme::between, theme::edge, theme::inside);
  grid_->setSpacing(kGap);
}

Card* SettingsView::frame(int index, int row, int column, int columns) {
  Card* made = card(&settings_window_.grdeinst[index], &settings_window_.geinst_lb[index]);
  put(made, row, column, columns);
  made->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(made, &QWidget::customContextMenuRequested, this,
                   [this, made, index](const QPoint& at) {
                     menu_place_ = made->mapToGlobal(at);
                     if (bindings().live()) settings_window_.frame_menu(index);
                   });
  return made;
}

Card* SettingsView::group_card(const QString& title, int row, int column, int columns) {
  Card* made = card(nullptr, nullptr);
  made->title().setText(title);
  made->setAccessibleName(title);
  put(made, row, column, columns);
  return made;
}

void SettingsView::put(Card* card, int row, int column, int columns) {
  places_.push_back({card, row, column, columns});
  grid_->addWidget(card, row, column, 1, columns);
  for (int each = column; each < column + columns; ++each) {
    grid_->setColumnStretch(each, 1);
    grid_->setColumnMinimumWidth(each, kFrameWidth);
  }
}

int SettingsView::width_of(int columns) const {
  std::vector<int> widths(static_cast<std::size_t>(columns), columns == 4 ? kFrameWidth : 0);
  for (const Place& place : places_) {
    const int least = place.card->minimumSizeHint().width();
    const int spanned = std::min(place.columns, columns);
    int& width = widths[static_cast<std::size_t>(place.column % columns)];
    width = std::max(width, (least - (spanned - 1) * kGap) / spanned);
  }
  return std::accumulate(widths.begin(), widths.end(), 0) + (columns - 1) * kGap + 2 * theme::edge;
}

void SettingsView::arrange(int columns) {
  if (columns == columns_) return;
  columns_ = columns;
  int row = 0;
  int column = 0;
  const Place* before = nullptr;
  for (const Place& place : places_) {
    grid_->removeWidget(place.card);
    const int span = std::min(place.columns, columns);
    // Two frames that take turns share their place.
    const bool shared = before && before->row == place.row && before->column == place.column;
    if (shared) column -= span;
    if (column + span > columns) {
      ++row;
      column = 0;
    }
    grid_->addWidget(place.card, row, column, 1, span);
    column += span;
    before = &place;
  }
  for (int each = 0; each < 4; ++each) {
    grid_->setColumnStretch(each, each < columns ? 1 : 0);
    grid_->setColumnMinimumWidth(each, columns == 4 ? kFrameWidth : 0);
  }
}

void SettingsView::fit() {
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  arrange(width() >= width_of(4) ? 4 : width() >= width_of(2) + bar ? 2 : 1);
}

ListBox* SettingsView::entries(ListControl& control, Binding look) {
  return list(
      control, [this, &control](int entry) { settings_window_.choose(control, entry); }, look);
}

Button* SettingsView::press_button(Control& control) {
  return button(control, [this, &control] { settings_window_.click(control); });
}

void SettingsView::add_buttons(const Control* notice) {
  Button* help_button = press_button(settings_window_.cmdHilfe);
  Button* read = press_button(settings_window_.cmdOptionRead);
  Button* save = press_button(settings_window_.cmdOptionSave);
  for (Button* one : {help_button, read, save}) actions().addWidget(one);
  actions().addStretch();
  if (notice) {
    Label* words = label(*notice, TextRole::note);
    words->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    actions().addWidget(words);
    actions().addSpacing(theme::inside);
  }
  Button* back = press_button(settings_window_.cmdZurueck);
  Button* ok = press_button(settings_window_.cmdOk);
  ok->setMinimumWidth(120);
  for (Button* one : {back, ok}) actions().addWidget(one);
  way_on({ok});
  way_back({back});
  help(help_button);
}

void SettingsView::applied() {
  if (settings_window_.popPruefung.visible && !menu_) open_menu();
}

void SettingsView::open_menu() {
  menu_ = new QMenu(this);
  menu_->setAttribute(Qt::WA_DeleteOnClose);
  QAction* mark = menu_->addAction(to_qstring(settings_window_.popExamToggle.text));
  mark->setCheckable(true);
  mark->setChecked(settings_window_.popExamToggle.value);
  QObject::connect(mark, &QAction::triggered, this, [this] {
    if (bindings().live()) settings_window_.click(settings_window_.popExamToggle);
  });
  // The menu hides before it tells what was chosen.
  QObject::connect(
      menu_, &QMenu::aboutToHide, this,
      [this] {
        menu_ = nullptr;
        if (bindings().live()) settings_window_.close_menu();
      },
      Qt::QueuedConnection);
  menu_->popup(menu_place_);
}

}  // namespace tonarix
