#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "base/chance.h"
#include "base/dialogs.h"
#include "base/texts.h"
#include "base/wall_clock.h"
#include "base/window.h"
#include "config/settings_window.h"
#include "engine/exercise_controls.h"
#include "engine/material/frequency_box.h"
#include "engine/material/material.h"
#include "engine/material/training_state.h"
#include "engine/playback.h"
#include "host/error_report.h"
#include "host/server.h"
#include "music/analysis.h"
#include "music/interval.h"
#include "music/tones.h"
#include "protocol/protokoll.h"
#include "sound/midi.h"
#include "statistics/records.h"

namespace tonarix {

/// Whom and what an exercise window works with; all of it outlives the window.
struct ExerciseContext {
  Scheduler& scheduler;
  WindowList& windows;
  const Texts& texts;
  Server& server;
  ErrorReport& errors;
  Dialogs& dialogs;
  const WallClock& clock;
  Chance& chance;
  Midi& midi;
  MidiEvent& midi_event;
  Settings& settings;
  std::optional<SavedTraining>& saved_training;  ///< what level 2 goes on with
  Key& key;
  TaskRow& row;
  Auswertung& statistics;
  Ergebnis& best;
  Protokoll& protocol;
  const ToneNames& tone_names;
  const IntervalNames& interval_names;
  SettingsWindow& caller;
  /// Opens the result sheet; `closed` runs when the student has left it.
  std::function<void(std::function<void()> closed)> open_result;
};

/// The life that all exercise windows share: prepare, draw a task, sound it, take answers, go on,
/// leave. What a student answers with is the business of the window itself.
class ExerciseWindow : public Window, public ExerciseControls {
 public:
  ExerciseWindow(std::string name, const ExerciseContext& context);
  ~ExerciseWindow() override;

  void title_bar_close() override { zurueck_click(); }
  void CmdNextAufg_click();
  void wieder_click();
  void wieder2_click();
  void grundton_click();
  void zurueck_click();
  void cmd_test_ein_click();
  void cmd_test_aus_click();
  void MIDI_QueueEmpty();
  /// Leaves, but for a test in progress: there a slip of the finger must not end it.
  void escape_key();

  /// What Return presses now: the way on, or nullptr while there is only answering to do.
  const Control* default_button() const;

  /// Where the answering stands. The numbers are part of the other windows' rules too.
  enum class Zustand : std::int16_t {
    row_done = 1,
    next_interval = 2,
    wrong = 3,
    training_finished = 4,
    test_finished = 5,
  };

  /// Lets the program answer by itself, to try a window out. Nothing in the program sets it.
  bool Schalter = false;

 protected:
  /// What was last played.
  enum class SpielArt : std::int16_t { task = 0, wieder = 1, grundton = 2, wieder2 = 3 };

  /// Captions and answer buttons of the window, before the first task.
  virtual void prepare() = 0;
  /// Opens all answer buttons but the locked ones, or closes all.
  virtual void set_answers_enabled(bool open) = 0;
  /// What the answer field says for a right code.
  virtual std::string answer_text(std::int16_t code) const = 0;
  /// Presses the answer button of the code for the student.
  virtual void press_answer(std::int16_t code) = 0;

  /// Judges the answer with the code of a button. (`intervall_antw`)
  void intervall_antw(std::int16_t code);

  void failed(std::string_view tag, std::exception_ptr error) override;

  const Settings& settings() const { return context_.settings; }
  const Key& key() const { return context_.key; }
  std::string Wort(TextKey nr) const { return context_.texts.Wort(nr); }
  std::int16_t iv() const { return context_.row.iv.at(static_cast<std::size_t>(iv_nr_)); }
  bool locked(std::int16_t code) const { return gesperrt_.at(static_cast<std::size_t>(code)) != 0; }
  std::int16_t iv_nr() const { return iv_nr_; }
  const ExerciseContext& context() const { return context_; }

 private:
  enum class Exit { ok, error };
  static constexpr double kResetPause = 50;  ///< ms for a device to fall silent
  static constexpr const char* kLeavingTag = "zurueck_click.";

  // exercise_start.cpp, exercise_window.cpp, exercise_sound.cpp
  void start_timer();
  void name_window();
  void clear_statistics();
  void set_common_captions();
  /// A warning; `then` runs once it is read, unless the window has gone meanwhile.
  void tell(const std::string& text, std::function<void()> then = {});
  void prepare_timers();
  void prepare_level();
  void resume_training();
  Sequence mat_wahl();
  void reset_display();
  void name_next_task();
  void give_first_interval();
  void open_lesson();
  Sequence play(SpielArt spiel_art);
  Sequence play_task();
  Sequence play_keynote();
  void all_notes_off();
  void NachSpiel();
  void AntwortenFrei() { set_answers_enabled(true); }
  Sequence wieder_sequence();
  Sequence wieder2_sequence();
  Sequence grundton_sequence();
  Sequence AutoAntwort();
  void spieltimer_timer();
  void grdton_Timer_timer();
  void WahlAutomat_timer();
  void Uhrzeit_timer();
  void show_sounding(int place);
  void device_failed(std::string_view tag, std::exception_ptr error);
  void offer_next_task();
  void withdraw_next_task();

  // answer_evaluation.cpp
  void right_answer(std::int16_t code);
  void wrong_answer(std::int16_t code);
  void settle_interval();
  void Weiter();
  void finish_row();
  void next_interval();
  void open_answer();
  void show_by_zustand();
  void mark_way_out();
  void end_test();
  void show_test_standing();
  void show_training_standing();
  void count(Control& counter);

  // leaving.cpp
  void give_up_leaving(std::exception_ptr error);
  Sequence leave();
  Sequence ask_to_save();
  bool save_training();
  void forget_saved_training();
  Sequence write_protocol();
  void stop_all();
  std::string record_key(char record) const;

  double now() const { return seconds(context_.scheduler.now()); }
  bool training() const { return is_training(settings().Uebungsmodus); }
  bool over() const {
    return zustand_ == Zustand::training_finished || zustand_ == Zustand::test_finished;
  }
  bool test() const { return is_test(settings().Uebungsmodus); }

  ExerciseContext context_;
  FrequencyBox box_;
  Material material_;
  Playback playback_;
  TaskTuning tuning_;

  Timer start_;
  Timer spieltimer_;
  Timer grdton_Timer_;
  Timer WahlAutomat_;
  Timer Uhrzeit_;
  Timer testtimer_;
  Timer sounding_timer_;

  SpielArt spiel_art_ = SpielArt::task;
  Zustand zustand_ = Zustand::row_done;
  Exit exit_ = Exit::ok;
  bool leaving_ = false;
  bool prepared_ = false;
  bool result_closed_ = false;
  bool result_stood_ = false;  ///< the sheet has stood long enough
  std::int16_t iv_nr_ = 0;
  float wdh_gesamt_ = 0;
  double antw_start_ = 0;    ///< seconds
  double antw_seconds_ = 0;  ///< answer time so far, before the clock last started
  float AntwDau_ = 0;        ///< tenths of a second
  std::int16_t zeit_grenze_ = 0;
  std::int16_t answer_lfd_ = 1;  ///< answers in the lesson, from 1
  int lesson_nr_ = 0;
  int tasks_done_ = 0;
  int sounding_place_ = -1;
  std::array<std::int16_t, 22> gesperrt_{};
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tonarix
