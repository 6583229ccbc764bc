#pragma once

#include <string>

#include "engine/sounding_window.h"
#include "exercises/build/forming_player.h"

namespace tonarix {

/// Forming a tone by ear: two tones are given, the third sounds on and is bent with a slider until
/// it lies at the right pitch.
class Arbeitsblatt2 final : public SoundingWindow, public PlaceControls {
 public:
  explicit Arbeitsblatt2(const ExerciseContext& context);

  void cmdok_click();
  /// The student moved the slider to a bend value within its range.
  void sldPitch_change(int value);
  void help_close_click();
  const Control* default_button() const override;

  /// The two pitches of a finished task, bend values.
  struct Pitches {
    std::int16_t formed;
    std::int16_t target;
  };
  /// None while the task goes on: nothing tells then how far off the slider is.
  const std::optional<Pitches>& pitches() const { return pitches_; }
  /// The help page as HTML, empty where there is none.
  const std::string& help_page() const { return help_page_; }

  SliderControl sldPitch{*this, "sldPitch"};
  Control cmdok{*this, "cmdok"};
  Control aufg{*this, "aufg"};                          ///< the interval to form
  ControlArray<Control, 0, 3> Label2{*this, "Label2"};  ///< headings
  Control vorgabe_lab{*this, "vorgabe_lab"};            ///< what is being played
  Control var_th{*this, "var_th"};                      ///< caption of the slider
  Control Label1{*this, "Label1"};                      ///< captions of the two values below
  Control Label3{*this, "Label3"};
  ControlArray<Control, 0, 1> LabPitch{*this, "LabPitch"};  ///< after a task: slider, target
  Control stimm_anz{*this, "stimm_anz"};                    ///< the tuning that is asked
  Control row_title{*this, "row_title"};
  Control settings_line{*this, "settings_line"};
  Control lower_end{*this, "lower_end"};  ///< what lies at the slider's ends
  Control higher_end{*this, "higher_end"};
  Control slider_keys{*this, "slider_keys"};
  Control pitch_gap{*this, "pitch_gap"};  ///< how far off the tone was, in words
  Control accuracy_title{*this, "accuracy_title"};
  Control accuracy{*this, "accuracy"};
  Control accuracy_note{*this, "accuracy_note"};  ///< what counts as right
  Control RTxtBox{*this, "RTxtBox"};              ///< the help page, in the slider's place
  Control help_close{*this, "help_close"};

 protected:
  std::unique_ptr<RowPlayer> make_player() override;
  void prepare() override;
  TestTiming test_timing(const TestTiming& usual) const override;
  TaskTuning tune() override;
  int first_asked() const override { return kAsked; }
  void show_task() override;
  void open_answers(bool open) override;
  void show_actions(const Actions& actions) override;
  bool control_comes_first() const override { return false; }
  void show_help(const std::function<void()>& closed) override;
  TextKey line(TextKey usual) const override;
  std::string question_text() const override;

 private:
  static constexpr int kGiven = 0;  ///< the first interval is told, the second is formed
  static constexpr int kAsked = 1;

  void answer();
  std::string right_answer(float tenths);
  std::string wrong_answer();
  void solve(const Colour& back, const Colour& fore);
  Sequence show_pitches();
  void show_tries();
  void close_help();
  void tell_what_to_do();
  FormingPlayer& forming_player() { return static_cast<FormingPlayer&>(player()); }

  FormingDesk desk_;
  std::optional<Pitches> pitches_;
  std::string help_page_;
  std::function<void()> help_closed_;
  bool okFrei_ = true;  ///< the answer may be given as soon as the tone sounds
};

/// How far a formed tone lies from its pitch: "4 Schritte zu hoch, +12,5 Cent".
std::string gap_words(int steps, const Texts& texts);

}  // namespace tonarix
