#include "base/windows/presenter.h"

#include <QGuiApplication>
#include <QWindow>

namespace tonarix {
namespace {

/// Both listeners, the earlier first.
void also(std::function<void(Window&)>& listener, std::function<void(Window&)> further) {
  listener = [earlier = std::move(listener), further = std::move(further)](Window& window) {
    if (earlier) earlier(window);
    further(window);
  };
}

}  // namespace

Presenter::Presenter(WindowList& windows) : windows_(windows) {
  // Windows hide while they wait for the next one; the list of windows says when all is over.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  also(windows.on_opened, [this](Window& window) { opened(window); });
  also(windows.on_unloaded, [this](Window& window) { unloaded(window); });
}

Presenter::~Presenter() {
  windows_.on_opened = nullptr;
  windows_.on_unloaded = nullptr;
}

void Presenter::add(const std::string& window_name, Factory factory) {
  factories_[window_name] = std::move(factory);
}

WindowView* Presenter::view_of(const Window& window) const {
  const auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second.get();
}

QWidget* Presenter::newest_visible() const {
  for (int i = windows_.count() - 1; i >= 0; --i) {
    WindowView* view = view_of(*windows_.at(i));
    if (view && view->isVisible()) return view;
  }
  return nullptr;
}

void Presenter::opened(Window& window) {
  const Factory& make = factories_.at(window.name());
  std::unique_ptr<WindowView>& view = views_.emplace(&window, make(window)).first->second;
  view->on_visibility = [this] { views_changed(); };
  for (int i = windows_.count() - 1; i >= 0; --i) {
    const WindowView* before = view_of(*windows_.at(i));
    if (!before || before == view.get()) continue;
    view->set_place(before);
    if (before->isVisible()) {
      // It stands before a window that stays: a click on that one must not bury it.
      view->winId();
      view->windowHandle()->setTransientParent(before->windowHandle());
    }
    break;
  }
  view->apply();
}

void Presenter::unloaded(Window& window) {
  const auto found = views_.find(&window);
  if (found == views_.end()) return;
  // Perhaps one of its own buttons is still at work.
  found->second->detach();
  found->second.release()->deleteLater();
  views_.erase(found);
}

void Presenter::uncovered() {
  for (const auto& [window, view] : views_) view->uncovered();
}

void Presenter::views_changed() {
  if (on_views_changed) on_views_changed();
}

}  // namespace tonarix
