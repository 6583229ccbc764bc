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

void SettingsView::build_frames() {
  for (const FrameRow& row : settings_window_.frames().rows()) {
    Card* made = make_card(row);
    places_.push_back({made, &row});
    grid_->addWidget(made, row.row, row.column, 1, row.columns);
    fill(*made, row);
  }
  for (int each = 0; each < 4; ++each) {
    grid_->setColumnStretch(each, 1);
    grid_->setColumnMinimumWidth(each, kFrameWidth);
  }
}

Card* SettingsView::make_card(const FrameRow& row) {
  if (row.frame != kNoFrame) {
    Card* made =
        card(&settings_window_.grdeinst[row.frame], &settings_window_.geinst_lb[row.frame]);
    add_menu(*made, row.frame);
    return made;
  }
  Card* made = card(nullptr, nullptr);
  made->title().setText(word(row.title));
  made->setAccessibleName(word(row.title));
  return made;
}

void SettingsView::add_menu(Card& card, int frame) {
  card.setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(&card, &QWidget::customContextMenuRequested, this,
                   [this, &card, frame](const QPoint& at) {
                     menu_place_ = card.mapToGlobal(at);
                     if (!bindings().live() || !settings_window_.settled()) return;
                     settings_window_.frame_menu(frame);
                   });
}

void SettingsView::fill(Card& card, const FrameRow& row) {
  QBoxLayout* lists = &card.body();
  if (row.columns > 1) {
    lists = new QHBoxLayout;
    lists->setSpacing(theme::inside);
    card.body().addLayout(lists);
  }
  for (const Choice choice : row.holds) {
    const Choices::Row* offered = settings_window_.choices().find(choice);
    if (!offered) continue;
    const int columns = choice_words(choice).columns;
    if (!offered->list) {
      add_options(card, offered->options, columns);
      continue;
    }
    ListControl& control = *offered->list;
    ListBox* box =
        list(control, [this, &control](int entry) { settings_window_.choose(control, entry); },
             {.keep_place = true});
    box->on_popup = [this, &control] { settings_window_.open_list(control); };
    lists->addWidget(box, row.columns > 1 ? columns : 0);
  }
}

void SettingsView::add_options(Card& card, std::span<OptionControl> options, int columns) {
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(0);
  card.body().addLayout(grid);
  QButtonGroup* together = group();
  int place = 0;
  for (OptionControl& control : options) {
    Option* made = option(control, *together, [this, &control] { settings_window_.click(control); },
                          {.keep_place = true});
    grid->addWidget(made, place / columns, place % columns);
    ++place;
  }
}

void SettingsView::explain(const OptionControl& option, TextKey note) {
  auto* widget = content().findChild<QRadioButton*>(to_qstring(option.object_name()));
  static_cast<Option*>(widget)->set_note(word(note));
}

Card& SettingsView::card_of(Choice choice) {
  const FrameRow* holding = settings_window_.frames().holding(choice);
  return *std::ranges::find(places_, holding, &Place::row)->card;
}

int SettingsView::width_of(int columns) const {
  std::vector<int> widths(static_cast<std::size_t>(columns), columns == 4 ? kFrameWidth : 0);
  for (const Place& place : places_) {
    const int least = place.card->minimumSizeHint().width();
    const int spanned = std::min(place.row->columns, columns);
    int& width = widths[static_cast<std::size_t>(place.row->column % columns)];
    width = std::max(width, (least - (spanned - 1) * kGap) / spanned);
  }
  return std::accumulate(widths.begin(), widths.end(), 0) + (columns - 1) * kGap + 2 * theme::edge;
}

void SettingsView::arrange(int columns) {
  if (columns == columns_) return;
  columns_ = columns;
  int row = 0;
  int column = 0;
  const FrameRow* before = nullptr;
  for (const auto& [card, place] : places_) {
    grid_->removeWidget(card);
    const int span = std::min(place->columns, columns);
    // Two frames that take turns share their place.
    const bool shared = before && before->row == place->row && before->column == place->column;
    if (shared) column -= span;
    if (column + span > columns) {
      ++row;
      column = 0;
    }
    grid_->addWidget(card, row, column, 1, span);
    column += span;
    before = place;
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

Button* SettingsView::press_button(Control& control) {
  return button(control, [this, &control] { settings_window_.click(control); });
}

void SettingsView::build_buttons(const Control* notice) {
  Button* help_button = press_button(settings_window_.cmdHilfe);
  Button* read = press_button(settings_window_.cmdOptionRead);
  Button* save = press_button(settings_window_.cmdOptionSave);
  for (Button* one : {help_button, read, save}) actions().addWidget(one);
  Label* told = label(settings_window_.status, TextRole::note);
  told->setWordWrap(true);
  told->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  actions().addWidget(told, 1);
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
  for (const auto& [card, row] : places_) {
    // A group that is no frame shows as long as there is something to choose in it.
    if (row->frame != kNoFrame) continue;
    const bool shown = settings_window_.choices().visible(row->holds[0]);
    if (card->isHidden() == shown) card->setVisible(shown);
  }
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
  // A second click on its entry would hit what lies below it.
  QObject::connect(menu_, &QMenu::aboutToHide, this, [this] { uncovered(); });
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
