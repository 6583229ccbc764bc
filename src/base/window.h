#pragma once

#include <exception>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/controls.h"
#include "base/delay.h"
#include "base/dialogs.h"
#include "base/input_guard.h"
#include "base/scheduler.h"
#include "base/sequence.h"
#include "base/texts.h"

namespace tonarix {

class WindowList;

/// What every window works with; all of it outlives the window.
struct WindowContext {
  Scheduler& scheduler;
  WindowList& windows;
  const Texts& texts;
  Dialogs& dialogs;
};

/// The logic half of a window: the state of its controls and a handler for each event, without a
/// toolkit. Whoever shows it listens to `on_changed` and reads the state again.
class Window {
 public:
  Window(const WindowContext& common, std::string name);
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  const std::string& name() const { return name_; }
  const std::vector<Control*>& controls() const { return controls_; }
  /// The control with this object name ("st_int_3"), or nullptr.
  Control* find(std::string_view object_name) const;

  /// The title bar's close button was pressed.
  void title_bar_close() {
    if (takes_input()) close_requested();
  }

  void show();
  void hide();
  /// The program ends here and now, without a question: what sounds stops, and what would be lost
  /// is put away. Nothing is shown any more.
  virtual void session_ends() {}

  /// A window takes no input while it is hidden or disabled, nor on its way out.
  bool takes_input() const { return visible && enabled && !leaving_; }
  /// True when the user can act on the control now.
  bool takes_input(const Control& control) const { return takes_input() && control.open(); }
  /// Asked by whoever shows the window, before it hands on a press.
  mutable InputGuard guard;
  bool settled() const { return guard.settled(now()); }
  Scheduler::Time now() const { return common_.scheduler.now(); }
  /// Expires when the window goes, for whoever may come too late.
  std::weak_ptr<bool> alive() const { return alive_; }

  std::string caption;
  bool visible = false;
  bool enabled = true;
  bool busy = false;  ///< hourglass
  std::function<void()> on_changed;
  /// Something to be told to who does not see the screen, in few words.
  std::function<void(const std::string&)> on_announced;

 protected:
  /// What the title bar's close button does.
  virtual void close_requested() = 0;
  /// The way out begins; false when it has begun before.
  bool begin_leaving() { return !std::exchange(leaving_, true); }
  /// Tells the news once the event that brings it has been dealt with; several become one.
  void announce(const std::string& news);

  /// Runs an event's work. An exception goes to `failed` with the tag; then the change is
  /// announced.
  void handle(std::string_view tag, const std::function<void()>& work);
  /// Runs a routine that waits, with the same care as `handle`. The window owns it; closing the
  /// window's life ends it.
  void run(std::string tag, Sequence sequence);
  /// `handle` for plain work, `run` for a routine that waits; nothing when the window or the
  /// control takes no input, as when a click comes late.
  template <typename Work>
  void press(const Control& control, std::string_view tag, Work&& work) {
    if (!takes_input(control)) return;
    if constexpr (std::is_same_v<std::invoke_result_t<Work>, Sequence>) {
      run(std::string(tag), work());
    } else {
      handle(tag, work);
    }
  }

  /// A failure of an event with the tag ("cmdOK_click."): log it, tell the user, close or go on.
  virtual void failed(std::string_view tag, std::exception_ptr error) = 0;

  /// A warning under the program's name. `then` runs once it has been read, unless the window has
  /// gone meanwhile.
  void tell(std::string text, std::function<void()> then = {});
  /// A text in the language in force.
  std::string word(TextKey key) const { return common_.texts.Wort(key); }
  const WindowContext& common() const { return common_; }

  void changed();
  Waits::Awaitable Delay(double ms) { return waits_.Delay(ms); }
  Waits& waits() { return waits_; }
  Scheduler& scheduler() { return common_.scheduler; }

 private:
  friend class Control;
  struct Running {
    std::string tag;
    Sequence sequence;
  };
  void reap();

  friend class WindowList;
  WindowContext common_;
  std::string name_;
  std::vector<Control*> controls_;
  Waits waits_;
  std::list<Running> running_;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  std::string news_;
  bool leaving_ = false;
};

/// A window that may be gone by the time it is needed.
template <typename Kind>
class WindowRef {
 public:
  WindowRef() = default;
  explicit WindowRef(Kind& window) : window_(&window), alive_(window.alive()) {}
  /// The window, nullptr once it has been unloaded.
  Kind* get() const { return alive_.expired() ? nullptr : window_; }

 private:
  Kind* window_ = nullptr;
  std::weak_ptr<bool> alive_;
};

/// The open windows in the order of their opening. It owns them; a closed one is released by a
/// posted task, so that a handler can close its own window.
class WindowList {
 public:
  explicit WindowList(Scheduler& scheduler) : scheduler_(scheduler) {}
  ~WindowList();
  WindowList(const WindowList&) = delete;
  WindowList& operator=(const WindowList&) = delete;

  /// Takes the window, announces and shows it.
  template <typename Kind>
  Kind& open(std::unique_ptr<Kind> window) {
    Kind& opened = *window;
    adopt(std::move(window));
    return opened;
  }
  void unload(Window& window);
  /// Releases all windows at once, newest first, when the program ends.
  void clear();

  int count() const { return static_cast<int>(windows_.size()); }
  /// The most recently opened window, or nullptr.
  Window* newest() const { return windows_.empty() ? nullptr : windows_.back().get(); }
  Window* at(int index) const { return windows_.at(static_cast<std::size_t>(index)).get(); }

  std::function<void(Window&)> on_opened;
  std::function<void(Window&)> on_unloaded;  ///< the window still lives
  std::function<void()> on_empty;            ///< the last window was unloaded

 private:
  void adopt(std::unique_ptr<Window> window);

  Scheduler& scheduler_;
  std::vector<std::unique_ptr<Window>> windows_;
  std::vector<std::unique_ptr<Window>> leaving_;
  Scheduler::TaskId release_ = 0;
};

}  // namespace tonarix
