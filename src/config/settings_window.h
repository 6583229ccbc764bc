#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>

#include "base/window.h"
#include "config/choices.h"
#include "config/frames.h"
#include "config/level_logic.h"
#include "config/settings_context.h"
#include "config/settings_controls.h"
#include "config/supervisor_marks.h"

namespace tonarix {

class PairList;

/// What makes one settings window: its frames, and the choices in the order of `EinstDatSave`.
struct SettingsLayout {
  SettingsKind kind;
  const char* name;
  std::span<const FrameRow> frames;
  std::span<const Choice> pairs;
};

/// What the three settings windows share: their start, events, range and the way on and back. A
/// subclass has the controls of its own.
class SettingsWindow : public Window, public SettingsControls {
 public:
  SettingsWindow(const SettingsContext& context, const SettingsLayout& layout);

  /// The user pressed a button or chose an option. Nothing happens when it is locked.
  void click(Control& control);
  /// The user chose an entry of a list.
  void choose(ListControl& list, int entry);
  /// The user opens a list: what it offers may have changed.
  void open_list(const ListControl& list);
  /// The user moved a slider.
  void slide(SliderControl& slider, int value);
  /// Right click on a frame: the supervisor's menu.
  void frame_menu(int frame);
  /// The menu was left without a choice.
  void close_menu();

  /// The saved training is used up: level 2 is off, level 1 chosen.
  void training_finished();
  /// The training can be gone on with: the list gets its five captions and the level in force.
  void training_saved();
  /// The exercise has closed.
  void show_again();
  void session_ends() override { stop_sound(); }
  /// Caption of the kind of exercise, as the first window shows it.
  std::string exercise_caption() const;

  const Frames& frames() const { return frames_; }
  const Choices& choices() const { return choices_; }

 protected:
  /// Puts a choice into its frame, with the handlers of its controls.
  void offer(Choices::Row row);
  /// The handler of a control; `click`, `choose` and `slide` run it.
  void on(Control& control, std::string tag, std::function<void()> handler);

  void close_requested() override;
  virtual void set_captions();
  /// Before the choices stand: what they need, lists and sound.
  virtual void prepare() {}
  virtual void stop_sound() {}
  /// On the way out, what the window took for its own time.
  virtual void give_back() {}
  /// The label and value of a choice, as the window shows it.
  virtual void add_pair(PairList& pairs, Choice choice) const;
  void failed(std::string_view tag, std::exception_ptr error) override;
  /// True for a failure that leads out of the window.
  bool ends_window(std::string_view tag) const;

  Choices& offered() { return choices_; }
  Settings& settings() const { return context_.settings; }
  const SettingsContext& context() const { return context_; }

 private:
  struct Event {
    std::string tag;
    std::function<void()> handler;
  };
  void start_up();
  void list_test();
  void read_test();
  void fill_ranges();
  void accept();
  void go_back();

  SettingsContext context_;
  SettingsLayout layout_;
  Choices choices_;
  Frames frames_;
  LevelLogic levels_;
  SupervisorMarks marks_;
  Timer start_;
  Timer testtimer_;  ///< accepts the settings when it fires
  std::map<const Control*, Event> events_;
  bool started_ = false;
};

}  // namespace tonarix
