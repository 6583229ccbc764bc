#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/window.h"
#include "config/levels.h"
#include "host/error_report.h"
#include "host/server.h"
#include "host/text_tables.h"
#include "music/interval.h"
#include "settings/saved_settings.h"
#include "settings/settings.h"
#include "settings/settings_tables.h"
#include "sound/midi.h"
#include "statistics/records.h"

namespace tonarix {

class PairList;
class SettingsWindow;

/// Whom and what a settings window works with; all of it outlives the window.
struct SettingsContext {
  WindowContext common;
  Server& server;
  ErrorReport& errors;
  Midi& midi;
  MidiDevices& devices;
  MidiEvent& midi_event;
  Settings& settings;
  std::optional<SavedTraining>& saved_training;  ///< what level 2 goes on with
  Auswertung& statistics;
  Ergebnis& best;
  const TextTables& tables;
  const IntervalNames& interval_names;
  std::function<void()> ProtokollNeu;  ///< begins the protocol document of the exercise
  /// Opens the exercise window for `ueb_typ`; an exception leads back to the selection.
  std::function<void(SettingsWindow& caller)> open_exercise;
  std::function<void()> show_selection;
  std::function<void(const std::string& keys)> send_keys;        ///< "{F1}"
  std::function<void(const std::string& document)> put_listing;  ///< the diagnostic stream
};

/// What the three settings windows share: their levels, locks, range, marks and the way on and
/// back. A subclass has the controls of its own.
class SettingsWindow : public Window {
 public:
  SettingsWindow(const SettingsContext& context, std::string name, SettingsKind kind);
  ~SettingsWindow() override;

  void title_bar_close() override;
  /// The user pressed a button or chose an option. Nothing happens when it is locked.
  void click(Control& control);
  /// The user chose an entry of a list.
  void choose(ListControl& list, int entry);
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
  /// Caption of the kind of exercise, as the first window shows it.
  std::string exercise_caption() const;
  SettingsKind kind() const { return kind_; }
  bool started() const { return started_; }

  ControlArray<Control, 0, 13> grdeinst;   ///< a frame for each option group
  ControlArray<Control, 0, 13> geinst_lb;  ///< the frames' titles
  Control aktionsbox, cmdHilfe, cmdOptionRead, cmdOptionSave, cmdZurueck, cmdOk;
  ListControl training_Combo, prfnr_Comb;
  ControlArray<OptionControl, 0, 1> abfrage;
  ControlArray<OptionControl, 0, 2> tongeschl;
  ControlArray<OptionControl, 0, 3> E_Oktav;
  ListControl Combo_tonraum;
  ControlArray<OptionControl, 0, 2> ivg;
  Control popPruefung;          ///< visible while the menu is open
  OptionControl popExamToggle;  ///< its value is the check mark
  MIDIOutput MIDI;
  Timer testtimer;  ///< accepts the settings when it fires

 protected:
  /// How a frame looks and is locked.
  struct LockRow {
    int frame;
    Colour open;
  };
  /// A group's frame, title, tag and the controls inside.
  template <int First, int Last>
  void place(ControlArray<OptionControl, First, Last>& options, int frame, std::string_view tag) {
    for (OptionControl& option : options) place(option, frame, tag);
  }
  void place(Control& control, int frame, std::string_view tag);
  /// Handlers by control; `click`, `choose` and `slide` run them.
  void on(Control& control, std::string tag, std::function<void()> handler);
  template <int First, int Last>
  void on_each(ControlArray<OptionControl, First, Last>& options, const std::string& tag,
               std::function<void(std::int16_t)> handler) {
    for (OptionControl& option : options) {
      const auto index = static_cast<std::int16_t>(*option.index());
      on(option, tag, [handler, index] { handler(index); });
    }
  }
  template <int First, int Last>
  void captions(ControlArray<OptionControl, First, Last>& options,
                std::initializer_list<TextKey> keys) {
    auto key = keys.begin();
    for (OptionControl& option : options) option.text = word(*key++);
  }
  void title(int frame, const std::string& text) { geinst_lb[frame].text = text; }

  // The parts of the start that differ by window, in their order.
  virtual void set_captions();
  virtual void fill_lists() {}
  virtual void send_sounds() {}
  virtual void fill_transposition() {}

  /// Chooses an index as a click would, with all that hangs on it.
  virtual void set(Choice choice, std::int16_t value);
  virtual void after_tongeschl() {}
  virtual std::span<const LockRow> level_locks() const = 0;
  virtual std::span<const int> exam_locks() const = 0;
  /// The tempo list has a lock of its own.
  virtual void lock_tempo(bool) {}
  /// Label and value pairs from what the controls show.
  virtual std::vector<std::string> build_EinstDatSave() const = 0;

  void failed(std::string_view tag, std::exception_ptr error) override;
  /// Enables what a failing sound left disabled.
  virtual void sound_failed() {}
  /// The control's queue has run out.
  virtual Sequence queue_ended() = 0;
  /// Runs sound work at the start; a device that fails is told, and sound is off from there on.
  void with_sound(const std::function<void()>& work);
  /// False when no device could be opened for this window.
  bool has_sound() const { return context_.midi.MidiOut == &MIDI; }

  Settings& settings() { return context_.settings; }
  const Settings& settings() const { return context_.settings; }
  const SettingsContext& context() const { return context_; }
  bool closing() const { return schliessen_; }
  void add_level_pairs(PairList& pairs) const;
  template <int First, int Last>
  static const std::string& chosen(const ControlArray<OptionControl, First, Last>& options,
                                   int index) {
    return options[index].text;
  }

 private:
  struct Event {
    std::string tag;
    std::function<void()> handler;
  };
  void start_up();
  void attach_midi();
  void tell_device_failure(std::string_view tag, std::exception_ptr error,
                           std::optional<TextKey> how_it_goes_on = std::nullopt);
  void fill_levels(bool saved);
  void E_Oktav_click(std::int16_t index);
  void ivg_click(std::int16_t index);
  void training_Combo_change();
  void prfnr_Comb_change();
  void restore();
  void restore_failed(std::exception_ptr error);
  void unlock();
  void lock(int frame);
  void toggle_mark();
  void list_test();
  void read_test();
  void accept();
  void go_back();

  SettingsContext context_;
  SettingsKind kind_;
  Timer start_;
  std::map<const Control*, Event> events_;
  bool started_ = false;
  bool schliessen_ = false;
  int marked_frame_ = 0;
};

}  // namespace tonarix
