#pragma once

#include <QGridLayout>

#include "base/windows/window_view.h"
#include "config/settings_window.h"

class QMenu;

namespace tonarix {

/// What the settings windows share on the screen: frames in four columns, or in two or one where
/// the screen is narrow, the line of buttons, and the supervisor's menu on a frame.
class SettingsView : public WindowView {
 protected:
  SettingsView(SettingsWindow& window, const Texts& texts);

  /// A frame with its title; `columns` of the four wide.
  Card* frame(int index, int row, int column, int columns = 1);
  /// A group of no frame of the window's own.
  Card* group_card(const QString& title, int row, int column, int columns = 1);
  template <int First, int Last>
  void choices(Card& card, ControlArray<OptionControl, First, Last>& controls, int columns = 1) {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(0);
    card.body().addLayout(grid);
    QButtonGroup* together = group();
    for (OptionControl& control : controls) {
      const int place = *control.index() - First;
      Option* made =
          option(control, *together, [this, &control] { settings_window_.click(control); },
                 {.keep_place = true});
      grid->addWidget(made, place / columns, place % columns);
    }
  }
  ListBox* entries(ListControl& control, Binding look = {});
  Button* press_button(Control& control);
  /// Help, the supervisor's two, back, OK; a notice between them where there is one.
  void add_buttons(const Control* notice = nullptr);
  void applied() override;
  void fit() override;

 private:
  struct Place {
    Card* card;
    int row, column, columns;  ///< among four columns
  };
  void put(Card* card, int row, int column, int columns);
  void arrange(int columns);
  int width_of(int columns) const;
  void open_menu();

  SettingsWindow& settings_window_;
  QGridLayout* grid_;
  std::vector<Place> places_;
  int columns_ = 4;
  QMenu* menu_ = nullptr;
  QPoint menu_place_;
};

}  // namespace tonarix
