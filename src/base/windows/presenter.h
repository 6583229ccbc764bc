#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "base/windows/window_view.h"

namespace tonarix {

/// Gives each open window its view: made when the window opens, gone when it is unloaded. One for
/// the program, made before the first window opens.
///
///   Presenter presenter(windows);
///   presenter.add<SelectionWindow, SelectionView>("grd_einst", texts);
class Presenter {
 public:
  using Factory = std::function<std::unique_ptr<WindowView>(Window&)>;

  /// Listens to the list beside whoever does already.
  explicit Presenter(WindowList& windows);
  ~Presenter();
  Presenter(const Presenter&) = delete;
  Presenter& operator=(const Presenter&) = delete;

  /// Windows of this name are shown by what the factory makes.
  void add(const std::string& window_name, Factory factory);
  /// The view's constructor gets the logic and the further arguments, which must outlive it.
  template <typename Logic, typename View, typename... Further>
  void add(const std::string& window_name, Further&... further) {
    add(window_name, [&further...](Window& window) -> std::unique_ptr<WindowView> {
      return std::make_unique<View>(static_cast<Logic&>(window), further...);
    });
  }

  WindowView* view_of(const Window& window) const;
  /// The visible window that was opened last, or nullptr.
  QWidget* newest_visible() const;

  /// A box before the windows has gone.
  void uncovered();
  /// A window has been shown, hidden or unloaded.
  std::function<void()> on_views_changed;

 private:
  void opened(Window& window);
  void unloaded(Window& window);
  void views_changed();

  WindowList& windows_;
  std::map<std::string, Factory> factories_;
  std::map<const Window*, std::unique_ptr<WindowView>> views_;
};

}  // namespace tonarix
