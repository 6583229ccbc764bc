#include "config/windows/settings_view.h"

#include <QButtonGroup>
#include <QCursor>
#include <QMenu>

namespace tonarix {

SettingsView::SettingsView(SettingsWindow& window, const Texts& texts)
    : WindowView(window, texts), settings_window_(window), grid_(new QGridLayout(&content())) {
  grid_->setContentsMargins(theme::edge, theme::between, theme::edge, theme::inside);
  grid_->setSpacing(10);
  for (int column = 0; column < 4; ++column) {
    grid_->setColumnStretch(column, 1);
    grid_->setColumnMinimumWidth(column, 232);
  }
}

Card* SettingsView::frame(int index, int row, int column, int columns) {
  Card* made = card(&settings_window_.grdeinst[index], &settings_window_.geinst_lb[index]);
  grid_->addWidget(made, row, column, 1, columns);
  made->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(made, &QWidget::customContextMenuRequested, this, [this, index] {
    if (bindings().live()) settings_window_.frame_menu(index);
  });
  return made;
}

Card* SettingsView::group_card(const QString& title, int row, int column, int columns) {
  Card* made = card(nullptr, nullptr);
  made->title().setText(title);
  made->setAccessibleName(title);
  grid_->addWidget(made, row, column, 1, columns);
  return made;
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
  menu_->popup(QCursor::pos());
}

}  // namespace tonarix
