#include "base/window.h"

#include <algorithm>

namespace tonarix {

Control::Control(Window& window, std::string name, std::optional<int> index)
    : window_(window), name_(std::move(name)), index_(index) {
  window.controls_.push_back(this);
}

std::string Control::object_name() const {
  return index_ ? name_ + "_" + std::to_string(*index_) : name_;
}

std::string why_not_open(const Control& control) {
  std::string reason = control.container ? why_not_open(*control.container) : std::string();
  return !reason.empty() || control.open() ? reason : control.why;
}

std::string ListControl::selected_text() const {
  if (selected < 0 || selected >= static_cast<int>(items.size())) return {};
  return items[static_cast<std::size_t>(selected)].text;
}

Window::Window(const WindowContext& common, std::string name)
    : common_(common), name_(std::move(name)), waits_(common.scheduler, [this] { reap(); }) {}

Window::~Window() = default;

Control* Window::find(std::string_view object_name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return control->object_name() == object_name;
  });
  return found == controls_.end() ? nullptr : *found;
}

void Window::show() {
  visible = true;
  changed();
}

void Window::hide() {
  visible = false;
  changed();
}

void Window::handle(std::string_view tag, const std::function<void()>& work) {
  try {
    work();
  } catch (...) {
    failed(tag, std::current_exception());
  }
  changed();
}

void Window::run(std::string tag, Sequence sequence) {
  running_.push_back({std::move(tag), std::move(sequence)});
  running_.back().sequence.start();
  reap();
}

void Window::reap() {
  std::list<Running> finished;
  for (auto next = running_.begin(); next != running_.end();) {
    const auto here = next++;
    if (here->sequence.done()) finished.splice(finished.end(), running_, here);
  }
  for (Running& routine : finished) {
    if (routine.sequence.error()) failed(routine.tag, routine.sequence.error());
  }
  changed();
}

void Window::tell(std::string text, std::function<void()> then) {
  common_.dialogs.show(warning(std::move(text)), [then = std::move(then), here = alive()](Reply) {
    if (then && !here.expired()) then();
  });
}

void Window::announce(const std::string& news) {
  if (news.empty()) return;
  if (!news_.empty()) {
    constexpr std::string_view kEnds = ".?!:";
    news_ += kEnds.find(news_.back()) == std::string_view::npos ? ". " : " ";
  }
  news_ += news;
}

void Window::changed() {
  const std::string news = std::exchange(news_, {});
  if (on_changed) on_changed();
  if (!news.empty() && on_announced) on_announced(news);
}

WindowList::~WindowList() {
  clear();
}

void WindowList::clear() {
  scheduler_.cancel(release_);
  leaving_.clear();
  while (!windows_.empty()) {
    if (on_unloaded) on_unloaded(*windows_.back());
    windows_.pop_back();
  }
}

void WindowList::adopt(std::unique_ptr<Window> window) {
  windows_.push_back(std::move(window));
  Window& opened = *windows_.back();
  opened.visible = true;
  if (!on_opened) return;
  try {
    on_opened(opened);
  } catch (...) {
    unload(opened);  // a window that can't be shown is none
    throw;
  }
}

void WindowList::unload(Window& window) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& owned) { return owned.get() == &window; });
  if (found == windows_.end()) return;
  window.visible = false;
  window.leaving_ = true;
  window.alive_.reset();
  if (on_unloaded) on_unloaded(window);
  leaving_.push_back(std::move(*found));
  windows_.erase(found);
  scheduler_.cancel(release_);
  release_ = scheduler_.post([this] { leaving_.clear(); });
  if (windows_.empty() && on_empty) on_empty();
}

}  // namespace tonarix
