#pragma once

#include <QHBoxLayout>
#include <QKeySequence>
#include <QWidget>
#include <vector>

#include "base/windows/widget_maker.h"

class QScrollArea;

namespace tonarix {

class Announcer;

/// The toolkit half of a window. A subclass builds its layout in its constructor: widgets go into
/// `content()`, which scrolls where the screen is too small, and into `actions()`, the one line
/// below that always stays in view. Create widgets in reading order: that is the tab order too.
///
///   class SettingsView final : public WindowView {
///    public:
///     SettingsView(SettingsWindow& window, const Texts& texts) : WindowView(window, texts) {
///       auto* rows = new QVBoxLayout(&content());
///       Card* order = card(&window.grdeinst[1], &window.geinst_lb[1]);
///       options(window.abfrage, order->body(), [&window](int i) { window.abfrage_click(i); });
///       rows->addWidget(order);
///       actions().addStretch();
///       Button* ok = button(window.cmdOk, [&window] { window.cmdOk_click(); });
///       actions().addWidget(ok);
///       way_on({ok});
///     }
///   };
///
/// Caption, visible, enabled and busy follow the logic, as do all bound widgets, whenever it
/// announces a change. The title bar's close button only asks the logic. Return presses the focused
/// button or else the way on, Escape the way back, F1 the help.
class WindowView : public QWidget, protected WidgetMaker {
 public:
  WindowView(Window& window, const Texts& texts);
  ~WindowView() override;

  /// Reads the state of the logic again, and shows or hides the window.
  void apply();
  /// The logic is going: forgets it and hides. The view may be deleted later.
  void detach();
  QSize sizeHint() const override;

  /// What stood before the window has gone: a press meant for that one may still come.
  void uncovered();
  /// Told when the window has been shown or hidden.
  std::function<void()> on_visibility;
  /// Where the window first stands in the middle: the place of the window before; null for the
  /// screen's middle.
  void set_place(const QWidget* before);

 protected:
  QHBoxLayout& actions() { return *actions_; }

  /// The first of these that is open is drawn as the way on, and Return presses it.
  void way_on(std::vector<Button*> buttons) { way_on_ = std::move(buttons); }
  /// The first of these that is open is pressed by Escape.
  void way_back(std::vector<Button*> buttons) { way_back_ = std::move(buttons); }
  void help(Button* button) { help_ = button; }
  /// A further key for a button, "3" say. It works while the button is open.
  void key(const QKeySequence& sequence, Button& button);

  /// Says news aloud that only the view knows.
  void announce(const QString& news);
  /// Scrolls until the widget is seen, once all is laid out. It must stand in `content()`.
  void bring_into_view(QWidget& widget);

  /// After each `apply`, for what a subclass draws itself.
  virtual void applied() {}

  /// The size, or what stands in `content()`, has changed: a subclass may lay itself out anew.
  virtual void fit() {}

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void place_first();
  void grow();
  QSize with_bars(QSize size, const QSize& room) const;
  void show_mnemonics(bool shown);

  Window* logic_;
  QScrollArea* scroll_;
  QHBoxLayout* actions_;
  Announcer* announcer_;
  std::vector<Button*> way_on_;
  std::vector<Button*> way_back_;
  Button* help_ = nullptr;
  std::optional<QPoint> place_;
  QSize own_size_;  ///< the last size that the user did not choose
};

}  // namespace tonarix
