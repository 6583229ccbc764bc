#pragma once

#include <QGridLayout>

#include "base/windows/window_view.h"
#include "config/settings_window.h"

class QMenu;

namespace tonarix {

/// A settings window on the screen, built from its table of frames: in four columns, or in two or
/// one where the screen is narrow, with the line of buttons and the supervisor's menu on a frame.
class SettingsView : public WindowView {
 protected:
  SettingsView(SettingsWindow& window, const Texts& texts);

  /// The frames with their choices, in the order of the table.
  void build_frames();
  /// Help, the supervisor's two, back, OK; a notice between them where there is one.
  void build_buttons(const Control* notice = nullptr);
  /// Where a choice stands.
  Card& card_of(Choice choice);
  Button* press_button(Control& control);
  /// A line that explains an option, below its caption.
  void explain(const OptionControl& option, TextKey note);
  void applied() override;
  void fit() override;

 private:
  struct Place {
    Card* card;
    const FrameRow* row;
  };
  Card* make_card(const FrameRow& row);
  void fill(Card& card, const FrameRow& row);
  void add_options(Card& card, std::span<OptionControl> options, int columns);
  void add_menu(Card& card, int frame);
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
